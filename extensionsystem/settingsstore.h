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

/// One settings store and whether its fault was told.
class EXTENSIONSYSTEM_EXPORT SettingsStore
{
public:
    /// The user's store in this folder. One whose content is damaged keeps a copy beside it before anything
    /// can overwrite it.
    [[nodiscard]] static std::unique_ptr<QSettings> openUser(const QString &strFolder);

    /// The store of the machine; it is normal that there is none and that it cannot be written.
    [[nodiscard]] static std::unique_ptr<QSettings> openMachine();

    /// Where the user's store lies when the command line says nothing.
    [[nodiscard]] static QString defaultFolder();

    void set(std::unique_ptr<QSettings> pSettings);
    [[nodiscard]] QSettings *get() const { return m_pSettings.get(); }

    /// The fault the store has now; true only the first time there is one. That the user's store could not be
    /// written is one before anything is.
    [[nodiscard]] bool takeFault(SettingsFault *pFault);

private:
    std::unique_ptr<QSettings> m_pSettings;
    bool m_bTold = false;
};

} // namespace ExtensionSystem
