// SPDX-License-Identifier: MIT
#include "updater/partfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// Gives the texts the translation context of the download window, which shows them.
struct Downloader
{
    Q_DECLARE_TR_FUNCTIONS(Downloader)
};

QString cannotWrite(const QString &strPath, const QString &strReason)
{
    return Downloader::tr("Cannot write %1: %2.").arg(PartFile::inQuotes(strPath), strReason);
}

QString hasChanged(const QString &strPath)
{
    return Downloader::tr("Cannot write %1: another program has changed it.")
        .arg(PartFile::inQuotes(strPath));
}

// A nearly full disk may take only the first bytes; the error is reported by the attempt to write the rest.
bool writeAll(QFile *pFile, const QByteArray &content)
{
    qint64 nDone = 0;
    while (nDone < content.size()) {
        const qint64 nWritten = pFile->write(content.constData() + nDone, content.size() - nDone);
        if (nWritten <= 0)
            return false;
        nDone += nWritten;
    }
    return true;
}

// If the trash folder cannot be created, QFile::moveToTrash() of Qt 6.4.2 uses the current folder instead, so
// this creates it first, with access for its owner only, as Qt does.
bool hasTrash()
{
#ifdef Q_OS_LINUX
    const QString strTrash =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/Trash");
    const bool bNew = !QFileInfo::exists(strTrash);
    if (!QDir().mkpath(strTrash))
        return false;
    if (bNew)
        QFile::setPermissions(strTrash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const char *pFolder : {"/files", "/info"}) {
        const QString strFolder = strTrash + QLatin1String(pFolder);
        if (!QDir().mkpath(strFolder) || !QFileInfo(strFolder).isWritable())
            return false;
    }
#endif
    return true;
}

// A symbolic link is removed, its target stays. False if the old file could not be moved out of the way.
bool makeWay(const QFileInfo &old)
{
    if (old.isSymLink())
        return QFile::remove(old.filePath());
    return !old.exists() || (!old.isDir() && hasTrash() && QFile::moveToTrash(old.filePath()));
}

QString freePath(const QFileInfo &taken)
{
    const QString strSuffix = taken.suffix().isEmpty() ? QString() : QLatin1Char('.') + taken.suffix();
    QString strPath;
    for (int i = 2; strPath.isEmpty() || QFileInfo::exists(strPath); ++i)
        strPath = QStringLiteral("%1/%2 (%3)%4")
                      .arg(taken.path(), taken.completeBaseName(), QString::number(i), strSuffix);
    return strPath;
}

} // namespace

QString PartFile::inQuotes(const QString &strPath)
{
    return QLatin1Char('"') + QDir::toNativeSeparators(strPath) + QLatin1Char('"');
}

QString PartFile::create()
{
    const QString strFolder = QFileInfo(m_strPath).path() + QLatin1Char('/');
    if (!QDir().mkpath(strFolder))
        return Downloader::tr("Cannot download update: the folder %1 cannot be made.")
            .arg(inQuotes(strFolder));
    QFile part(partPath());
    if ((part.exists() || QFileInfo(partPath()).isSymLink()) && !part.remove())
        return Downloader::tr("Cannot replace %1: %2.").arg(inQuotes(partPath()), part.errorString());
    if (!part.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return cannotWrite(partPath(), part.errorString());
    return {};
}

QString PartFile::append(const QByteArray &data)
{
    QFile part(partPath());
    const bool bOpen = part.open(QIODevice::Append | QIODevice::ExistingOnly | QIODevice::Unbuffered);
    if (bOpen && part.size() != m_nSize)
        return hasChanged(partPath());
    if (!bOpen || !writeAll(&part, data))
        return cannotWrite(partPath(), part.errorString());
    m_nSize += data.size();
    return {};
}

QString PartFile::complete()
{
    QFile part(partPath());
    if (part.size() != m_nSize)
        return hasChanged(part.fileName());
    if (!makeWay(QFileInfo(m_strPath)))
        m_strPath = freePath(QFileInfo(m_strPath));
    if (part.rename(m_strPath))
        return {};
    return Downloader::tr("Cannot rename %1 to %2: %3.")
        .arg(inQuotes(part.fileName()), inQuotes(m_strPath), part.errorString());
}
