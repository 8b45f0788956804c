// SPDX-License-Identifier: MIT
#include "ui/titlebargeometry.h"

QPoint TitleBarGeometry::restoredPosition(const QPoint &cursor, int nWidth, const QRect &desktop)
{
    const int nCentred = qMax(cursor.x() - nWidth / 2, desktop.x());
    const int nRightmost = desktop.x() + desktop.width() - nWidth;
    return {qMin(nCentred, nRightmost), desktop.top()};
}

QRect TitleBarGeometry::emptyStretch(
    const QRect &row, const QList<QRect> &leading, const QRect &trailing, Qt::LayoutDirection direction)
{
    QRect stretch = row;
    const auto cut = [&](const QRect &rect, bool bAtLeft) {
        if (rect.isEmpty())
            return;
        if (bAtLeft)
            stretch.setLeft(qMax(stretch.left(), rect.right() + 1));
        else
            stretch.setRight(qMin(stretch.right(), rect.left() - 1));
    };
    const bool bLeadingAtLeft = direction != Qt::RightToLeft;
    for (const QRect &rect : leading)
        cut(rect, bLeadingAtLeft);
    cut(trailing, !bLeadingAtLeft);
    return stretch.isEmpty() ? QRect() : stretch;
}

QRect TitleBarGeometry::titleRect(const QRect &row, const QRect &stretch, int nTextWidth)
{
    if (stretch.isEmpty())
        return {};
    QRect rect(0, stretch.top(), qMin(nTextWidth, stretch.width()), stretch.height());
    rect.moveLeft(row.left() + (row.width() - rect.width()) / 2);
    if (rect.right() > stretch.right())
        rect.moveRight(stretch.right());
    if (rect.left() < stretch.left())
        rect.moveLeft(stretch.left());
    return rect;
}
