// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <exception>

namespace ExtensionSystem {

/// Runs the function. A throw goes no further and becomes the text that is returned, which is never empty
/// then.
template <typename Function>
QString caught(Function function)
{
    try {
        function();
        return QString();
    } catch (const std::exception &exception) {
        return QStringLiteral("exception: ") + QString::fromLocal8Bit(exception.what());
    } catch (...) {
        return QStringLiteral("exception of unknown type");
    }
}

} // namespace ExtensionSystem
