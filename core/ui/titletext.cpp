// SPDX-License-Identifier: MIT
#include "ui/titletext.h"

#include "displayscale.h"
#include "ui/titlebargeometry.h"

#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QtMath>

constexpr int s_nTitleMargin = 12; // in pixels at a display scale of 100 percent

TitleText::TitleText(QMenuBar *pMenuBar, const QWidget *pTitleBar)
    : QWidget(pMenuBar)
    , m_pMenuBar(pMenuBar)
    , m_pTitleBar(pTitleBar)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QString TitleText::shownTitle(const QWidget *pTitleBar)
{
    return pTitleBar->windowTitle() + QLatin1String(pTitleBar->isWindowModified() ? "*" : "");
}

void TitleText::paintEvent(QPaintEvent *)
{
    const QRect rect = textRect();
    // Elided in the middle, so that the program's name and the modified mark at the end stay visible.
    const QString strText = fontMetrics().elidedText(shownTitle(m_pTitleBar), Qt::ElideMiddle, rect.width());
    // A path is drawn in its own direction, whatever that of the window is.
    const int nDirection = strText.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    QPainter painter(this);
    style()->drawItemText(&painter, rect, int(Qt::AlignCenter) | Qt::TextSingleLine | nDirection, palette(),
        isEnabled(), strText, QPalette::Text);
}

int TitleText::textWidth() const
{
    return qCeil(QFontMetricsF(font()).horizontalAdvance(shownTitle(m_pTitleBar)));
}

QRect TitleText::textRect() const
{
    const QWidget *pTrailing = m_pMenuBar->cornerWidget(Qt::TopRightCorner);
    QList<QRect> leading;
    const auto actions = m_pMenuBar->actions();
    for (QAction *pAction : actions)
        leading.append(m_pMenuBar->actionGeometry(pAction));
    const auto widgets = m_pMenuBar->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *pWidget : widgets) {
        if (pWidget != this && pWidget != pTrailing && !pWidget->isWindow() && pWidget->isVisible())
            leading.append(pWidget->geometry());
    }
    const int nMargin = DisplayScale::proportional(DisplayScale::logicalDpi(this), s_nTitleMargin);
    const QRect stretch = TitleBarGeometry::emptyStretch(
        rect(), leading, pTrailing ? pTrailing->geometry() : QRect(), layoutDirection());
    return TitleBarGeometry::titleRect(rect(), stretch.adjusted(nMargin, 0, -nMargin, 0), textWidth());
}
