// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The file of a download: it grows under its name and ".part", and gets the name itself when it is complete.
/// What can fail gives the reason, for people, or an empty text. A plain value; GUI thread only, since it
/// translates.
class PartFile
{
public:
    PartFile() = default;
    explicit PartFile(const QString &strPath)
        : m_strPath(strPath)
    {
    }

    /// Where the file lies once it is complete, and until then.
    [[nodiscard]] QString path() const { return m_strPath; }
    [[nodiscard]] QString partPath() const { return m_strPath + QStringLiteral(".part"); }

    /// Bytes appended so far.
    [[nodiscard]] qint64 size() const { return m_nSize; }

    /// Makes the folder and an empty part. What has the name of the file stays.
    [[nodiscard]] QString create();
    [[nodiscard]] QString append(const QByteArray &data);

    /// What had the name of the file goes to the trash. If that cannot be, it stays, and the file gets a free
    /// name: see path().
    [[nodiscard]] QString complete();

    [[nodiscard]] static QString inQuotes(const QString &strPath);

private:
    QString m_strPath;
    qint64 m_nSize = 0;
};
