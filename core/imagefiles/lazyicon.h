// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The icon of an .ico file as our build makes them: images of rising size, all of them PNG. Each is read
/// when it is asked for, and no image library but the one for PNG is loaded: finding the one for .ico takes
/// the start of the program several milliseconds. GUI thread only.
[[nodiscard]] QIcon lazyIcon(const QString &strFile);
