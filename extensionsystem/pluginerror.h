// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QMetaType>
#include <QString>

#include <exception>

namespace ExtensionSystem {

/// The steps in a plug-in's life, in their order.
enum class PluginPhase {
    Read,
    Resolve,
    Load, ///< loading the library and constructing the plug-in object
    Initialize,
    ExtensionsInitialized,
    DelayedInitialize,
    RemoteCommand,
    Shutdown
};

/// The phase as log, profile and messages write it, such as "initialize".
[[nodiscard]] EXTENSIONSYSTEM_EXPORT QString phaseName(PluginPhase phase);

/// One thing that went wrong with one plug-in.
struct EXTENSIONSYSTEM_EXPORT PluginError
{
    QString plugin; ///< name, empty when it could not be read
    QString file;
    PluginPhase phase = PluginPhase::Read;
    QString message; ///< the reason, including why a plug-in that it needs failed

    /// One line for people: plug-in, file, phase and reason.
    [[nodiscard]] QString text() const;
    bool operator==(const PluginError &) const = default;
};

/// Runs `function` and returns an empty text, or the text of what it threw, which goes no further.
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

Q_DECLARE_METATYPE(ExtensionSystem::PluginError)
