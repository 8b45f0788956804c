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

// As the metadata describes it; the framework translates that.
[[maybe_unused]] constexpr const char *s_option =
    QT_TRANSLATE_NOOP("ExtensionSystem::CommandLine", "Do not show the home page in this run.");

} // namespace

WelcomePlugin::WelcomePlugin() = default;

// The code of the widget goes with this library, so the widget must not outlive it.
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
    // Behind the projects of the command line, which the same kind of timer opens.
    connect(pMainWindow, &MainWindow::extsInitialized, this,
        [this] { QTimer::singleShot(0, this, &WelcomePlugin::start); });
    return true;
}

// A project of the command line may still be asking the user something.
void WelcomePlugin::start()
{
    if (QWidget *pDialog = QApplication::activeModalWidget())
        pDialog->installEventFilter(this);
    else
        ICore::getMainWindow()->setVisibleWelcomeWidget(EditorManager::getEditors().isEmpty());
}

// Some dialogs are only hidden when they are done; those that are deleted are hidden first.
bool WelcomePlugin::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    if (pEvent->type() == QEvent::Hide) {
        pWatched->removeEventFilter(this);
        QMetaObject::invokeMethod(this, &WelcomePlugin::start, Qt::QueuedConnection);
    }
    return IPlugin::eventFilter(pWatched, pEvent);
}
