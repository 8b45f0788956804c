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

/// Paths of images are taken as relative to `strFolder`.
[[nodiscard]] Result fromJson(const QByteArray &text, const QString &strFolder);

/// Never waits: what is not a regular file is refused.
[[nodiscard]] Result readFile(const QString &strFileName);

} // namespace StageReader
