// SPDX-License-Identifier: MIT
#include "stageview.h"

#include "stageformat.h"
#include "stageitem.h"
#include "stagemodel.h"

#include <document/idocument.h>

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

constexpr double dMinZoom = 0.02;
constexpr double dMaxZoom = 32;
constexpr double dZoomStep = 1.25;
constexpr double dMargin = 20; // around the stage, in stage pixels
constexpr QColor deskColor(0x4a, 0x4f, 0x57);

struct StepKey
{
    int nKey;
    int dx;
    int dy;
};
constexpr std::array<StepKey, 4> stepKeys = {{
    {Qt::Key_Left, -1, 0},
    {Qt::Key_Right, 1, 0},
    {Qt::Key_Up, 0, -1},
    {Qt::Key_Down, 0, 1},
}};

double bounded(double dCoordinate)
{
    return qBound(-StageFormat::dMaxCoordinate, dCoordinate, StageFormat::dMaxCoordinate);
}

} // namespace

StageView::StageView(IDocument *pDocument, StageModel *pModel, QWidget *pParent)
    : QGraphicsView(pParent)
    , m_pDocument(pDocument)
    , m_pModel(pModel)
{
    setScene(new QGraphicsScene(this));
    setObjectName(QStringLiteral("StageView"));
    setAccessibleName(tr("Stage"));
    setDragMode(RubberBandDrag);
    setTransformationAnchor(AnchorUnderMouse);
    setBackgroundBrush(deskColor);
    setAcceptDrops(false); // leaves a dropped project file to the main window
    connect(pModel, &StageModel::reset, this, &StageView::rebuild);
    connect(pModel, &StageModel::elementInserted, this, &StageView::insertItem);
    connect(pModel, &StageModel::elementRemoved, this, &StageView::removeItem);
    connect(pModel, &StageModel::elementMoved, this, &StageView::moveItem);
    connect(scene(), &QGraphicsScene::selectionChanged, this, &StageView::describeSelection);
    connect(pDocument, &IDocument::dataChanged, this, &StageView::describeSelection); // undo moves, too
    rebuild();
}

// The scene is deleted as a child, after this destructor, and would signal a view that is partly destroyed.
StageView::~StageView()
{
    disconnect(scene(), nullptr, this, nullptr);
}

void StageView::setCurrentScene(int nScene)
{
    m_nScene = nScene;
    rebuild();
}

void StageView::rebuild()
{
    if (!m_pModel)
        return;
    m_items.clear();
    scene()->clear();
    m_nScene = qBound(0, m_nScene, static_cast<int>(m_pModel->project().scenes.size()) - 1);
    for (const StageElement &element : m_pModel->elements(m_nScene)) {
        m_items.append(new StageItem(element));
        scene()->addItem(m_items.last());
    }
    restack();
    updateSceneRect();
    describeSelection();
    viewport()->update();
}

// The rectangle is fixed, so that an element far away from the stage does not change what zoomToFit() shows.
void StageView::updateSceneRect()
{
    scene()->setSceneRect(stageRect().adjusted(-dMargin, -dMargin, dMargin, dMargin));
    if (m_bFit)
        zoomToFit();
}

// Undo and redo may change another scene; the view then switches to that scene.
void StageView::insertItem(int nScene, int nIndex)
{
    if (nScene != m_nScene)
        return setCurrentScene(nScene);
    auto *pItem = new StageItem(m_pModel->elements(nScene).at(nIndex));
    m_items.insert(nIndex, pItem);
    scene()->addItem(pItem);
    if (nIndex == static_cast<int>(m_items.size()) - 1)
        pItem->setZValue(nIndex);
    else
        restack();
}

void StageView::removeItem(int nScene, int nIndex)
{
    if (nScene != m_nScene)
        return setCurrentScene(nScene);
    delete m_items.takeAt(nIndex);
}

void StageView::moveItem(int nScene, int nIndex)
{
    if (nScene != m_nScene)
        return setCurrentScene(nScene);
    const StageElement &element = m_pModel->elements(nScene).at(nIndex);
    m_items.at(nIndex)->setPlace(element.x, element.y);
}

