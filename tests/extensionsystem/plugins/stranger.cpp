// SPDX-License-Identifier: MIT
#include <QObject>

/// A library with the right name tag whose object is no plug-in of ours.
class Stranger : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.Plugin" FILE "testplugin.json")
};

#include "stranger.moc"
