// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A folder in the system's folder for temporary files.
class TempFolder
{
public:
    explicit TempFolder(const QString &strName)
        : m_strName(strName)
    {
    }

    /// The folder is made if it does not exist; that it could be is not checked.
    [[nodiscard]] QString getPath() const;

    /// Removes the folder with all in it. The first entry that cannot be removed stops it.
    void remove() const;

private:
    const QString m_strName;
};
