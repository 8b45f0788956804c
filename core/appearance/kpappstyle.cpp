// SPDX-License-Identifier: MIT
#include "appearance/kpappstyle.h"

#include "displayscale.h"

#include <QApplication>
#include <QDockWidget>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QStyleOptionTitleBar>

#include <array>
#include <optional>

namespace {

enum class Rule : quint8 { Base, Fixed, Proportional, WholeFactor };

struct Metric
{
    QStyle::PixelMetric metric;
    Rule rule;
    int nValue;
};

constexpr Metric s_metrics[] = {
    {QStyle::PM_ButtonMargin, Rule::Proportional, 6},
    {QStyle::PM_DockWidgetSeparatorExtent, Rule::Proportional, 6},
    {QStyle::PM_CheckBoxLabelSpacing, Rule::Proportional, 6},
    {QStyle::PM_RadioButtonLabelSpacing, Rule::Proportional, 6},
    {QStyle::PM_LayoutHorizontalSpacing, Rule::Proportional, 6},
    {QStyle::PM_LayoutVerticalSpacing, Rule::Proportional, 6},
    {QStyle::PM_ButtonDefaultIndicator, Rule::Fixed, 0},
    {QStyle::PM_ButtonShiftHorizontal, Rule::Fixed, 0},
    {QStyle::PM_ButtonShiftVertical, Rule::Fixed, 0},
    {QStyle::PM_DefaultFrameWidth, Rule::Fixed, 0},
    {QStyle::PM_MenuHMargin, Rule::Fixed, 0},
    {QStyle::PM_MenuVMargin, Rule::Fixed, 0},
    {QStyle::PM_MenuDesktopFrameWidth, Rule::Fixed, 0},
    {QStyle::PM_MenuBarItemSpacing, Rule::Fixed, 0},
    {QStyle::PM_MenuBarVMargin, Rule::Fixed, 0},
    {QStyle::PM_MenuBarHMargin, Rule::Fixed, 0},
    {QStyle::PM_TabBarTabShiftHorizontal, Rule::Fixed, 0},
    {QStyle::PM_TabBarTabShiftVertical, Rule::Fixed, 0},
    {QStyle::PM_ToolBarItemSpacing, Rule::Fixed, 0},
    {QStyle::PM_ToolBarItemMargin, Rule::Fixed, 0},
    {QStyle::PM_DockWidgetTitleMargin, Rule::Fixed, 0},
    {QStyle::PM_TabBar_ScrollButtonOverlap, Rule::Fixed, 0},
    {QStyle::PM_MenuButtonIndicator, Rule::Proportional, 10},
    {QStyle::PM_MenuScrollerHeight, Rule::Proportional, 10},
    {QStyle::PM_MenuTearoffHeight, Rule::Proportional, 10},
    {QStyle::PM_ScrollBarExtent, Rule::WholeFactor, 12},
    {QStyle::PM_ScrollBarSliderMin, Rule::Proportional, 9},
    {QStyle::PM_SliderThickness, Rule::Proportional, 16},
    {QStyle::PM_HeaderMarkSize, Rule::Proportional, 16},
    {QStyle::PM_TabBarScrollButtonWidth, Rule::Proportional, 16},
    {QStyle::PM_TabCloseIndicatorWidth, Rule::Proportional, 16},
    {QStyle::PM_TabCloseIndicatorHeight, Rule::Proportional, 16},
    {QStyle::PM_TitleBarButtonSize, Rule::Proportional, 16},
    {QStyle::PM_TitleBarHeight, Rule::Proportional, 18},
    {QStyle::PM_DockWidgetHandleExtent, Rule::Proportional, 8},
    {QStyle::PM_DockWidgetFrameWidth, Rule::Fixed, 1},
    {QStyle::PM_ToolTipLabelFrameWidth, Rule::Fixed, 1},
    {QStyle::PM_TabBarTabOverlap, Rule::Fixed, 3},
    {QStyle::PM_ProgressBarChunkWidth, Rule::Fixed, 9},
    {QStyle::PM_MenuBarPanelWidth, Rule::Fixed, 2},
    {QStyle::PM_SpinBoxSliderHeight, Rule::Fixed, 2},
    {QStyle::PM_FocusFrameVMargin, Rule::Fixed, 2},
    {QStyle::PM_FocusFrameHMargin, Rule::Fixed, 2},
    {QStyle::PM_IndicatorWidth, Rule::Proportional, 13},
    {QStyle::PM_IndicatorHeight, Rule::Proportional, 13},
    {QStyle::PM_SizeGripSize, Rule::Proportional, 13},
    {QStyle::PM_ExclusiveIndicatorWidth, Rule::Proportional, 12},
    {QStyle::PM_ExclusiveIndicatorHeight, Rule::Proportional, 12},
    {QStyle::PM_DialogButtonsSeparator, Rule::Proportional, 5},
    {QStyle::PM_DialogButtonsButtonWidth, Rule::Proportional, 70},
    {QStyle::PM_DialogButtonsButtonHeight, Rule::Proportional, 30},
    {QStyle::PM_HeaderDefaultSectionSizeVertical, Rule::Proportional, 30},
    {QStyle::PM_MdiSubWindowFrameWidth, Rule::Proportional, 4},
    {QStyle::PM_HeaderMargin, Rule::Proportional, 4},
    {QStyle::PM_HeaderGripMargin, Rule::Proportional, 4},
    {QStyle::PM_MdiSubWindowMinimizedWidth, Rule::Proportional, 196},
    {QStyle::PM_ToolBarExtensionExtent, Rule::WholeFactor, 26},
    {QStyle::PM_ToolBarIconSize, Rule::WholeFactor, 24},
    {QStyle::PM_IconViewIconSize, Rule::WholeFactor, 32},
    {QStyle::PM_LargeIconSize, Rule::WholeFactor, 32},
    {QStyle::PM_MessageBoxIconSize, Rule::WholeFactor, 32},
    {QStyle::PM_SmallIconSize, Rule::WholeFactor, 16},
    {QStyle::PM_TabBarIconSize, Rule::WholeFactor, 16},
    {QStyle::PM_ButtonIconSize, Rule::WholeFactor, 16},
    {QStyle::PM_TitleBarButtonIconSize, Rule::WholeFactor, 16},
    {QStyle::PM_DockWidgetTitleBarButtonMargin, Rule::Proportional, 2},
    {QStyle::PM_TreeViewIndentation, Rule::Proportional, 20},
    {QStyle::PM_HeaderDefaultSectionSizeHorizontal, Rule::Proportional, 100},
};

constexpr std::size_t s_nMetrics = 128;

// The rows indexed by metric, because styles are asked for metrics very often.
constexpr auto s_byMetric = [] {
    std::array<Metric, s_nMetrics> byMetric {};
    for (const Metric &row : s_metrics)
        byMetric[row.metric] = row;
    return byMetric;
}();

int layoutMargin(const QStyleOption *pOption, const QWidget *pWidget)
{
    const bool bWindow =
        pOption ? pOption->state.testFlag(QStyle::State_Window) : (pWidget && pWidget->isWindow());
    return DisplayScale::proportional(DisplayScale::logicalDpi(pWidget), bWindow ? 11 : 9);
}

// The title bar is never lower than its text.
int titleBarHeight(const QStyleOptionTitleBar *pOption, const QWidget *pWidget)
{
    int nFloor = 18;
    if ((pOption->titleBarFlags & Qt::WindowType_Mask) == Qt::Tool)
        nFloor = 16;
    else if (qobject_cast<const QDockWidget *>(pWidget))
        nFloor = 13;
    const QFontMetrics metrics = pWidget ? pWidget->fontMetrics() : QFontMetrics(QApplication::font());
    return qMax(metrics.height(), DisplayScale::proportional(DisplayScale::logicalDpi(pWidget), nFloor));
}

struct CheckBoxColours
{
    QRgb outer;
    QRgb inner;
};

CheckBoxColours checkBoxColours(QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return {0xff494949, 0xff383838};
    if (state.testFlag(QStyle::State_MouseOver))
        return {0xfff7941d, 0xff303030};
    return {0xff494949, 0xff2a2a2a};
}

// Both legs lie at 45 degrees through the centers of pixels, so the mark is equally sharp at every size.
void drawCheckMark(QPainter *pPainter, const QRect &rect, const QColor &colour)
{
    const int nLeg = qMax(1, qRound(rect.width() * 0.2));
    const QPoint pixel(rect.left() + (rect.width() - 3 * nLeg - 1) / 2 + nLeg,
        rect.top() + (rect.height() - 2 * nLeg - 1) / 2 + 2 * nLeg);
    const QPointF corner = QPointF(pixel) + QPointF(0.5, 0.5);
    const std::array<QPointF, 3> points = {
        corner + QPointF(-nLeg, -nLeg), corner, corner + QPointF(2 * nLeg, -2 * nLeg)};
    pPainter->setPen(
        QPen(colour, qMax(1.0, rect.width() / 6.5), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    pPainter->drawPolyline(points.data(), static_cast<int>(points.size()));
}

void drawCheckBox(const QStyleOption *pOption, QPainter *pPainter, int nDPI)
{
    const int nLine = nDPI / 96;
    const QRect outer = pOption->rect.translated(0, nLine);
    const QRect inner = outer.adjusted(nLine, nLine, -nLine, -nLine);
    const CheckBoxColours colours = checkBoxColours(pOption->state);
    const QColor mark = pOption->palette.color(QPalette::Text);
    pPainter->save();
    pPainter->setRenderHint(QPainter::Antialiasing);
    pPainter->fillRect(outer, QColor(colours.outer));
    pPainter->fillRect(inner, QColor(colours.inner));
    if (pOption->state.testFlag(QStyle::State_NoChange)) {
        const int nInset = qMax(1, inner.width() / 4);
        pPainter->fillRect(inner.adjusted(nInset, nInset, -nInset, -nInset), mark);
    } else if (pOption->state.testFlag(QStyle::State_On)) {
        drawCheckMark(pPainter, inner, mark);
    }
    pPainter->restore();
}

} // namespace

void KPAppStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption *pOption, QPainter *pPainter, const QWidget *pWidget) const
{
    if (element == PE_IndicatorCheckBox)
        drawCheckBox(pOption, pPainter, DisplayScale::logicalDpi(pWidget));
    else
        QProxyStyle::drawPrimitive(element, pOption, pPainter, pWidget);
}

void KPAppStyle::drawControl(
    ControlElement element, const QStyleOption *pOption, QPainter *pPainter, const QWidget *pWidget) const
{
    QProxyStyle::drawControl(element, pOption, pPainter, pWidget);
}

int KPAppStyle::pixelMetric(PixelMetric metric, const QStyleOption *pOption, const QWidget *pWidget) const
{
    switch (metric) {
    case PM_SliderTickmarkOffset:
        return sliderTickmarkOffset(pOption, pWidget);
    case PM_SliderSpaceAvailable:
        return sliderSpaceAvailable(pOption, pWidget);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return layoutMargin(pOption, pWidget);
    case PM_SubMenuOverlap:
        return -proxy()->pixelMetric(PM_MenuPanelWidth, pOption, pWidget);
    case PM_TitleBarHeight:
        if (const auto *pTitleBar = qstyleoption_cast<const QStyleOptionTitleBar *>(pOption))
            return titleBarHeight(pTitleBar, pWidget);
        break;
    default:
        break;
    }
    // Metrics that a style defines for itself, from QStyle::PM_CustomBase on, lie beyond the table.
    const Metric row = static_cast<std::size_t>(metric) < s_nMetrics ? s_byMetric[metric] : Metric {};
    // The extension button of a tool bar is measured for the main window, so it is the same on all screens.
    const QWidget *pMeasured = metric == PM_ToolBarExtensionExtent ? nullptr : pWidget;
    switch (row.rule) {
    case Rule::Base:
        break;
    case Rule::Fixed:
        return row.nValue;
    case Rule::Proportional:
        return DisplayScale::proportional(DisplayScale::logicalDpi(pMeasured), row.nValue);
    case Rule::WholeFactor:
        return DisplayScale::wholeFactor(DisplayScale::logicalDpi(pMeasured), row.nValue);
    }
    return QProxyStyle::pixelMetric(metric, pOption, pWidget);
}

int KPAppStyle::sliderTickmarkOffset(const QStyleOption *pOption, const QWidget *pWidget) const
{
    const auto *pSlider = qstyleoption_cast<const QStyleOptionSlider *>(pOption);
    if (pSlider && pSlider->tickPosition & QSlider::TicksAbove) {
        const QSize size = pSlider->rect.size();
        const int nSpace = pSlider->orientation == Qt::Horizontal ? size.height() : size.width();
        const int nRest = nSpace - proxy()->pixelMetric(PM_SliderControlThickness, pSlider, pWidget);
        return pSlider->tickPosition == QSlider::TicksBothSides ? nRest / 2 : nRest;
    }
    return QProxyStyle::pixelMetric(PM_SliderTickmarkOffset, pOption, pWidget);
}

int KPAppStyle::sliderSpaceAvailable(const QStyleOption *pOption, const QWidget *pWidget) const
{
    const auto *pSlider = qstyleoption_cast<const QStyleOptionSlider *>(pOption);
    if (!pSlider)
        return QProxyStyle::pixelMetric(PM_SliderSpaceAvailable, pOption, pWidget);
    const QSize size = pSlider->rect.size();
    const int nLength = pSlider->orientation == Qt::Horizontal ? size.width() : size.height();
    return nLength - proxy()->pixelMetric(PM_SliderLength, pSlider, pWidget);
}
