// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>

class QWidget;

/// What the main window needs of the window system when its monitor or the monitor's scale changes. Only
/// Windows has it: elsewhere the toolkit's own notifications of screen and scale do.
namespace NativeScreen {

/// Whether the native message says that the scale changed. `pMessage` is what QWidget::nativeEvent() gets.
[[nodiscard]] CORE_EXPORT bool isScaleChange(const QByteArray &eventType, const void *pMessage);

/// Has the frame worked out anew: the window gets the rectangle that it has, at the place where it is.
CORE_EXPORT void refreshFrame(const QWidget *pWindow);

} // namespace NativeScreen
