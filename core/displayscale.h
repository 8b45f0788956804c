// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

class QWidget;

/// The arithmetic of the display scale, in one place. 96 logical dots per inch are 100 percent.
namespace DisplayScale {

/// Logical horizontal DPI, truncated: of the widget's screen, else of the main window's, else of the primary
/// screen; 96 when there is no screen.
[[nodiscard]] CORE_EXPORT int logicalDpi(const QWidget *pWidget = nullptr);

/// Scale in percent, truncated: 150 at 144 DPI.
[[nodiscard]] constexpr int percent(int nDPI)
{
    return nDPI * 100 / 96;
}

/// `nSize` pixels at 96 DPI in pixels at `nDPI`, truncated: 19 for 13 at 144 DPI.
[[nodiscard]] constexpr int proportional(int nDPI, int nSize)
{
    return static_cast<int>(static_cast<long long>(nDPI) * nSize / 96);
}

/// `nSize` times the nearest whole factor, from .5 upwards the next: 32 for 16 at 144 DPI, 16 at 120 and 72.
[[nodiscard]] constexpr int wholeFactor(int nDPI, int nSize)
{
    const int nPercent = (nDPI * 200 + 96) / 192;
    const bool bDown = nPercent % 100 < 50;
    return (bDown ? nDPI / 96 : (nDPI + 95) / 96) * nSize;
}

/// Whether images of double size are due: from 150 percent on.
[[nodiscard]] constexpr bool usesDoubleSizeImages(int nDPI)
{
    return percent(nDPI) >= 150;
}

} // namespace DisplayScale
