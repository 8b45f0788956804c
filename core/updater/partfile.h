// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The file of a download. It is written under its name with the suffix ".part" and gets the name itself when
/// it is complete. Functions that can fail return the reason as text for the user, or an empty text. A plain
/// value, for the GUI thread only.
class PartFile
{
public:
    PartFile() = default;
    explicit PartFile(const QString &strPath)
        : m_strPath(strPath)
    {
    }

    /// The paths of the complete file and of the growing one.
    [[nodiscard]] QString path() const { return m_strPath; }
    [[nodiscard]] QString partPath() const { return m_strPath + QStringLiteral(".part"); }

    /// Number of bytes appended so far.
    [[nodiscard]] qint64 size() const { return m_nSize; }

    /// Creates the folder and an empty part file, replacing an older one. A file at path() is not touched.
    [[nodiscard]] QString create();
    [[nodiscard]] QString append(const QByteArray &data);

    /// Gives the file its name. An older file of that name goes to the trash; if that is impossible it stays,
    /// and this file gets a free name, which path() then returns.
    [[nodiscard]] QString complete();

    [[nodiscard]] static QString inQuotes(const QString &strPath);

private:
    QString m_strPath;
    qint64 m_nSize = 0;
};
