// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QPoint>
#include <QSize>

/// The decisions of the frameless frame over plain values; the files that talk to a window system only ask
/// here. Any thread.
namespace FrameGeometry {

/// Edges as window systems give them: `nRight` and `nBottom` lie outside.
struct Rect
{
    qint32 nLeft = 0;
    qint32 nTop = 0;
    qint32 nRight = 0;
    qint32 nBottom = 0;

    [[nodiscard]] constexpr int width() const { return nRight - nLeft; }
    [[nodiscard]] constexpr int height() const { return nBottom - nTop; }
    constexpr bool operator==(const Rect &) const = default;
};

/// Depth of the bands along the edges that resize the window, and how far a corner reaches along the top and
/// the bottom band.
struct Borders
{
    int nBorder;
    int nCorner;
};

/// Part of a window under a point; the values are the hit codes of Windows.
enum class Hit {
    Client = 1,
    Left = 10,
    Right = 11,
    Top = 12,
    TopLeft = 13,
    TopRight = 14,
    Bottom = 15,
    BottomLeft = 16,
    BottomRight = 17,
};

/// Where a frame painted along the edges of a window of another size has to be painted over.
struct RepaintStrips
{
    Rect column;
    Rect row;
};

/// Bands from the widths that the system uses for the frame it draws itself.
[[nodiscard]] CORE_EXPORT Borders borders(int nPaddedBorder, int nSizeFrame, int nLine);

/// The title bar is client area: what drags the window is found out with the button messages. `bResizable`
/// is false for a maximised window and one of fixed size.
[[nodiscard]] CORE_EXPORT Hit hitTest(
    const QPoint &point, const QSize &client, Borders borders, bool bResizable);

/// What a maximised window gets when the system proposes `proposed`: the work area instead of anything wider
/// or higher, and instead of the whole monitor, so that a task bar stays visible.
[[nodiscard]] CORE_EXPORT Rect maximizedRect(const Rect &proposed, const Rect &workArea, const Rect &monitor);

/// The part of the window that shows, in window coordinates; all zero: all of it. A maximised window is
/// clipped to its client area, because the rest hangs over the edges of the monitor.
[[nodiscard]] CORE_EXPORT Rect windowRegion(
    bool bMaximized, bool bComposition, const Rect &window, const Rect &client);

/// Right column and bottom row of the narrower and the lower of two sizes, one pixel wide; of equal ones the
/// old size counts.
[[nodiscard]] CORE_EXPORT RepaintStrips edgeRepaint(const QSize &oldSize, const QSize &newSize);

/// The point in the two signed halves of a message parameter: x low, y high.
[[nodiscard]] CORE_EXPORT QPoint messagePoint(qintptr nParam);

/// Physical to logical pixels, each rounded half away from zero.
[[nodiscard]] CORE_EXPORT QPoint logicalPoint(const QPoint &physical, double ratio);

} // namespace FrameGeometry
