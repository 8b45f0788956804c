// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>

namespace StyleSheetTokens {

/// Replaces each token "$<n>px$" of a style sheet by `n` pixels at 96 DPI in pixels at `nDPI`, truncated:
/// "$12px$" is "18px" at 144 DPI. What lies between two "$" and has no "px" in it is ordinary text, which
/// loses only its first "$"; what has, but is no whole number, counts as 0.
[[nodiscard]] CORE_EXPORT QString resolve(const QString &strSheet, int nDPI);

} // namespace StyleSheetTokens
