// SPDX-License-Identifier: MIT
#include "filewriter.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <filesystem>

#ifdef Q_OS_WIN
#include <io.h>
#define SYNC_TO_DISK _commit
#else
#include <unistd.h>
#define SYNC_TO_DISK ::fdatasync
#endif

namespace {

QString messageOf(const std::error_code &error)
{
    return error ? QString::fromLocal8Bit(QByteArray::fromStdString(error.message())) : QString();
}

// A write that takes only a part gives no reason; the one after it does.
bool writeAll(QFile &file, const QByteArray &content)
{
    qint64 nDone = 0;
    while (nDone < content.size()) {
        const qint64 nWritten = file.write(content.constData() + nDone, content.size() - nDone);
        if (nWritten <= 0)
            return false;
        nDone += nWritten;
    }
    return true;
}

QString fill(QFile &file, const QByteArray &content)
{
    if (!writeAll(file, content))
        return file.errorString();
    // Some file systems have nothing to wait for, and say so.
    if (SYNC_TO_DISK(file.handle()) != 0 && errno != EINVAL && errno != EROFS && errno != ENOSYS)
        return messageOf({errno, std::generic_category()});
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString renamed(const QString &strFrom, const QString &strTo)
{
    std::error_code error;
    std::filesystem::rename(
        QFileInfo(strFrom).filesystemFilePath(), QFileInfo(strTo).filesystemFilePath(), error);
    return messageOf(error);
}

} // namespace

// QSaveFile of Qt 6.4 hides that the disk refused the last step, and its working file has a longer name than
// the file itself, so that one with a name of the greatest length could not be saved.
QString FileWriter::write(const QString &strFileName, const QByteArray &content)
{
    const QFileInfo old(strFileName);
    if (old.exists() && !old.isWritable())
        return messageOf(std::make_error_code(std::errc::permission_denied));
    const QString strLinked = old.exists() ? old.canonicalFilePath() : old.symLinkTarget();
    const QFileInfo target(strLinked.isEmpty() ? strFileName : strLinked);
    const QString strUnique = QString::number(QRandomGenerator::system()->generate64(), 16);
    QFile file(target.absolutePath() + QStringLiteral("/.kelpa-") + strUnique);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return file.errorString();
    if (old.exists())
        file.setPermissions(old.permissions());
    QString strReason = fill(file, content);
    if (strReason.isEmpty())
        strReason = renamed(file.fileName(), target.filePath());
    if (!strReason.isEmpty())
        file.remove();
    return strReason;
}