void StageView::restack()
{
    for (int i = 0; i < static_cast<int>(m_items.size()); ++i)
        m_items.at(i)->setZValue(i);
}

QList<int> StageView::selectedElements() const
{
    QList<int> indexes;
    for (int i = 0; i < static_cast<int>(m_items.size()); ++i) {
        if (m_items.at(i)->isSelected())
            indexes.append(i);
    }
    return indexes;
}

void StageView::selectElements(const QList<int> &indexes)
{
    {
        const QSignalBlocker blocker(scene());
        scene()->clearSelection();
        for (const int nIndex : indexes)
            m_items.at(nIndex)->setSelected(true);
    }
    describeSelection();
    viewport()->update();
    if (indexes.size() == 1)
        ensureVisible(m_items.at(indexes.first()), 0, 0);
}

void StageView::selectAll()
{
    QList<int> all(m_items.size());
    std::iota(all.begin(), all.end(), 0);
    selectElements(all);
}

bool StageView::addElement(StageElement element)
{
    if (!m_pModel || !m_pDocument || m_pModel->elementCount() >= StageFormat::nMaxElements)
        return false;
    const StageProject &project = m_pModel->project();
    element.id = m_pModel->freeId(element.type);
    element.x = std::round((project.width - element.width) / 2);
    element.y = std::round((project.height - element.height) / 2);
    m_pDocument->submitCommand(new StageAddCommand(m_pModel, m_nScene, element));
    selectElements({static_cast<int>(m_items.size()) - 1});
    return true;
}

void StageView::deleteSelected()
{
    const QList<int> indexes = selectedElements();
    if (m_pModel && m_pDocument && !indexes.isEmpty())
        m_pDocument->submitCommand(new StageRemoveCommand(m_pModel, m_nScene, indexes));
}

void StageView::moveSelected(double dx, double dy)
{
    if (!m_pModel)
        return;
    QList<StageMoveCommand::Move> moves;
    const QList<int> indexes = selectedElements();
    for (const int nIndex : indexes) {
        const StageElement &element = m_pModel->elements(m_nScene).at(nIndex);
        const QPointF from(element.x, element.y);
        moves.append({nIndex, from, {bounded(from.x() + dx), bounded(from.y() + dy)}});
    }
    submitMoves(moves, StageMoveCommand::Kind::Step);
}

void StageView::submitMoves(const QList<StageMoveCommand::Move> &moves, StageMoveCommand::Kind kind)
{
    const auto isReal = [](const StageMoveCommand::Move &move) { return move.from != move.to; };
    if (m_pDocument && std::any_of(moves.cbegin(), moves.cend(), isReal))
        m_pDocument->submitCommand(new StageMoveCommand(m_pModel, m_nScene, moves, kind));
}

// While the button is down, QGraphicsScene moves the items; releasing it makes one command, in whole pixels.
void StageView::mouseReleaseEvent(QMouseEvent *pEvent)
{
    QGraphicsView::mouseReleaseEvent(pEvent);
    if (!m_pModel)
        return;
    QList<StageMoveCommand::Move> moves;
    for (int i = 0; i < static_cast<int>(m_items.size()); ++i) {
        const StageElement &element = m_pModel->elements(m_nScene).at(i);
        const QPointF from(element.x, element.y);
        const QPointF to = m_items.at(i)->pos();
        if (to != from) {
            moves.append({i, from, {bounded(std::round(to.x())), bounded(std::round(to.y()))}});
            m_items.at(i)->setPos(moves.last().to);
        }
    }
    submitMoves(moves, StageMoveCommand::Kind::Drag);
}

void StageView::keyPressEvent(QKeyEvent *pEvent)
{
    if (!handleKey(pEvent->key(), pEvent->modifiers() & ~Qt::KeypadModifier))
        QGraphicsView::keyPressEvent(pEvent);
}

