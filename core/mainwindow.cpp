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
#include "imagefiles/lazyicon.h"
#include "iui.h"
#include "projectcontroller.h"
#include "tempfolder.h"
#include "ui/imainmdiarea.h"
#include "ui/imainmenuwidget.h"
#include "ui/ioptionsdlg.h"
#include "webchannel/websocketclientwrapper.h"
#include "webchannel/websockettransport.h"

#include <extensionsystem/pluginmanager.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QNetworkProxyFactory>
#include <QScopeGuard>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QUrl>
#include <QWebChannel>
#include <QWebSocketServer>

#include <utility>

using ExtensionSystem::PluginManager;

MainWindow::MainWindow(QWidget *pParent)
    : KPStyledFrame<QMainWindow>(pParent, Qt::FramelessWindowHint)
    , m_pProjects(std::make_unique<ProjectController>())
    , m_pTempFolder(std::make_unique<TempFolder>(
          QStringLiteral("%1-%2").arg(QLatin1String("ORVEN"), QLatin1String("Kelpa"))))
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

void MainWindow::createTitleBar()
{
    m_pTitleBar = new IMainMenuWidget(this, IUi::getTitle(), IUi::getIcon());
    setMenuWidget(m_pTitleBar);
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
    return m_pTempFolder->getPath();
}

void MainWindow::removeDefaultTempDir()
{
    m_pTempFolder->remove();
}

void MainWindow::forceQuit()
{
    const auto &editors = EditorManager::getEditors();
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

IDocumentFactory *MainWindow::selectDocumentFactory()
{
    return PluginManager::object<IDocumentFactory>();
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

void MainWindow::closeEvent(QCloseEvent *pEvent)
{
    // A project handed over while the questions are asked, or after the last, would be lost.
    auto stays = qScopeGuard([] { PluginManager::setHearsOtherStarts(true); });
    PluginManager::setHearsOtherStarts(false);
    ICore::saveSettings();
    if (!ProjectController::closeAll()) {
        pEvent->ignore();
        return;
    }
    removeDefaultTempDir();
    stays.dismiss();
    pEvent->accept();
}

void MainWindow::openFilesPassedAsArguments()
{
    const QStringList arguments = PluginManager::arguments();
    for (const QString &strArgument : arguments)
        loadFile(strArgument);
}

bool MainWindow::loadFile(const QString &strFileName)
{
    return m_pProjects->load(strFileName);
}

bool MainWindow::loadOpenedDocument(IDocument *pDoc, bool bAddToRecentFile)
{
    return m_pProjects->loadOpened(pDoc, bAddToRecentFile);
}

void MainWindow::fileNew()
{
    m_pProjects->create(selectDocumentFactory());
}

void MainWindow::fileOpen()
{
    IDocumentFactory *pFactory = selectDocumentFactory();
    const QString strPath = pFactory ? pFactory->getOpenFileName() : QString();
    if (!strPath.isEmpty())
        loadFile(strPath);
}

void MainWindow::fileSave()
{
    m_pProjects->save(ProjectController::getActiveDocument());
}

void MainWindow::fileSaveAs()
{
    m_pProjects->saveAs(ProjectController::getActiveDocument());
}

void MainWindow::fileClose()
{
    ProjectController::close(ProjectController::getActiveDocument());
}

void MainWindow::fileExit()
{
    close();
}

void MainWindow::onDocumentRequestClosing(bool bDeleteLater)
{
    m_pProjects->remove(qobject_cast<IDocument *>(sender()), bDeleteLater);
}

void MainWindow::updateRecentFileActions()
{
    m_pProjects->updateRecentMenu();
}

void MainWindow::recentFileOpen()
{
    if (const auto *pAction = qobject_cast<QAction *>(sender()))
        m_pProjects->openRecent(pAction->data().toString());
}

// Watches the area of documents and the welcome widget for projects dropped on them.
bool MainWindow::eventFilter(QObject *pWatched, QEvent *pEvent)
{
    switch (pEvent->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        static_cast<QDragMoveEvent *>(pEvent)->acceptProposedAction();
        return true;
    case QEvent::DragLeave:
        pEvent->accept();
        return false;
    case QEvent::Drop:
        return handleDrop(static_cast<QDropEvent *>(pEvent));
    default:
        return KPStyledFrame<QMainWindow>::eventFilter(pWatched, pEvent);
    }
}

// Only the first URL counts. A drop with any is consumed.
bool MainWindow::handleDrop(QDropEvent *pEvent)
{
    const QList<QUrl> urls = pEvent->mimeData()->urls();
    if (urls.isEmpty())
        return false;
    const QString strPath = urls.first().toLocalFile();
    if (IDocument::isProjectFile(strPath) && loadFile(strPath))
        pEvent->acceptProposedAction();
    return true;
}

KPNotificationBar *MainWindow::getNotificationBar()
{
    return m_pTitleBar ? m_pTitleBar->getNotificationBar() : nullptr;
}

void MainWindow::showNotification(
    const QString &strText, KPNotificationBar::Type type, const QString &strButtonText, bool bClosable)
{
    if (KPNotificationBar *pBar = getNotificationBar())
        pBar->show(strText, type, strButtonText, bClosable);
}

void MainWindow::hideNotification()
{
    if (KPNotificationBar *pBar = getNotificationBar())
        pBar->hide();
}

bool MainWindow::isStyledFrameTitleBar(int x, int y) const
{
    if (!m_pTitleBar)
        return false;
    const QPoint point = m_pTitleBar->mapFrom(this, QPoint(x, y));
    return m_pTitleBar->isTitleBarArea(point.x(), point.y());
}

void MainWindow::changeEvent(QEvent *pEvent)
{
    if (pEvent->type() == QEvent::WindowStateChange)
        followMaximized(!pEvent->spontaneous());
    KPStyledFrame<QMainWindow>::changeEvent(pEvent);
}
