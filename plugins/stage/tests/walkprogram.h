// SPDX-License-Identifier: MIT
#pragma once

#include "stageprogram.h"

/// Its dialogs answer at once.
class WalkFactory : public StageFactory
{
public:
    using StageFactory::StageFactory;

    IDocument *createDocument() override
    {
        pDocument = StageFactory::createDocument();
        return pDocument;
    }
    ICreateDocumentDlg *createNewDocumentDialog() override
    {
        pDialog = new FakeNewDialog(strPath, nResult, nWidth);
        return pDialog;
    }
    QString getOpenFileName() override { return strPath; }

    QString strPath;
    int nResult = QDialog::Accepted;
    int nWidth = 1;
    QPointer<IDocument> pDocument;
    QPointer<ICreateDocumentDlg> pDialog;
};

/// The main window with the stage and a stand-in for the welcome page, which a walk goes through.
struct WalkProgram : StageProgramWith<WalkFactory>
{
    explicit WalkProgram(bool bPaints)
    {
        welcome.setAcceptDrops(true);
        window->setWelcomeWidget(&welcome);
        window->setVisibleWelcomeWidget(true);
        window->resize(500, 400);
        window->setUpdatesEnabled(bPaints);
    }

    [[nodiscard]] static StageView *view()
    {
        return static_cast<StageEditor *>(EditorManager::activeEditor())->getView();
    }

    [[nodiscard]] int backups() const
    {
        int nCount = 0;
        for (const QString &strFolder : {filePath("projects"), window->getDefaultTempPath()})
            nCount += int(QDir(strFolder).entryList({"*.backup*"}, QDir::Files).size());
        return nCount;
    }

    // What lies under the mouse there.
    [[nodiscard]] QWidget *dropTarget()
    {
        return EditorManager::activeEditor() ? window->getMdiArea()->childAt(200, 200) : &welcome;
    }

    QWidget welcome;
    const int nOldBackups = backups();
};

/// Takes away the folder of the projects while the result lives: nothing can be written there.
inline auto takeAway(const QString &strFolder, bool bGone)
{
    const bool bTaken = bGone && QDir().rename(strFolder, strFolder + ".gone");
    return qScopeGuard([=] { bTaken &&QDir().rename(strFolder + ".gone", strFolder); });
}
