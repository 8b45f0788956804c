// SPDX-License-Identifier: MIT
#include "tempfolder.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

// On Windows a link to a folder is a folder of a kind.
static bool isLink(const QFileInfo &entry)
{
    return entry.isSymLink() || entry.isJunction();
}

// A link goes as a link, wherever it leads. The first failure stops the walk.
static bool removeAll(const QFileInfo &entry)
{
    const QString strPath = entry.absoluteFilePath();
    if (isLink(entry) || !entry.isDir())
        return QFile::remove(strPath) || (isLink(entry) && QDir().rmdir(strPath));
    const auto entries = QDir(strPath).entryInfoList(
        QDir::Files | QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::DirsFirst);
    return std::all_of(entries.begin(), entries.end(), removeAll) && QDir().rmdir(strPath);
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
    const QFileInfo folder(QDir::temp(), m_strName);
    if (!isLink(folder))
        removeAll(folder);
}
