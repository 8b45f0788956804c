// SPDX-License-Identifier: MIT
#include "ui/framegeometry.h"

#include <cmath>

namespace FrameGeometry {

namespace {

// Larger than any window: without composition, having a region keeps a theme from rounding the corners.
constexpr qint32 s_nUnbounded = 32767;

Hit alongBand(int x, int nWidth, int nCorner, Hit start, Hit middle, Hit end)
{
    if (x < nCorner)
        return start;
    return x >= nWidth - nCorner ? end : middle;
}

} // namespace

Borders borders(int nPaddedBorder, int nSizeFrame, int nLine)
{
    const int nBorder = nPaddedBorder + nSizeFrame;
    return {nBorder, nLine + 2 * nBorder};
}

Hit hitTest(const QPoint &point, const QSize &client, Borders borders, bool bResizable)
{
    if (!bResizable)
        return Hit::Client;
    const auto [nBorder, nCorner] = borders;
    if (point.y() < nBorder)
        return alongBand(point.x(), client.width(), nCorner, Hit::TopLeft, Hit::Top, Hit::TopRight);
    if (point.y() >= client.height() - nBorder)
        return alongBand(point.x(), client.width(), nCorner, Hit::BottomLeft, Hit::Bottom, Hit::BottomRight);
    if (point.x() < nBorder)
        return Hit::Left;
    return point.x() >= client.width() - nBorder ? Hit::Right : Hit::Client;
}

Rect maximizedRect(const Rect &proposed, const Rect &workArea, const Rect &monitor)
{
    const bool bTooSmall = workArea.width() < proposed.width() || workArea.height() < proposed.height();
    const Rect rect = bTooSmall ? workArea : proposed;
    return rect == monitor ? workArea : rect;
}

Rect windowRegion(bool bMaximized, bool bComposition, const Rect &window, const Rect &client)
{
    if (bMaximized) {
        return {client.nLeft - window.nLeft, client.nTop - window.nTop, client.nRight - window.nLeft,
            client.nBottom - window.nTop};
    }
    return bComposition ? Rect {} : Rect {0, 0, s_nUnbounded, s_nUnbounded};
}

RepaintStrips edgeRepaint(const QSize &oldSize, const QSize &newSize)
{
    const QSize narrower = newSize.width() < oldSize.width() ? newSize : oldSize;
    const QSize lower = newSize.height() < oldSize.height() ? newSize : oldSize;
    return {{narrower.width() - 1, 0, narrower.width(), narrower.height()},
        {0, lower.height() - 1, lower.width(), lower.height()}};
}

QPoint messagePoint(qintptr nParam)
{
    return {static_cast<qint16>(nParam & 0xffff), static_cast<qint16>((nParam >> 16) & 0xffff)};
}

QPoint logicalPoint(const QPoint &physical, double ratio)
{
    return {static_cast<int>(std::lround(physical.x() / ratio)),
        static_cast<int>(std::lround(physical.y() / ratio))};
}

} // namespace FrameGeometry
