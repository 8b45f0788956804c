// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// An icon whose file is read when it is first asked for anything: one with many sizes takes milliseconds,
/// which the start of the program does not have. GUI thread only.
[[nodiscard]] QIcon lazyIcon(const QString &strFile);
