// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

/// Lets the user write to the makers of the program.
namespace Feedback {

/// The address with the versions of the program and of Qt and the name of the system added: as the text of
/// the mail for "mailto:", to the query for http and https. Empty for every other address.
[[nodiscard]] QUrl addressWithDetails(const QString &strAddress);

/// Opens addressWithDetails() on the desktop. If that fails, a message box tells the user.
void open(const QString &strAddress);

} // namespace Feedback
