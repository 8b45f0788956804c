// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <memory>

class ICreateDocumentDlg;
class IDocument;
class IDocumentFactory;
class QAction;

/// How a project comes in, is saved and goes: its document, its editor, its undo stack and its entry in the
/// list of recent projects. The main window owns it, and its slots hand over to it. GUI thread only.
class ProjectController
{
    Q_DISABLE_COPY_MOVE(ProjectController)

public:
    ProjectController() = default;

    /// Null without an active editor, and for one without a document.
    [[nodiscard]] static IDocument *getActiveDocument();

    /// As MainWindow::loadFile() and MainWindow::loadOpenedDocument().
    bool load(const QString &strFileName);
    bool loadOpened(IDocument *pDoc, bool bAddToRecentFile);

    /// Lets the dialog of the factory describe a new project and opens it. Null does nothing.
    void create(IDocumentFactory *pFactory);

    /// The commands for one document; null does nothing.
    void save(IDocument *pDocument);
    void saveAs(IDocument *pDocument);
    static void close(IDocument *pDocument);

    /// Asks all documents, those with an editor from the last to the first, then the others, and stops at the
    /// first that refuses. What was closed until then stays closed.
    static bool closeAll();

    /// Takes the document, which asked for it, and its editor out of every registry and deletes both.
    void remove(IDocument *pDocument, bool bDeleteLater);

    /// The menu of recent projects.
    void createRecentCommands();
    void updateRecentMenu();
    void openRecent(const QString &strPath);

private:
    void createDocument(IDocumentFactory *pFactory, std::unique_ptr<IDocument> pDoc,
        std::unique_ptr<ICreateDocumentDlg> pDialog);
    void addRecent(const QString &strPath);

    QList<QAction *> m_recentActions; // children of the main window
};
