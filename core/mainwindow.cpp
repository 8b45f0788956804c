// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextmanager.h"
#include "displayscale.h"
#include "document/documentmanager.h"
#include "document/editormanager.h"
#include "document/idocument.h"
#include "document/idocumentfactory.h"
#include "document/ieditor.h"
#include "icore.h"
#include "lazyicon.h"
#include "ui/imainmdiarea.h"
#include "ui/ioptionsdlg.h"
#include "webchannel/websocketclientwrapper.h"
#include "webchannel/websockettransport.h"

#include <extensionsystem/pluginmanager.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QMdiSubWindow>
#include <QNetworkProxyFactory>
#include <QPointer>
#include <QScopeGuard>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QWebChannel>
#include <QWebSocketServer>

#include <utility>

using ExtensionSystem::PluginManager;

namespace {

const QString s_tempFolder = QStringLiteral("%1-%2").arg(QStringLiteral("ORVEN"), QStringLiteral("Kelpa"));

bool isLink(const QFileInfo &entry)
{
    return entry.isSymLink() || entry.isJunction();
}

bool removeRecursively(const QString &strPath);

// A link goes as a link, wherever it leads; on Windows those to folders are folders of a kind.
bool removeEntry(const QFileInfo &entry)
{
    const QString strPath = entry.absoluteFilePath();
    if (!isLink(entry))
        return entry.isDir() ? removeRecursively(strPath) : QFile::remove(strPath);
    return QFile::remove(strPath) || QDir().rmdir(strPath);
}

// Removes the folder and all in it; the first failure stops the walk.
bool removeRecursively(const QString &strPath)
{
    const QDir dir(strPath);
    if (isLink(QFileInfo(strPath)) || !dir.exists())
        return false;
    const auto entries = dir.entryInfoList(
        QDir::Files | QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::DirsFirst);
    for (const QFileInfo &entry : entries) {
        if (!removeEntry(entry))
            return false;
    }
    return dir.rmdir(dir.absolutePath());
}

} // namespace

MainWindow::MainWindow(QWidget *pParent)
    : KPStyledFrame<QMainWindow>(pParent, Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("MainWindow"));
    m_nDisplayScale = static_cast<int>(devicePixelRatioF() * 100);
    setAcceptDrops(true);
    installEventFilter(this); // drops beside the area of documents
    QNetworkProxyFactory::setUseSystemConfiguration(true);

    startServer();
    statusBar()->setSizeGripEnabled(false);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    setWindowIcon(lazyIcon(QStringLiteral(":/app/images/app_icon.ico")));

    createManagers();
    createMdiArea();
    createTitleBar();
    initActions();
    createToolBars();
    connectEvents();
    // Not in percent: the first check after the start always finds a change, and plug-ins hear the scale.
    m_nDisplayScale = DisplayScale::logicalDpi(this) / 96;
}

void MainWindow::connectEvents()
{
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::updateFocusWidget);
    connect(&m_dpiCheckTimer, &QTimer::timeout, this, &MainWindow::onTimerDPICheck);
    connect(this, &MainWindow::dpiChanged, this, &MainWindow::onDPIChanged);
    watchScreen();
}

void MainWindow::startServer()
{
    const QString strName = QStringLiteral("KPServer");
    m_pServer = new QWebSocketServer(strName, QWebSocketServer::NonSecureMode, this);
    m_pServer->setObjectName(strName);
    if (!m_pServer->listen(QHostAddress::LocalHost, 0))
        qFatal("Failed to open web socket server.");
    m_pClientWrapper = new WebSocketClientWrapper(m_pServer, nullptr);
    m_pChannel = new QWebChannel(nullptr);
    connect(m_pClientWrapper, &WebSocketClientWrapper::clientConnected, m_pChannel, &QWebChannel::connectTo);
}

QString MainWindow::getServerKey() const
{
    return m_pClientWrapper->getKey();
}

void MainWindow::createManagers()
{
    m_pCore = new ICore(this);
    m_pDocumentManager = new DocumentManager;
    m_pEditorManager = new EditorManager;
    // These two live until the process ends, whatever becomes of this window.
    m_pActionManager = ActionManager::getInstance() ? ActionManager::getInstance() : new ActionManager;
    m_pContextManager = ContextManager::getInstance() ? ContextManager::getInstance() : new ContextManager;
    ActionManager::initialize();
    DocumentManager::setSettings(PluginManager::settings());
    DocumentManager::readSettings();
}

void MainWindow::createMdiArea()
{
    connect(m_pEditorManager, &EditorManager::editorActivated, this, &MainWindow::updateSaveAsMenu);
    m_pMdiArea = new IMainMdiArea(this);
    m_pMdiArea->setViewMode(QMdiArea::TabbedView);
    m_pMdiArea->setDocumentMode(true);
    m_pMdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_pMdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_pMdiArea->setWindowIcon(lazyIcon(QStringLiteral(":/app/images/project_icon.ico")));
    m_pMdiArea->setFocusPolicy(Qt::ClickFocus);
    setContentsMargins(1, 1, 1, 1);
    connect(m_pMdiArea, &QMdiArea::subWindowActivated, this, &MainWindow::updateActivatedMdiSubFilePath);
    setCentralWidget(m_pMdiArea);

    if (auto *pTabBar = m_pMdiArea->findChild<QTabBar *>()) {
        pTabBar->setExpanding(false);
        pTabBar->setTabsClosable(true);
        QFont font = pTabBar->font();
        font.setBold(true);
        pTabBar->setFont(font);
        pTabBar->setDrawBase(false);
    }
}

