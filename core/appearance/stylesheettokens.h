// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>

namespace StyleSheetTokens {

/// Replaces each token "$<n>px$" of a style sheet, `n` pixels at 96 DPI, by as many pixels at `nDPI`,
/// truncated: "$12px$" becomes "18px" at 144 DPI. Text between two "$" without "px" in it is no token and
/// loses only its first "$". A token whose number is not whole counts as 0.
[[nodiscard]] CORE_EXPORT QString resolve(const QString &strSheet, int nDPI);

} // namespace StyleSheetTokens
