// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <ui/kpnotificationbar.h>
#include <ui/kpstyledframe.h>

#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <map>
#include <memory>

class ActionContainer;
class ActionManager;
struct CommandRow;
class ContextManager;
class DocumentManager;
class EditorManager;
class ICore;
class IDocument;
class IDocumentFactory;
class IMainMdiArea;
class IMainMenuWidget;
class IOptionsDlg;
class ProjectController;
class QMdiSubWindow;
class QToolBar;
class QWebChannel;
class QWebSocketServer;
class TempFolder;
class WebSocketClientWrapper;

/// The program's one top-level window and owner of what the core builds: server and channel for HTML pages,
/// the managers, the area of documents. The plug-in object owns it. GUI thread only.
class CORE_EXPORT MainWindow : public KPStyledFrame<QMainWindow>
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    explicit MainWindow(QWidget *pParent);
    ~MainWindow() override;

    /// Always true; the text of an error stays as it is.
    bool init(QString *) { return true; }

    /// Shows the window, maximized on the first run, and opens the projects on the command line in the next
    /// turn of the event loop.
    void extensionsInitialized();
    void aboutToShutdown() { }

    /// Whether the user's store has no group "Designer", in any case; also without a store.
    [[nodiscard]] static bool IsFirstRun();

    /// Folder for working files of documents. It is made if it does not exist; that it could be is not
    /// checked.
    [[nodiscard]] QString getDefaultTempPath() const;

    /// Removes that folder with all in it. The first entry that cannot be removed stops it.
    void removeDefaultTempDir();

    /// Closes every document without regard to the answers, and ends the program.
    void forceQuit();

    [[nodiscard]] QWebSocketServer *getServer() const { return m_pServer; }
    [[nodiscard]] QWebChannel *getChannel() const { return m_pChannel; }

    /// What a page of another origin than "qrc:" appends to the server's URL, as "?key=" and this text.
    [[nodiscard]] QString getServerKey() const;
    [[nodiscard]] IMainMdiArea *getMdiArea() const { return m_pMdiArea; }
    [[nodiscard]] QToolBar *getFileToolbar() const { return m_pFileToolbar; }

    /// Null when the title bar was replaced by setMenuWidget().
    [[nodiscard]] KPNotificationBar *getNotificationBar();

    /// As KPNotificationBar::show(), and its end; nothing without the bar.
    void showNotification(
        const QString &strText, KPNotificationBar::Type type, const QString &strButtonText, bool bClosable);
    void hideNotification();

    /// The preferences dialog, made by the first factory on first use; null without a factory.
    [[nodiscard]] IOptionsDlg *getOptionsDialog();

    /// These two only emit updateWindowFilePath() and updateModified(): the title bar shows them.
    void setWindowFilePath(const QString &strFileName) { emit updateWindowFilePath(strFileName); }
    void setWindowModified(bool bModified) { emit updateModified(bModified); }

    /// Of the core's own command; the proxy follows.
    void enableCommand(const char *pId, bool bEnabled);

    /// The page to show while no editor is open; not taken over.
    void setWelcomeWidget(QWidget *pWidget);

    [[nodiscard]] QList<QDockWidget *> getListDockWidgetsByArea(Qt::DockWidgetArea area) const;

    /// As those of QWidget, but a maximized window keeps the place it had before, whatever was done to it to
    /// leave room for a task bar that hides itself.
    [[nodiscard]] QRect normalGeometry() const;
    [[nodiscard]] QByteArray saveGeometry() const;

signals:
    void updateWindowFilePath(const QString &fileName);
    void updateModified(bool isModified);

    /// The display scale is `nDPI` percent now.
    void dpiChanged(int nDPI);

    /// Every plug-in is there and the window is shown.
    void extsInitialized();

