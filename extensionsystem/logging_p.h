// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace ExtensionSystem {

Q_DECLARE_LOGGING_CATEGORY(lcExtensionSystem)

} // namespace ExtensionSystem
