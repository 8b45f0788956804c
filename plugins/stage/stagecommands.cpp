// SPDX-License-Identifier: MIT
#include "stagecommands.h"

#include "stagemodel.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct StageCommands
{
    Q_DECLARE_TR_FUNCTIONS(StageCommands)
};

// The coordinates are compared one by one, because operator== of QPointF has a tolerance.
bool leadsNowhere(const StageMoveCommand::Move &move)
{
    return move.from.x() == move.to.x() && move.from.y() == move.to.y();
}

} // namespace

StageAddCommand::StageAddCommand(StageModel *pModel, int nScene, const StageElement &element)
    : QUndoCommand(StageCommands::tr("add %1").arg(element.id))
    , m_pModel(pModel)
    , m_nScene(nScene)
    , m_nIndex(static_cast<int>(pModel->elements(nScene).size()))
    , m_element(element)
{
}

void StageAddCommand::undo()
{
    m_pModel->removeElement(m_nScene, m_nIndex);
}

void StageAddCommand::redo()
{
    m_pModel->insertElement(m_nScene, m_nIndex, m_element);
}

StageRemoveCommand::StageRemoveCommand(StageModel *pModel, int nScene, QList<int> indexes)
    : QUndoCommand(StageCommands::tr("delete"))
    , m_pModel(pModel)
    , m_nScene(nScene)
    , m_indexes(std::move(indexes))
{
    std::sort(m_indexes.begin(), m_indexes.end());
    for (const int nIndex : std::as_const(m_indexes))
        m_elements.append(pModel->elements(nScene).at(nIndex));
}

void StageRemoveCommand::undo()
{
    for (int i = 0; i < static_cast<int>(m_indexes.size()); ++i)
        m_pModel->insertElement(m_nScene, m_indexes.at(i), m_elements.at(i));
}

// Removes from the last to the first, so that the indexes of the others stay valid.
void StageRemoveCommand::redo()
{
    for (auto it = m_indexes.crbegin(); it != m_indexes.crend(); ++it)
        m_pModel->removeElement(m_nScene, *it);
}

StageMoveCommand::StageMoveCommand(StageModel *pModel, int nScene, const QList<Move> &moves, Kind kind)
    : QUndoCommand(StageCommands::tr("move"))
    , m_pModel(pModel)
    , m_nScene(nScene)
    , m_moves(moves)
    , m_kind(kind)
{
}

// QUndoStack does not merge commands whose id is -1.
int StageMoveCommand::id() const
{
    return m_kind == Kind::Step ? 1 : -1;
}

bool StageMoveCommand::mergeWith(const QUndoCommand *pOther)
{
    const auto *pNext = static_cast<const StageMoveCommand *>(pOther);
    const auto sameElement = [](const Move &a, const Move &b) { return a.nIndex == b.nIndex; };
    if (pNext->m_nScene != m_nScene
        || !std::equal(
            m_moves.cbegin(), m_moves.cend(), pNext->m_moves.cbegin(), pNext->m_moves.cend(), sameElement))
        return false;
    for (int i = 0; i < static_cast<int>(m_moves.size()); ++i)
        m_moves[i].to = pNext->m_moves.at(i).to;
    setObsolete(std::all_of(m_moves.cbegin(), m_moves.cend(), leadsNowhere));
    return true;
}

void StageMoveCommand::undo()
{
    for (const Move &move : std::as_const(m_moves))
        m_pModel->moveElement(m_nScene, move.nIndex, move.from);
}

void StageMoveCommand::redo()
{
    for (const Move &move : std::as_const(m_moves))
        m_pModel->moveElement(m_nScene, move.nIndex, move.to);
}