public slots:
    /// Also tells the page to fetch the recent projects again, each time it is to be shown.
    void setVisibleWelcomeWidget(bool bVisible);

    /// Activates the editor that shows the file already, or lets the first factory for its suffix open it.
    /// False: nothing was opened and the user was told why.
    bool loadFile(const QString &strFileName);

    /// Makes an editor for a document that is open already and takes it into every registry. False: no
    /// factory knows its suffix, and the document stays with the caller.
    bool loadOpenedDocument(IDocument *pDoc, bool bAddToRecentFile);

    /// Makes the menu of recent projects follow the stored list.
    void updateRecentFileActions();

    /// Brings the window to the front; a minimized one is restored.
    void raiseUp();
    void openFilesPassedAsArguments();
    void fileNew();
    void fileOpen();
    void fileSaveAs();
    void fileClose();

    /// Opens the project of the sending action; one that is gone may be removed from the list.
    void recentFileOpen();
    void fileSave();
    void fileExit();
    void languageChanged(QAction *pAction);

    /// Makes the context of the widget that has the focus the current one; menus with the focus change
    /// nothing.
    void updateFocusWidget(QWidget *old, QWidget *now);
    void onPreferences();
    void onHelpContents();
    void updateSaveAsMenu();

    /// Enables the Save command; `bDisabled` is whether the active undo stack is clean.
    void onEnabledSaveActionChanged(bool bDisabled);
    void updateActivatedMdiSubFilePath(QMdiSubWindow *mdiSubWindow);

    /// Does nothing; plug-ins connect to it by name.
    void activationChangeFiltered() { }

    /// The sender, a document, leaves every registry and is deleted, and its editor with it.
    void onDocumentRequestClosing(bool bDeleteLater);
    void onDPIChanged();
    void onScreenChanged();

protected:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    void closeEvent(QCloseEvent *pEvent) override;
    bool event(QEvent *pEvent) override;
    void moveEvent(QMoveEvent *pEvent) override;
    void resizeEvent(QResizeEvent *pEvent) override;
    bool nativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult) override;
    void changeEvent(QEvent *pEvent) override;
    [[nodiscard]] bool isStyledFrameTitleBar(int x, int y) const override;

private slots:
    void onTimerDPICheck();

private:
    void startServer();
    void createManagers();
    void createMdiArea();
    void createTitleBar();
    void connectEvents();

    void initActions();
    void createCommand(const CommandRow &row);
    void insertSubMenu(const QString &strId, ActionContainer *pParent);
    void createLanguageMenu(ActionContainer *pViewMenu);
    void createToolBars();
    void listToolBars();
    void reloadIcons();

    [[nodiscard]] static IDocumentFactory *selectDocumentFactory();
    bool handleDrop(QDropEvent *pEvent);

    void startDpiCheck();
    void watchScreen();
    void fixAutoHideTaskbar();
    void followMaximized(bool bByProgram);
    void giveNormalGeometryBack();

    QWebSocketServer *m_pServer = nullptr;
    QWebChannel *m_pChannel = nullptr;
    WebSocketClientWrapper *m_pClientWrapper = nullptr;
    IMainMdiArea *m_pMdiArea = nullptr;
    QPointer<IMainMenuWidget> m_pTitleBar;
    QToolBar *m_pFileToolbar = nullptr;
    std::map<QString, QAction *> m_actions; // the core's own, by command id
    QAction *m_pCurrentLanguage = nullptr;
    DocumentManager *m_pDocumentManager = nullptr;
    EditorManager *m_pEditorManager = nullptr;
    ActionManager *m_pActionManager = nullptr;
    ContextManager *m_pContextManager = nullptr;
    ICore *m_pCore = nullptr;
    QPointer<IOptionsDlg> m_pOptionsDlg;
    int m_nDisplayScale = 0;
    QTimer m_dpiCheckTimer;
    QRect m_normalGeometry; // of a maximized window that was made a line lower
    QMetaObject::Connection m_screenScale;
    std::map<QString, QString> m_themedIcons; // icon name by command id
    std::unique_ptr<ProjectController> m_pProjects;
    std::unique_ptr<TempFolder> m_pTempFolder;
};
