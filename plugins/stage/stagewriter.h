// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

struct StageProject;

/// Writes project files.
namespace StageWriter {

/// The text of a project file. Images under and beside `strFolder`, where the file will lie, become relative
/// to it.
[[nodiscard]] QByteArray toJson(const StageProject &project, const QString &strFolder);

/// Replaces the file as a whole or leaves it as it was; an existing file keeps its permissions. Empty on
/// success, otherwise the reason.
[[nodiscard]] QString writeFile(const StageProject &project, const QString &strFileName);

} // namespace StageWriter
