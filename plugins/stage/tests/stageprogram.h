// SPDX-License-Identifier: MIT
#pragma once

#include "stageeditor.h"
#include "stagefactory.h"
#include "stagetoolbar.h"
#include "stageview.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <mainwindow.h>
#include <support/coretest.h>
#include <ui/imainmdiarea.h>

/// A project with this many rectangles, sixty pixels wide and a hundred apart.
inline QByteArray projectText(int nElements)
{
    QByteArrayList elements;
    for (int i = 0; i < nElements; ++i)
        elements.append(
            R"({"type": "rectangle", "y": 20, "width": 60, "height": 60, "fill": "#ff0000", "id": "e)"
            + QByteArray::number(i) + R"(", "x": )" + QByteArray::number(20 + 100 * i) + '}');
    return R"({"format": "kelpa", "version": 1, "stage": {"width": 400, "height": 300, "background": "#ffffff",
 "frameRate": 24, "responsive": false}, "scenes": [{"name": "One", "elements": [)"
        + elements.join(',') + R"(]}, {"name": "Two", "elements": []}]})";
}

/// Gives each dialog for a file this path while it lives; an empty one cancels.
class FileAnswer
{
public:
    explicit FileAnswer(const QString *pPath)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [=] { answer(*pPath); });
        m_timer.start(1);
    }

private:
    static void answer(const QString &strPath)
    {
        auto *pDialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!pDialog || !pDialog->isVisible())
            return;
        if (strPath.isEmpty())
            return pDialog->reject();
        pDialog->findChild<QLineEdit *>("fileNameEdit")->setText(strPath);
        QMetaObject::invokeMethod(pDialog, "accept");
    }

    QTimer m_timer;
};

/// The main window with the stage in it, as the program has it.
template <typename Factory>
struct StageProgramWith : TestProgram
{
    StageProgramWith()
    {
        ExtensionSystem::PluginManager::addObject(&factory);
        window = std::make_unique<MainWindow>(nullptr);
        toolBar = new StageToolBar(window.get());
        window->addToolBar(toolBar);
        window->resize(900, 700);
        window->show();
    }
    ~StageProgramWith()
    {
        const auto editors = EditorManager::getEditors();
        const auto documents = DocumentManager::getDocuments();
        window.reset();
        qDeleteAll(editors);
        qDeleteAll(documents);
        ExtensionSystem::PluginManager::removeObject(&factory);
    }

    /// Opens a new project of three elements.
    StageEditor *open(const char *pName)
    {
        const bool bOpen = window->loadFile(write(pName, projectText(3)));
        return bOpen ? qobject_cast<StageEditor *>(EditorManager::activeEditor()) : nullptr;
    }
    [[nodiscard]] QTabBar *tabs() const { return window->getMdiArea()->findChild<QTabBar *>(); }
    [[nodiscard]] static QAction *command(const QString &strId)
    {
        return ActionManager::getAction(strId)->getAction();
    }

    Factory factory {nullptr};
    std::unique_ptr<MainWindow> window;
    StageToolBar *toolBar = nullptr;
};

using StageProgram = StageProgramWith<StageFactory>;
