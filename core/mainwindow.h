// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <ui/kpnotificationbar.h>
#include <ui/kpstyledframe.h>

#include <QMainWindow>
#include <QPointer>

class ActionManager;
class ContextManager;
class DocumentManager;
class EditorManager;
class ICore;
class ICreateDocumentDlg;
class IDocument;
class IDocumentFactory;
class IMainMdiArea;
class IMainMenuWidget;
class IOptionsDlg;
class QMdiSubWindow;
class QWebChannel;
class QWebSocketServer;
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

    /// Always true; `pErrorString` stays as it is.
    bool init(QString *pErrorString);

    /// Shows the window, maximised on the first run, and opens the projects on the command line in the next
    /// turn of the event loop.
    void extensionsInitialized();
    void aboutToShutdown();

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
    [[nodiscard]] KPNotificationBar *getNotificationBar();

    /// As KPNotificationBar::show(), and its end.
    void showNotification(
        const QString &strText, KPNotificationBar::Type type, const QString &strButtonText, bool bClosable);
    void hideNotification();

    /// The preferences dialog, made by the first factory on first use; null without a factory.
    [[nodiscard]] IOptionsDlg *getOptionsDialog();

    /// These two only emit updateWindowFilePath() and updateModified(): the title bar shows them.
    void setWindowFilePath(const QString &strFileName);
    void setWindowModified(bool bModified);

    /// The page to show while no editor is open; not taken over.
    void setWelcomeWidget(QWidget *pWidget);

    [[nodiscard]] QList<QDockWidget *> getListDockWidgetsByArea(Qt::DockWidgetArea area) const;

signals:
    void updateWindowFilePath(const QString &fileName);
    void updateModified(bool isModified);
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

    /// Brings the window to the front; a minimised one is restored.
    void raiseUp();
    void openFilesPassedAsArguments();
    void fileNew();
    void fileOpen();
    void fileSaveAs();
    void fileClose();
    void fileSave();
    void fileExit();

    /// Makes the context of the widget that has the focus the current one; menus with the focus change
    /// nothing.
    void updateFocusWidget(QWidget *old, QWidget *now);
    void updateActivatedMdiSubFilePath(QMdiSubWindow *pSubWindow);

    /// The sender, a document, leaves every registry and is deleted, and its editor with it.
    void onDocumentRequestClosing(bool bDeleteLater);

protected:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    void closeEvent(QCloseEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;
    [[nodiscard]] bool isStyledFrameTitleBar(int x, int y) const override;

private:
    void startServer();
    void createManagers();
    void createMdiArea();
    void createTitleBar();
    void initActions();
    bool closeDocuments(const QList<QPointer<IDocument>> &documents);
    [[nodiscard]] static IDocumentFactory *selectDocumentFactory();
    bool createDocument(IDocumentFactory *pFactory, IDocument *pDoc, ICreateDocumentDlg *pDialog);
    void attachNew(IDocumentFactory *pFactory, IDocument *pDoc);
    bool handleDrop(QDropEvent *pEvent);
    void updateWelcomeWidget();

    QWebSocketServer *m_pServer = nullptr;
    WebSocketClientWrapper *m_pClientWrapper = nullptr;
    QWebChannel *m_pChannel = nullptr;
    IMainMdiArea *m_pMdiArea = nullptr;
    IMainMenuWidget *m_pTitleBar = nullptr;
    DocumentManager *m_pDocumentManager = nullptr;
    EditorManager *m_pEditorManager = nullptr;
    ActionManager *m_pActionManager = nullptr;
    ContextManager *m_pContextManager = nullptr;
    ICore *m_pCore = nullptr;
    QPointer<IOptionsDlg> m_pOptionsDlg;
    int m_nDisplayScale = 0;
};
