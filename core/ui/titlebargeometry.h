// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QPoint>
#include <QRect>

/// Where the title bar puts its parts and where a drag puts the window, over plain values. Any thread.
namespace TitleBarGeometry {

/// Whether the cursor, `delta` logical pixels from where it was pressed, is far enough away to restore a
/// maximized window. Only movement to the right and down counts.
[[nodiscard]] constexpr bool restoresMaximized(const QPoint &delta)
{
    return delta.x() >= 6 || delta.y() >= 6;
}

/// Top left corner of a window of `nWidth` that a drag has just restored: centered under the cursor at the
/// top of the desktop, and within its sides. A window wider than the desktop keeps its right edge inside.
[[nodiscard]] CORE_EXPORT QPoint restoredPosition(const QPoint &cursor, int nWidth, const QRect &desktop);

/// What `leading` and `trailing`, which lie at the two ends of `row`, leave free; empty if that is nothing.
/// `direction` tells which end is the leading one.
[[nodiscard]] CORE_EXPORT QRect emptyStretch(
    const QRect &row, const QList<QRect> &leading, const QRect &trailing, Qt::LayoutDirection direction);

/// Place for a text of `nTextWidth` in `stretch`: in the middle of `row` if possible, otherwise as near to it
/// as the stretch allows, and never wider than the stretch.
[[nodiscard]] CORE_EXPORT QRect titleRect(const QRect &row, const QRect &stretch, int nTextWidth);

} // namespace TitleBarGeometry
