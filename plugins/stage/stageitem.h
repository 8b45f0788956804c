// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QGraphicsItem>
#include <QImage>

/// Paints one element at its place on the stage. It holds a copy of the element, whose place the view updates
/// by setPlace(). The scene of the view owns it.
class StageItem : public QGraphicsItem
{
public:
    explicit StageItem(const StageElement &element);

    [[nodiscard]] const StageElement &element() const { return m_element; }
    void setPlace(double x, double y);

    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter *pPainter, const QStyleOptionGraphicsItem *pOption, QWidget *pWidget) override;

private:
    [[nodiscard]] QRectF rect() const { return {0, 0, m_element.width, m_element.height}; }
    void paintText(QPainter *pPainter) const;
    void paintImage(QPainter *pPainter) const;

    StageElement m_element;
    QImage m_image;
};