// The managers and the core go first: what the window's children do in their destructors finds none of them.
MainWindow::~MainWindow()
{
    delete std::exchange(m_pDocumentManager, nullptr);
    delete std::exchange(m_pEditorManager, nullptr);
    delete std::exchange(m_pCore, nullptr);

    disconnect(qApp, &QApplication::focusChanged, this, &MainWindow::updateFocusWidget);
    disconnect(m_pClientWrapper, &WebSocketClientWrapper::clientConnected, m_pChannel, nullptr);
    m_dpiCheckTimer.stop();
    disconnect(&m_dpiCheckTimer, nullptr, this, nullptr);
    disconnect(this, &MainWindow::dpiChanged, this, nullptr);
    const auto objects = m_pChannel->registeredObjects();
    for (QObject *pObject : objects)
        m_pChannel->deregisterObject(pObject);
    m_pServer->close();
    delete std::exchange(m_pClientWrapper, nullptr);
    delete std::exchange(m_pChannel, nullptr);
    delete std::exchange(m_pServer, nullptr);
    delete std::exchange(m_pMdiArea, nullptr);
}

void MainWindow::extensionsInitialized()
{
    show();
    if (IsFirstRun())
        setWindowState(Qt::WindowMaximized);
    QTimer::singleShot(0, this, &MainWindow::openFilesPassedAsArguments);
    emit extsInitialized();
}

bool MainWindow::IsFirstRun()
{
    const QSettings *pSettings = PluginManager::settings();
    return !pSettings || !pSettings->childGroups().contains(QStringLiteral("Designer"), Qt::CaseInsensitive);
}

QString MainWindow::getDefaultTempPath() const
{
    QDir temp = QDir::temp();
    if (!temp.exists(s_tempFolder))
        temp.mkdir(s_tempFolder);
    return temp.absoluteFilePath(s_tempFolder);
}

void MainWindow::removeDefaultTempDir()
{
    if (QDir::temp().exists(s_tempFolder))
        removeRecursively(QDir::temp().absoluteFilePath(s_tempFolder));
}

void MainWindow::forceQuit()
{
    const auto editors = EditorManager::getEditors();
    const QList<QPointer<IEditor>> watched(editors.cbegin(), editors.cend());
    for (const QPointer<IEditor> &pEditor : watched) {
        if (const QPointer<IDocument> pDoc = pEditor ? pEditor->getDocument() : nullptr) {
            pDoc->close();
            if (pDoc)
                emit pDoc->requestClosing(false);
        }
    }
    // QCoreApplication::quit() would first ask the windows, and so the user.
    QCoreApplication::exit(0);
}

IOptionsDlg *MainWindow::getOptionsDialog()
{
    if (!m_pOptionsDlg) {
        if (IDocumentFactory *pFactory = selectDocumentFactory())
            m_pOptionsDlg = pFactory->createOptionsDialog();
    }
    return m_pOptionsDlg;
}

void MainWindow::updateActivatedMdiSubFilePath(QMdiSubWindow *mdiSubWindow)
{
    if (!mdiSubWindow)
        return;
    emit updateModified(mdiSubWindow->isWindowModified());
    emit updateWindowFilePath(mdiSubWindow->windowFilePath());
}

void MainWindow::setWelcomeWidget(QWidget *pWidget)
{
    m_pMdiArea->setWelcomeWidget(pWidget);
    if (pWidget)
        pWidget->installEventFilter(this);
}

// isHidden() and not isVisible(): before the window is shown nothing is visible, and the page would flash
// although a project was given on the command line.
void MainWindow::setVisibleWelcomeWidget(bool bVisible)
{
    QWidget *pWidget = m_pMdiArea->getWelcomeWidget();
    if (pWidget && pWidget->isHidden() == bVisible)
        pWidget->setVisible(bVisible);
    if (bVisible)
        emit m_pMdiArea->resetRecentFiles();
}

QList<QDockWidget *> MainWindow::getListDockWidgetsByArea(Qt::DockWidgetArea area) const
{
    QList<QDockWidget *> docks = findChildren<QDockWidget *>();
    docks.removeIf([&](QDockWidget *pDock) { return dockWidgetArea(pDock) != area; });
    return docks;
}

void MainWindow::raiseUp()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

// Stops at the first document that refuses. Closing one may delete others, so they are watched. Each is
// shown, and named in the title, before it asks: two projects may have the same name.
bool MainWindow::closeDocuments(const QList<QPointer<IDocument>> &documents)
{
    for (const QPointer<IDocument> &pDoc : documents) {
        if (IEditor *pEditor = pDoc ? EditorManager::getEditorOfDocument(pDoc) : nullptr) {
            EditorManager::activateEditor(pEditor);
            updateActivatedMdiSubFilePath(m_pMdiArea->activeSubWindow()); // the one before left no title
        }
        if (!pDoc)
            continue;
        if (!pDoc->close())
            return false;
        if (pDoc)
            emit pDoc->requestClosing(false);
    }
    return true;
}

void MainWindow::closeEvent(QCloseEvent *pEvent)
{
    // A project handed over while the questions are asked, or after the last, would be lost.
    auto stays = qScopeGuard([] { PluginManager::setHearsOtherStarts(true); });
    PluginManager::setHearsOtherStarts(false);
    ICore::saveSettings();
    QList<QPointer<IDocument>> shown;
    for (const IEditor *pEditor : EditorManager::getEditors())
        shown.prepend(pEditor->getDocument());
    // Looked at after the first walk: a project that came in meanwhile is asked too.
    const auto rest = [] {
        const auto &documents = DocumentManager::getDocuments();
        return QList<QPointer<IDocument>>(documents.cbegin(), documents.cend());
    };
    if (!closeDocuments(shown) || !closeDocuments(rest())) {
        pEvent->ignore();
        return;
    }
    removeDefaultTempDir();
    stays.dismiss();
    pEvent->accept();
}
