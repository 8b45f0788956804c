// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

struct StageProject;

/// Writes project files.
namespace StageWriter {

/// The text of a project file, without indentation when that would make it larger than a file may be. Images
/// under and beside `strFolder`, where the file will lie, become relative to it.
[[nodiscard]] QByteArray toJson(const StageProject &project, const QString &strFolder);

/// As FileWriter::write(). What the reader would refuse as too large is not written.
[[nodiscard]] QString writeFile(const StageProject &project, const QString &strFileName);

} // namespace StageWriter
