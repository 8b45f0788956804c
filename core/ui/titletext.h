// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QMenuBar;

/// Paints the title into the free part of the menu bar. It covers the whole bar, because a child is repainted
/// with its parent and so follows every change of the menus; mouse events pass through it.
class TitleText : public QWidget
{
public:
    TitleText(QMenuBar *pMenuBar, const QWidget *pTitleBar);

    /// The title bar's own title, with the mark of a change.
    [[nodiscard]] static QString shownTitle(const QWidget *pTitleBar);

    [[nodiscard]] bool isElided() const { return textRect().width() < textWidth(); }

protected:
    void paintEvent(QPaintEvent *pEvent) override;

private:
    [[nodiscard]] int textWidth() const;
    [[nodiscard]] QRect textRect() const;

    const QMenuBar *const m_pMenuBar;
    const QWidget *const m_pTitleBar;
};
