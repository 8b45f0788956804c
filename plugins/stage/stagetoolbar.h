// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QMap>
#include <QPointer>
#include <QToolBar>

class IEditor;
class MainWindow;
class StageEditor;

/// What can be done on the stage of the active editor, as commands that live as long as the bar and are in
/// the menu "Edit" too: the bar can be hidden. The main window owns it. GUI thread only.
class StageToolBar : public QToolBar
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageToolBar)

public:
    explicit StageToolBar(MainWindow *pMainWindow);
    ~StageToolBar() override;

private:
    void addUndoCommands();
    void addElementActions();
    void addCommand(const QString &strId, QAction *pAction, const QString &strDescription = {},
        QKeySequence::StandardKey key = QKeySequence::UnknownKey);
    void loadIcons();
    void setEditor(IEditor *pEditor);
    void refresh();
    void addElement(StageElement::Type type);

    QPointer<IEditor> m_pEditor;
    QMap<QString, QAction *> m_commands; // by id
    QAction *m_pDelete = nullptr;
    QList<QAction *> m_addActions;
};
