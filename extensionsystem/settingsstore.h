// SPDX-License-Identifier: MIT
#pragma once

#include <extensionsystem/extensionsystem_global.h>

#include <QSettings>
#include <QString>

#include <memory>

namespace ExtensionSystem {

/// A settings store that could not be read or written.
struct SettingsFault
{
    QString file;
    QString reason;
};

/// Owns one settings store and remembers whether its fault was reported. GUI thread only.
class EXTENSIONSYSTEM_EXPORT SettingsStore
{
public:
    /// Opens the user's store in this folder; never null. If its content is damaged, a copy is kept beside it
    /// before anything can overwrite it.
    [[nodiscard]] static std::unique_ptr<QSettings> openUser(const QString &strFolder);

    /// Opens the machine's store; never null. It is normal that its file is missing or cannot be written.
    [[nodiscard]] static std::unique_ptr<QSettings> openMachine();

    /// The folder of the user's store when the command line names none.
    [[nodiscard]] static QString defaultFolder();

    void set(std::unique_ptr<QSettings> pSettings);
    [[nodiscard]] QSettings *get() const { return m_pSettings.get(); }

    /// Returns true, with the fault in `pFault`, the first time that the store is found to have one. A user's
    /// store that is not writable counts at once, before anything is written.
    [[nodiscard]] bool takeFault(SettingsFault *pFault);

private:
    std::unique_ptr<QSettings> m_pSettings;
    bool m_bTold = false;
};

} // namespace ExtensionSystem
