// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <optional>

/// Reads project files and trusts nothing in them.
namespace StageReader {

/// A project, or the place in the file and the reason why there is none.
struct Result
{
    std::optional<StageProject> project;
    QString error;
};

/// The JSON values in a text without blanks, and the bytes that indentation would add to it, or some more.
struct Extent
{
    int nValues = 1;
    qint64 nIndentation = 1;
};
[[nodiscard]] Extent extentOf(const QByteArray &text);

/// Why a text is too large for fromJson(); empty when it is not.
[[nodiscard]] QString excess(const QByteArray &text);

/// Paths of images are taken as relative to `strFolder`.
[[nodiscard]] Result fromJson(const QByteArray &text, const QString &strFolder);

/// Never waits: what is not a regular file is refused.
[[nodiscard]] Result readFile(const QString &strFileName);

} // namespace StageReader
