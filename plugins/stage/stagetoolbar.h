// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QPointer>
#include <QToolBar>

class IEditor;
class MainWindow;
class StageEditor;

/// The commands on projects and on the stage of the active editor. The main window owns it. GUI thread only.
class StageToolBar : public QToolBar
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageToolBar)

public:
    explicit StageToolBar(MainWindow *pMainWindow);
    ~StageToolBar() override;

private:
    void addFileActions(MainWindow *pMainWindow);
    void addUndoActions();
    void addElementActions();
    void setEditor(IEditor *pEditor);
    void refresh();
    void addElement(StageElement::Type type);

    QPointer<IEditor> m_pEditor;
    QAction *m_pSave = nullptr;
    QAction *m_pDelete = nullptr;
    QList<QAction *> m_addActions;
};
