// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QProxyStyle>

/// The style of all widgets: the platform's own with metrics that follow the logical DPI of the widget's
/// screen, and with check boxes in the colours of the program. IThemesManager makes it and the application
/// owns it. GUI thread only.
class CORE_EXPORT KPAppStyle : public QProxyStyle
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPAppStyle)

public:
    KPAppStyle() = default;

    // Plug-ins build on the order of the virtual functions.
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
