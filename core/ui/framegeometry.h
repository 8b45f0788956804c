// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QPoint>
#include <QSize>

/// What the frame of the frameless window decides, as functions over plain values, which the files that talk
/// to a window system call. All lengths of one call are in the same unit. Any thread.
namespace FrameGeometry {

/// A rectangle by its edges, as Windows gives them: `nRight` and `nBottom` lie just outside of it.
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

/// Depth of the bands along the edges that resize the window, and the width of the corners in the top and the
/// bottom band.
struct Borders
{
    int nBorder;
    int nCorner;
};

/// Part of a window under a point; the values are those of HTCLIENT to HTBOTTOMRIGHT of Windows.
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

/// The parts to repaint after the window has changed its size: its frame is painted along the edges.
struct RepaintStrips
{
    Rect column;
    Rect row;
};

/// The bands, from what Windows gives for SM_CXPADDEDBORDER, SM_CXSIZEFRAME and SM_CXBORDER.
[[nodiscard]] CORE_EXPORT Borders borders(int nPaddedBorder, int nSizeFrame, int nLine);

/// The part under `point`. A title bar counts as Client: the handlers of mouse buttons find it themselves. A
/// window that is not resizable, because it is maximized or of fixed size, is all Client.
[[nodiscard]] CORE_EXPORT Hit hitTest(
    const QPoint &point, const QSize &client, Borders borders, bool bResizable);

/// The rectangle of a maximized window for which the system proposes `proposed`: the work area if that is
/// less wide or less high, or if the proposal is the whole monitor, so that a task bar stays visible.
[[nodiscard]] CORE_EXPORT Rect maximizedRect(const Rect &proposed, const Rect &workArea, const Rect &monitor);

/// The region to give the window, in coordinates of the window; all zero stands for none. A maximized window
/// is clipped to its client area, because the rest hangs over the edges of the monitor.
[[nodiscard]] CORE_EXPORT Rect windowRegion(
    bool bMaximized, bool bComposition, const Rect &window, const Rect &client);

/// The right column of the narrower and the bottom row of the lower of the two sizes, one pixel wide. If both
/// are equally wide or high, the old size counts.
[[nodiscard]] CORE_EXPORT RepaintStrips edgeRepaint(const QSize &oldSize, const QSize &newSize);

/// The point in a lParam of Windows: x is its low 16 bits and y the next 16, both signed.
[[nodiscard]] CORE_EXPORT QPoint messagePoint(qintptr nParam);

/// `ratio` is the device pixel ratio. Each coordinate is rounded, halves away from zero.
[[nodiscard]] CORE_EXPORT QPoint logicalPoint(const QPoint &physical, double ratio);

} // namespace FrameGeometry
