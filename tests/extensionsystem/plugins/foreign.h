// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// A plug-in of some other program.
class Foreign : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Foreign")
};
