// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <optional>

/// Reads project files. Every value is checked, since a file may be damaged or hostile.
namespace StageReader {

/// A project, or if there is none, the place in the file and the reason as text for the user.
struct Result
{
    std::optional<StageProject> project;
    QString error;
};

/// Upper bounds for a JSON text: its number of values, and the bytes that indenting a compact text adds.
struct Extent
{
    int nValues = 1;
    qint64 nIndentation = 1;
};
[[nodiscard]] Extent extentOf(const QByteArray &text);

/// Why a text is too large for fromJson(), as text for the user; empty if it is not.
[[nodiscard]] QString excess(const QByteArray &text);

/// Relative paths of images are resolved against `strFolder`.
[[nodiscard]] Result fromJson(const QByteArray &text, const QString &strFolder);

/// Refuses everything but regular files, because reading a pipe or a device could block the program.
[[nodiscard]] Result readFile(const QString &strFileName);

} // namespace StageReader
