// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Keeps its fixed size as hint: with QLabel's, the image would make the menu bar higher than its titles.
class IconLabel : public QLabel
{
public:
    using QLabel::QLabel;
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return minimumSize(); }

    /// Scales the image down to `nSide` pixels, or centers a smaller one in a square of that size.
    void fit(const QPixmap &pixmap, int nSide)
    {
        const int nFrame = qMax(0, (nSide - pixmap.height()) / 2);
        const int nFixed = qMin(nSide, pixmap.height() + 2 * nFrame);
        setPixmap(pixmap);
        setScaledContents(true);
        setMargin(nFrame);
        setFixedSize(nFixed, nFixed);
    }
};
