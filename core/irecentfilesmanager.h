// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <isingleton.h>

#include <QStringList>

#include <functional>

class IRecentFilesManager;
extern template class CORE_EXPORT ISingleton<IRecentFilesManager>;

/// The list of recently used projects in the user's settings, most recent first. Paths are kept as given and
/// never looked up on disk. Each change reads the stored list anew, so that several running programs share
/// one list. GUI thread only, except getInstance().
class CORE_EXPORT IRecentFilesManager : public ISingleton<IRecentFilesManager>
{
public:
    /// Moves or adds `strPath` to the front; what passes the maximum count falls off the end.
    void addFile(const QString &strPath);

    /// Removes the first entry spelled exactly so.
    void removeFile(const QString &strPath);

    /// At most getMaxCount() entries; their number becomes getCount().
    [[nodiscard]] QStringList getRecentFiles();
    [[nodiscard]] int getCount() const { return m_nCount; }
    [[nodiscard]] int getMaxCount() const { return m_nMaxCount; }

private:
    friend class ISingleton<IRecentFilesManager>;
    IRecentFilesManager() = default;

    void change(const std::function<void(QStringList &)> &edit) const;

    const int m_nMaxCount = 10;
    int m_nCount = 0;
};
