// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

/// The image in the bytes of a PNG file; null when they hold none. Qt's own readers first load the libraries
/// for all other formats and ask each of them, which takes the start of the program more than ten
/// milliseconds. Any thread.
[[nodiscard]] QImage imageFromPng(const QByteArray &bytes);
