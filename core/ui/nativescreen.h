// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>

class QWidget;

/// What the main window needs of the window system when its monitor or the monitor's scale changes. Only on
/// Windows do these do anything; elsewhere Qt's own notifications of screen and scale are enough.
namespace NativeScreen {

/// Whether the native message, as QWidget::nativeEvent() gets it, says that the display scale has changed.
[[nodiscard]] CORE_EXPORT bool isScaleChange(const QByteArray &eventType, const void *pMessage);

/// Makes Windows compute the window's frame anew; position and size stay as they are.
CORE_EXPORT void refreshFrame(const QWidget *pWindow);

} // namespace NativeScreen
