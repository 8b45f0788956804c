// SPDX-License-Identifier: MIT
#include "welcomeplugin.h"

#include "welcomeoptionpage.h"
#include "welcomewidget.h"

#include <document/editormanager.h>
#include <icore.h>
#include <mainwindow.h>
#include <ui/imainmdiarea.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace {

// Makes lupdate see the description in welcome.json, which the framework translates in this context.
[[maybe_unused]] constexpr const char *s_option =
    QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Do not show the home page in this run.");

} // namespace

WelcomePlugin::WelcomePlugin() = default;

// The widget's code is in this library, so the widget must be gone before the library is unloaded.
WelcomePlugin::~WelcomePlugin()
{
    delete m_pWidget;
}

bool WelcomePlugin::initialize(const QStringList &arguments, QString *errorString)
{
    MainWindow *pMainWindow = ICore::getMainWindow();
    if (!pMainWindow) {
        *errorString = tr("There is no main window.");
        return false;
    }
    m_pOptions = std::make_unique<WelcomeOptionPageFactory>();
    if (arguments.contains(QStringLiteral("--no-welcome")) || !WelcomeOptionPage::isPageWanted())
        return true;
    m_pWidget = new WelcomeWidget(pMainWindow->getMdiArea());
    pMainWindow->setWelcomeWidget(m_pWidget);
    // The main window opens the projects of the command line by a timer of 0 ms; this one comes after it.
    connect(pMainWindow, &MainWindow::extsInitialized, this,
        [this] { QTimer::singleShot(0, this, &WelcomePlugin::start); });
    return true;
}

// If a project of the command line still shows a dialog, the page waits for the end of that dialog.
void WelcomePlugin::start()
{
    if (QWidget *pDialog = QApplication::activeModalWidget())
        pDialog->installEventFilter(this);
    else
        ICore::getMainWindow()->setVisibleWelcomeWidget(EditorManager::getEditors().isEmpty());
}

// Hiding is the end of every dialog: some are only hidden, and ~QDialog() hides the others.
bool WelcomePlugin::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    if (pEvent->type() == QEvent::Hide) {
        pWatched->removeEventFilter(this);
        QMetaObject::invokeMethod(this, &WelcomePlugin::start, Qt::QueuedConnection);
    }
    return IPlugin::eventFilter(pWatched, pEvent);
}
