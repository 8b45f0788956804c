// SPDX-License-Identifier: MIT
#include <extensionsystem/pluginerror.h>

#include <QStringList>

namespace ExtensionSystem {

QString phaseName(PluginPhase phase)
{
    static const char *const s_names[] = {
        "read",          "resolve", "load", "initialize", "extensionsInitialized", "delayedInitialize",
        "remoteCommand", "shutdown"};
    return QLatin1String(s_names[static_cast<int>(phase)]);
}

QString PluginError::text() const
{
    QStringList who;
    if (!plugin.isEmpty())
        who.append(QStringLiteral("plug-in \"%1\"").arg(plugin));
    if (!file.isEmpty())
        who.append(file);
    return who.join(QStringLiteral(", ")) + QStringLiteral(", phase ") + phaseName(phase)
        + QStringLiteral(": ") + message;
}

} // namespace ExtensionSystem
