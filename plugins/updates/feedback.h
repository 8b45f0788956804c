// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

/// The way to those who make the program.
namespace Feedback {

/// The configured address with what they want to know: versions of the program and of Qt, and the system. A
/// mail address gets it as the text. Empty unless it is an address of the web or of mail.
[[nodiscard]] QUrl addressWithDetails(const QString &strAddress);

/// Opens it on the desktop; what cannot be opened gives one message.
void open(const QString &strAddress);

} // namespace Feedback
