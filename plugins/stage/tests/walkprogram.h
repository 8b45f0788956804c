// SPDX-License-Identifier: MIT
#pragma once

#include "stageeditor.h"
#include "stagefactory.h"
#include "stagetoolbar.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <mainwindow.h>
#include <support/coretest.h>
#include <ui/imainmdiarea.h>

#include <QDir>
#include <QTabBar>

inline QByteArray projectText(int nElements)
{
    QByteArrayList elements;
    for (int i = 0; i < nElements; ++i)
        elements.append(
            QByteArrayLiteral(R"({"type": "rectangle", "x": 5, "y": 5, "width": 9, "height": 9, "id": "e)")
            + QByteArray::number(i) + QByteArrayLiteral(R"("})"));
    return QByteArrayLiteral(R"({"format": "kelpa", "version": 1, "stage": {"width": 100, "height": 80,
 "background": "#ffffff", "frameRate": 24, "responsive": false}, "scenes": [{"name": "One", "elements": [)")
        + elements.join(',') + QByteArrayLiteral("]}]}");
}

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
        struct Dialog : FakeNewDialog
        {
            Dialog(const WalkFactory &factory)
                : FakeNewDialog(factory.strPath, factory.nResult)
                , m_nWidth(factory.nWidth)
            {
            }
            int getFirstValue() override { return m_nWidth; }
            const int m_nWidth;
        };
        pDialog = new Dialog(*this);
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
struct WalkProgram : TestProgram
{
    explicit WalkProgram(bool bPaints)
    {
        ExtensionSystem::PluginManager::addObject(&factory);
        window = std::make_unique<MainWindow>(nullptr);
        window->addToolBar(new StageToolBar(window.get()));
        welcome.setAcceptDrops(true);
        window->setWelcomeWidget(&welcome);
        window->setVisibleWelcomeWidget(true);
        window->resize(500, 400);
        window->setUpdatesEnabled(bPaints);
        window->show();
    }
    ~WalkProgram()
    {
        const auto editors = EditorManager::getEditors();
        const auto documents = DocumentManager::getDocuments();
        window.reset();
        qDeleteAll(editors);
        qDeleteAll(documents);
        ExtensionSystem::PluginManager::removeObject(&factory);
    }

    [[nodiscard]] static QAction *command(const char *pId)
    {
        return ActionManager::getAction(QLatin1String(pId))->getAction();
    }
    [[nodiscard]] static StageView *view()
    {
        return static_cast<StageEditor *>(EditorManager::activeEditor())->getView();
    }
    [[nodiscard]] QTabBar *tabs() const { return window->getMdiArea()->findChild<QTabBar *>(); }

    // What lies under the mouse there.
    [[nodiscard]] QWidget *dropTarget()
    {
        return EditorManager::activeEditor() ? window->getMdiArea()->childAt(200, 200) : &welcome;
    }

    QWidget welcome;
    WalkFactory factory {nullptr};
    std::unique_ptr<MainWindow> window;
};

/// Takes away the folder of the projects while it lives: nothing can be written there.
class FolderGone
{
public:
    FolderGone(const QString &strFolder, bool bGone)
        : m_strFolder(strFolder)
        , m_bGone(bGone && QDir().rename(strFolder, strFolder + QStringLiteral(".gone")))
    {
    }
    ~FolderGone()
    {
        if (m_bGone)
            QDir().rename(m_strFolder + QStringLiteral(".gone"), m_strFolder);
    }
    Q_DISABLE_COPY_MOVE(FolderGone)

private:
    const QString m_strFolder;
    const bool m_bGone;
};
