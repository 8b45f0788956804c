// SPDX-License-Identifier: MIT
#include <QObject>

/// A plug-in of some other program.
class Foreign : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Foreign")
};

#include "foreign.moc"
