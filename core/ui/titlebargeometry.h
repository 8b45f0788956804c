// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QPoint>
#include <QRect>

/// Where the title bar puts things and where a drag puts the window, over plain values. Any thread.
namespace TitleBarGeometry {

/// Whether the cursor went far enough from where it was pressed to restore a maximised window. Only right and
/// down count: a way to the left or up is below any threshold.
[[nodiscard]] constexpr bool restoresMaximized(const QPoint &delta)
{
    return delta.x() >= 6 || delta.y() >= 6;
}

/// Top left corner of a window of `nWidth` that was just restored by a drag: centred under the cursor at the
/// top of the desktop, and within its sides. One that is too wide keeps its right edge inside.
[[nodiscard]] CORE_EXPORT QPoint restoredPosition(const QPoint &cursor, int nWidth, const QRect &desktop);

/// What `leading` and `trailing` leave free of `row`; they lie at its two ends, and which end is leading
/// depends on the direction of writing. Empty when nothing is left.
[[nodiscard]] CORE_EXPORT QRect emptyStretch(
    const QRect &row, const QList<QRect> &leading, const QRect &trailing, Qt::LayoutDirection direction);

/// Place for a text of `nTextWidth` in `stretch`: in the middle of `row` if it can be, else as near to it as
/// the stretch allows, and never wider than that.
[[nodiscard]] CORE_EXPORT QRect titleRect(const QRect &row, const QRect &stretch, int nTextWidth);

} // namespace TitleBarGeometry
