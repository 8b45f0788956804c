// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QString>

/// Writes what an author must not lose.
namespace FileWriter {

/// Replaces the file as a whole once the new content is on the disk, or leaves it as it was. An existing file
/// keeps its permissions, and a link goes on leading to it. Empty on success, otherwise the system's reason.
/// Any thread.
[[nodiscard]] CORE_EXPORT QString write(const QString &strFileName, const QByteArray &content);

} // namespace FileWriter
