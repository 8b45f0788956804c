// SPDX-License-Identifier: MIT
#include "appearance/ilanguagemanager.h"

#include "icore.h"

#include <extensionsystem/pluginmanager.h>

#include <QDir>
#include <QSettings>

#include <algorithm>

namespace {

const QString s_key = QStringLiteral("Kelpa/Language");
const QString s_english = QStringLiteral("en_US");

LanguageInfo *infoOf(const QLocale &locale)
{
    return new LanguageInfo {locale.name(), QLocale::languageToString(locale.language()),
        QLocale::countryToString(locale.country()), locale.nativeLanguageName(), locale.nativeCountryName()};
}

// "app_de_DE.qm" is the catalog of de_DE.
QString idOf(const QString &strFile)
{
    const QString strBase = strFile.left(strFile.lastIndexOf(QLatin1Char('.')));
    return strBase.mid(strBase.indexOf(QLatin1Char('_')) + 1);
}

} // namespace

ILanguageManager &ILanguageManager::getInstance()
{
    static ILanguageManager s_instance;
    return s_instance;
}

ILanguageManager::~ILanguageManager()
{
    qDeleteAll(m_languages);
}

bool ILanguageManager::initialize()
{
    m_pSettings = ExtensionSystem::PluginManager::settings();
    const QString strSaved = getSaveLangId();
    m_locale = QLocale(strSaved.isEmpty() ? s_english : strSaved);
    m_languages.append(infoOf(QLocale(s_english)));

    const QDir folder(ICore::resourcePath() + QStringLiteral("/translations"));
    const auto files = folder.entryList({QStringLiteral("app_*.qm")});
    for (const QString &strFile : files) {
        LanguageInfo *pInfo = infoOf(QLocale(idOf(strFile)));
        if (!pInfo->nativeLanguage.isEmpty())
            pInfo->nativeLanguage[0] = pInfo->nativeLanguage.at(0).toUpper();
        m_languages.append(pInfo);
    }
    return true;
}

QString ILanguageManager::getCurrentLangId() const
{
    return m_locale.name().isEmpty() ? s_english : m_locale.name();
}

QString ILanguageManager::getCurrentLangCode() const
{
    const QString strName = m_locale.name();
    return strName.isEmpty() ? QStringLiteral("en") : strName.section(QLatin1Char('_'), 0, 0);
}

QString ILanguageManager::getCurrentLangNoCountry() const
{
    return getCurrentLangId().section(QLatin1Char('_'), 0, 0);
}

QString ILanguageManager::getSaveLangId() const
{
    return m_pSettings ? m_pSettings->value(s_key).toString() : QString();
}

bool ILanguageManager::saveLanguage(const QString &strId)
{
    const bool bListed = std::any_of(m_languages.cbegin(), m_languages.cend(),
        [&](const LanguageInfo *pInfo) { return pInfo->id == strId; });
    if (!bListed || !m_pSettings)
        return false;
    m_pSettings->setValue(s_key, strId);
    return ExtensionSystem::PluginManager::storeSettings(m_pSettings);
}
