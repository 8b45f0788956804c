// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QMap>
#include <QPointer>
#include <QToolBar>

class IEditor;
class MainWindow;
class StageEditor;

/// The tool bar with the commands for the stage of the active editor. They are in the menu "Edit" as well,
/// because the bar can be hidden, and live as long as the bar. The main window owns it. GUI thread only.
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
    QMap<QString, QAction *> m_commands; ///< by command id
    QAction *m_pDelete = nullptr;
    QList<QAction *> m_addActions;
};