bool StageView::handleKey(int nKey, Qt::KeyboardModifiers modifiers)
{
    for (const StepKey &step : stepKeys) {
        if (step.nKey != nKey || (modifiers & ~Qt::ShiftModifier) || selectedElements().isEmpty())
            continue;
        const int nStep = modifiers & Qt::ShiftModifier ? 10 : 1;
        moveSelected(step.dx * nStep, step.dy * nStep);
        return true;
    }
    const bool bControl = modifiers.testFlag(Qt::ControlModifier);
    if (nKey == Qt::Key_Delete && modifiers == Qt::NoModifier)
        deleteSelected();
    else if (nKey == Qt::Key_Escape)
        leaveOrDeselect();
    else if (nKey == Qt::Key_0 && bControl)
        zoomToFit();
    else if ((nKey == Qt::Key_Plus || nKey == Qt::Key_Equal) && bControl)
        zoomBy(dZoomStep);
    else if (nKey == Qt::Key_Minus && bControl)
        zoomBy(1 / dZoomStep);
    else if (nKey == Qt::Key_A && bControl)
        selectAll();
    else
        return false;
    return true;
}

// Tab goes from element to element and never leaves the view, so Escape without a selection does.
void StageView::leaveOrDeselect()
{
    if (scene()->selectedItems().isEmpty())
        QGraphicsView::focusNextPrevChild(true);
    else
        scene()->clearSelection();
}

bool StageView::focusNextPrevChild(bool bNext)
{
    const int nCount = static_cast<int>(m_items.size());
    if (nCount == 0)
        return QGraphicsView::focusNextPrevChild(bNext);
    const QList<int> selected = selectedElements();
    int nNext = bNext ? 0 : nCount - 1;
    if (!selected.isEmpty())
        nNext = ((bNext ? selected.last() + 1 : selected.first() - 1) + nCount) % nCount;
    selectElements({nNext});
    return true;
}

// Sets the description that a screen reader reads for the stage, and announces the selection.
void StageView::describeSelection()
{
    const QList<int> selected = selectedElements();
    QString strText = tr("%n element(s) selected", nullptr, static_cast<int>(selected.size()));
    if (selected.size() == 1) {
        const StageElement &element = m_items.at(selected.first())->element();
        strText = tr("%1 selected, at %2, %3")
                      .arg(element.id, QString::number(element.x), QString::number(element.y));
    }
    setAccessibleDescription(strText);
    emit elementSelectionChanged();
}

void StageView::zoomToFit()
{
    m_bFit = true;
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

void StageView::zoomBy(double dFactor)
{
    const double dNew = transform().m11() * dFactor;
    if (dNew < dMinZoom || dNew > dMaxZoom)
        return;
    m_bFit = false;
    scale(dFactor, dFactor);
}

void StageView::wheelEvent(QWheelEvent *pEvent)
{
    if (!(pEvent->modifiers() & Qt::ControlModifier) || pEvent->angleDelta().y() == 0)
        return QGraphicsView::wheelEvent(pEvent);
    zoomBy(pEvent->angleDelta().y() > 0 ? dZoomStep : 1 / dZoomStep);
    pEvent->accept();
}

void StageView::resizeEvent(QResizeEvent *pEvent)
{
    QGraphicsView::resizeEvent(pEvent);
    if (m_bFit)
        zoomToFit();
}

void StageView::drawBackground(QPainter *pPainter, const QRectF &rect)
{
    QGraphicsView::drawBackground(pPainter, rect);
    if (!m_pModel)
        return;
    const QColor &background = m_pModel->project().background;
    pPainter->fillRect(stageRect(), background.isValid() ? background : QColor(Qt::white));
}

// Dims what lies beside the stage, because a published page does not show it.
void StageView::drawForeground(QPainter *pPainter, const QRectF &rect)
{
    if (!m_pModel)
        return;
    QPainterPath outside;
    outside.addRect(rect);
    outside.addRect(stageRect());
    QColor veil = deskColor;
    veil.setAlphaF(0.7F);
    pPainter->fillPath(outside, veil);
}

QRectF StageView::stageRect() const
{
    return {0, 0, static_cast<double>(m_pModel->project().width),
        static_cast<double>(m_pModel->project().height)};
}
