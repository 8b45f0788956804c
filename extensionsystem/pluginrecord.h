// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/pluginspec.h>

#include <functional>

namespace ExtensionSystem {

class IPlugin;

enum class PluginState {
    Found, ///< metadata read, nothing else happened yet
    LeftOut, ///< not wanted on the command line
    Failed, ///< it, or a plug-in that it needs, failed; see the reason
    Constructed,
    Initialized,
    Running,
    Stopped
};

/// What is known about one plug-in, for lists that people read.
struct PluginDescription
{
    PluginSpec spec;
    PluginState state = PluginState::Found;
    QString reason; ///< why it failed
};

/// Makes the plug-in object, which the caller then owns. Null on failure, with the reason in the string.
using PluginFactory = std::function<IPlugin *(QString *pErrorString)>;

/// A plug-in that may be loaded, with the function that makes its object.
struct PluginRecord
{
    PluginSpec spec;
    PluginFactory create;
    QStringList arguments; ///< passed to initialize()
    qint64 nReadNanoseconds = 0; ///< how long reading the metadata took
};

} // namespace ExtensionSystem
