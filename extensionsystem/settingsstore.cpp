// SPDX-License-Identifier: MIT
#include <extensionsystem/settingsstore.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace ExtensionSystem {

namespace {

const QString s_organization = QStringLiteral("ORVEN");
const QString s_application = QStringLiteral("KelpaStudio");
const QString s_broken = QStringLiteral(".broken");

bool sameContent(const QString &strFirst, const QString &strSecond)
{
    QFile first(strFirst);
    QFile second(strSecond);
    return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly)
        && first.size() == second.size() && first.readAll() == second.readAll();
}

// Returns the first name for a copy that is free or already holds the same content.
QString nameForCopy(const QString &strFile)
{
    QString strCopy = strFile + s_broken;
    for (int i = 2; QFileInfo::exists(strCopy) && !sameContent(strFile, strCopy); ++i)
        strCopy = strFile + s_broken + QString::number(i);
    return strCopy;
}

// If there is no room for a copy, the file itself is renamed, because the next write would overwrite it.
void keepBroken(const QString &strFile)
{
    const QString strCopy = nameForCopy(strFile);
    if (QFileInfo::exists(strCopy) || QFile::copy(strFile, strCopy))
        return;
    QFile::remove(strCopy);
    QFile::rename(strFile, strCopy);
}

// Reads all keys, because Qt 6.4.2 parses a section, and finds damage in it, only when a key is read.
void readAll(QSettings *pSettings)
{
    if (QFileInfo::exists(pSettings->fileName()))
        Q_UNUSED(pSettings->allKeys())
}

QString reasonOf(const QSettings &settings)
{
    const QFileInfo file(settings.fileName());
    if (settings.status() == QSettings::FormatError)
        return QStringLiteral("it is damaged and was read as far as possible");
    if (file.isDir())
        return QStringLiteral("it is a folder, not a file");
    if (file.exists() && !file.isReadable())
        return QStringLiteral("there is no permission to read it");
    return QStringLiteral("it cannot be written");
}

} // namespace

std::unique_ptr<QSettings> SettingsStore::openUser(const QString &strFolder)
{
    const QString strFile = strFolder + QLatin1Char('/') + s_application + QStringLiteral(".ini");
    auto pSettings = std::make_unique<QSettings>(strFile, QSettings::IniFormat);
    readAll(pSettings.get());
    if (pSettings->status() == QSettings::FormatError)
        keepBroken(strFile);
    return pSettings;
}

std::unique_ptr<QSettings> SettingsStore::openMachine()
{
    auto pSettings = std::make_unique<QSettings>(
        QSettings::IniFormat, QSettings::SystemScope, s_organization, s_application);
    pSettings->setFallbacksEnabled(false);
    readAll(pSettings.get());
    return pSettings;
}

QString SettingsStore::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/')
        + s_organization + QLatin1Char('/') + s_application;
}

void SettingsStore::set(std::unique_ptr<QSettings> pSettings)
{
    m_pSettings = std::move(pSettings);
    m_bTold = false;
}

bool SettingsStore::takeFault(SettingsFault *pFault)
{
    const auto isSound = [](const QSettings &settings) {
        return settings.status() == QSettings::NoError
            && (settings.scope() == QSettings::SystemScope || settings.isWritable());
    };
    if (m_bTold || !m_pSettings || isSound(*m_pSettings))
        return false;
    m_bTold = true;
    *pFault = {m_pSettings->fileName(), reasonOf(*m_pSettings)};
    return true;
}

} // namespace ExtensionSystem
