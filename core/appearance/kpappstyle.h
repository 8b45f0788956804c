// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QProxyStyle>

/// The style of all widgets: that of the platform, with metrics that follow the logical DPI of the widget's
/// screen, and with check boxes in the colors of the program. IThemesManager makes it and the application
/// owns it. GUI thread only.
class CORE_EXPORT KPAppStyle : public QProxyStyle
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPAppStyle)

public:
    KPAppStyle() = default;

    // Keep the order of the virtual functions: plug-ins that are compiled already call them by their place.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *pOption, QPainter *pPainter,
        const QWidget *pWidget) const override;
    void drawControl(ControlElement element, const QStyleOption *pOption, QPainter *pPainter,
        const QWidget *pWidget) const override;
    [[nodiscard]] int pixelMetric(
        PixelMetric metric, const QStyleOption *pOption, const QWidget *pWidget) const override;

private:
    [[nodiscard]] int sliderTickmarkOffset(const QStyleOption *pOption, const QWidget *pWidget) const;
    [[nodiscard]] int sliderSpaceAvailable(const QStyleOption *pOption, const QWidget *pWidget) const;
};
