// SPDX-License-Identifier: MIT
#include "minimalplugin.h"

#include <QDebug>

bool MinimalPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    const qsizetype nGreet = arguments.indexOf(QStringLiteral("--greet"));
    if (nGreet >= 0)
        m_strName = arguments.value(nGreet + 1);
    if (!m_strName.isEmpty())
        return true;
    *errorString = QStringLiteral("--greet needs a name");
    return false;
}

void MinimalPlugin::extensionsInitialized()
{
    qInfo().noquote() << "Hello," << m_strName;
}
