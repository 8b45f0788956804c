// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>

class QWidget;

/// A named region of the user interface: the subtree of one widget, which is not owned.
struct CORE_EXPORT Context
{
    QWidget *widget = nullptr;
    /// Compared case-sensitively.
    QString id;
    /// For display.
    QString name;
};
