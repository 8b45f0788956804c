// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QPointer>
#include <QToolBar>

class IEditor;
class MainWindow;
class StageEditor;

/// What can be done on the stage of the active editor, and the commands "Edit.Undo" and "Edit.Redo", which
/// live as long as the bar. The main window owns it. GUI thread only.
class StageToolBar : public QToolBar
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageToolBar)

public:
    explicit StageToolBar(MainWindow *pMainWindow);
    ~StageToolBar() override;

private:
    void addUndoCommands(MainWindow *pMainWindow);
    void addElementActions();
    void loadIcons();
    void setEditor(IEditor *pEditor);
    void refresh();
    void addElement(StageElement::Type type);

    QPointer<IEditor> m_pEditor;
    QAction *m_pUndo = nullptr;
    QAction *m_pRedo = nullptr;
    QAction *m_pDelete = nullptr;
    QList<QAction *> m_addActions;
};
