// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QMenuBar;

/// The title of the window. It lies over the whole menu bar and paints only where that is empty: it sees
/// every change of the menus because it is painted with them. It lets the mouse through.
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
