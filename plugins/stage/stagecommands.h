// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QPointF>
#include <QUndoCommand>

class StageModel;

// The edits of a project. Each command belongs to the undo stack of the document that owns the model.

/// Puts one element in front of all others.
class StageAddCommand : public QUndoCommand
{
public:
    StageAddCommand(StageModel *pModel, int nScene, const StageElement &element);
    void undo() override;
    void redo() override;

private:
    StageModel *const m_pModel;
    const int m_nScene;
    const int m_nIndex;
    const StageElement m_element;
};

/// Removes the elements at `indexes`, which may be in any order but must not hold duplicates.
class StageRemoveCommand : public QUndoCommand
{
public:
    StageRemoveCommand(StageModel *pModel, int nScene, QList<int> indexes);
    void undo() override;
    void redo() override;

private:
    StageModel *const m_pModel;
    const int m_nScene;
    QList<int> m_indexes;
    QList<StageElement> m_elements;
};

/// Moves elements. Successive steps by the keyboard with the same elements are merged into one entry of the
/// history, which vanishes if they lead back to the start; each drag with the mouse is an entry of its own.
class StageMoveCommand : public QUndoCommand
{
public:
    enum class Kind { Drag, Step };
    struct Move
    {
        int nIndex;
        QPointF from;
        QPointF to;
    };

    StageMoveCommand(StageModel *pModel, int nScene, const QList<Move> &moves, Kind kind);
    [[nodiscard]] int id() const override;
    bool mergeWith(const QUndoCommand *pOther) override;
    void undo() override;
    void redo() override;

private:
    StageModel *const m_pModel;
    const int m_nScene;
    QList<Move> m_moves;
    const Kind m_kind;
};
