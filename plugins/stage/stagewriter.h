// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

struct StageProject;

/// Writes project files.
namespace StageWriter {

/// The text of a project file; not indented if that would make it larger than a file may be. Paths of images
/// become relative to `strFolder`, the folder of the file, unless they are on another drive.
[[nodiscard]] QByteArray toJson(const StageProject &project, const QString &strFolder);

/// As FileWriter::write(), but returns StageReader::excess() and writes nothing if the text is too large.
[[nodiscard]] QString writeFile(const StageProject &project, const QString &strFileName);

} // namespace StageWriter
