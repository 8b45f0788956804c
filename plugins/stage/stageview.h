// SPDX-License-Identifier: MIT
#pragma once

#include "stagecommands.h"

#include <QGraphicsView>
#include <QPointer>

class IDocument;
class StageItem;
class StageModel;

/// Shows one scene of a project for editing. Every edit is submitted to the document as a command; the view
/// itself changes only selection and zoom. It may outlive both document and model. GUI thread only.
class StageView : public QGraphicsView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageView)

public:
    StageView(IDocument *pDocument, StageModel *pModel, QWidget *pParent = nullptr);
    ~StageView() override;

    [[nodiscard]] int currentScene() const { return m_nScene; }
    void setCurrentScene(int nScene);

    /// Indexes of elements, in ascending order.
    [[nodiscard]] QList<int> selectedElements() const;
    void selectElements(const QList<int> &indexes);
    void selectAll();

    /// Gives the element a free id, puts it in the center of the stage and selects it. False if the project
    /// has as many elements as the format allows, or is gone.
    bool addElement(StageElement element);
    void deleteSelected();
    void moveSelected(double dx, double dy);

    /// Shows the whole stage, and keeps doing so when the view is resized, until zoomBy().
    void zoomToFit();
    void zoomBy(double dFactor);

signals:
    void elementSelectionChanged();

protected:
    void keyPressEvent(QKeyEvent *pEvent) override;
    void mouseReleaseEvent(QMouseEvent *pEvent) override;
    void wheelEvent(QWheelEvent *pEvent) override;
    void resizeEvent(QResizeEvent *pEvent) override;
    void drawBackground(QPainter *pPainter, const QRectF &rect) override;
    void drawForeground(QPainter *pPainter, const QRectF &rect) override;
    bool focusNextPrevChild(bool bNext) override;

private:
    [[nodiscard]] QRectF stageRect() const;
    void rebuild();
    void insertItem(int nScene, int nIndex);
    void removeItem(int nScene, int nIndex);
    void moveItem(int nScene, int nIndex);
    void restack();
    void updateSceneRect();
    void submitMoves(const QList<StageMoveCommand::Move> &moves, StageMoveCommand::Kind kind);
    void describeSelection();
    bool handleKey(int nKey, Qt::KeyboardModifiers modifiers);
    void leaveOrDeselect();

    const QPointer<IDocument> m_pDocument;
    const QPointer<StageModel> m_pModel;
    QList<StageItem *> m_items; ///< in the order of the scene's elements
    int m_nScene = 0;
    bool m_bFit = true;
};
