// SPDX-License-Identifier: MIT
#include "tempfolder.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool isLink(const QFileInfo &entry)
{
    return entry.isSymLink() || entry.isJunction();
}

bool removeRecursively(const QString &strPath);

// A link goes as a link, wherever it leads; on Windows those to folders are folders of a kind.
bool removeEntry(const QFileInfo &entry)
{
    const QString strPath = entry.absoluteFilePath();
    if (!isLink(entry))
        return entry.isDir() ? removeRecursively(strPath) : QFile::remove(strPath);
    return QFile::remove(strPath) || QDir().rmdir(strPath);
}

// Removes the folder and all in it; the first failure stops the walk.
bool removeRecursively(const QString &strPath)
{
    const QDir dir(strPath);
    if (isLink(QFileInfo(strPath)) || !dir.exists())
        return false;
    const auto entries = dir.entryInfoList(
        QDir::Files | QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::DirsFirst);
    for (const QFileInfo &entry : entries) {
        if (!removeEntry(entry))
            return false;
    }
    return dir.rmdir(dir.absolutePath());
}

} // namespace

TempFolder::TempFolder(const QString &strName)
    : m_strName(strName)
{
}

QString TempFolder::getPath() const
{
    QDir temp = QDir::temp();
    if (!temp.exists(m_strName))
        temp.mkdir(m_strName);
    return temp.absoluteFilePath(m_strName);
}

void TempFolder::remove() const
{
    removeRecursively(QDir::temp().absoluteFilePath(m_strName));
}
