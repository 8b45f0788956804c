// SPDX-License-Identifier: MIT
#include "appearance/ithemesmanager.h"

#include "appearance/kpappstyle.h"
#include "appearance/stylesheettokens.h"
#include "displayscale.h"
#include "icore.h"

#include <extensionsystem/pluginmanager.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <algorithm>
#include <optional>

namespace {

const QString s_key = QStringLiteral("Kelpa/Theme");
const QString s_dark = QStringLiteral("Dark");

QString stylesFolder()
{
    return ICore::resourcePath() + QStringLiteral("/resources/styles/");
}

std::optional<QString> readSheet(const QString &strFile)
{
    QFile file(stylesFolder() + strFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}

// "app_light_blue.qss" is the theme "Light_blue".
QString themeOf(const QString &strFile)
{
    const QString strBase = strFile.left(strFile.lastIndexOf(QLatin1Char('.')));
    const QString strName = strBase.mid(strBase.indexOf(QLatin1Char('_')) + 1);
    return strName.left(1).toUpper() + strName.mid(1);
}

} // namespace

IThemesManager &IThemesManager::getInstance()
{
    static IThemesManager s_instance;
    return s_instance;
}

IThemesManager::~IThemesManager()
{
    qDeleteAll(m_themes);
}

bool IThemesManager::initialize()
{
    m_current = {};
    m_pSettings = ExtensionSystem::PluginManager::settings();
    if (m_pSettings && !m_pSettings->contains(s_key))
        m_pSettings->setValue(s_key, s_dark);
    const QString strSaved = getSaveThemeId();

    bool bApplied = false;
    const auto files = QDir(stylesFolder()).entryList({QStringLiteral("app_*.qss")});
    for (const QString &strFile : files) {
        const QString strName = themeOf(strFile);
        m_themes.append(new ThemesInfo {strName, strName});
        if (strName == strSaved && strSaved != s_dark)
            bApplied = applyAsItStands(strFile) || bApplied;
    }
    if (strSaved == s_dark)
        bApplied = applyDark();
    if (!bApplied)
        saveThemes(s_dark);
    QApplication::setStyle(new KPAppStyle);
    return bApplied;
}

bool IThemesManager::applyAsItStands(const QString &strFile)
{
    const auto sheet = readSheet(strFile);
    if (!sheet)
        return false;
    qApp->setStyleSheet(*sheet);
    m_current = *m_themes.constLast();
    return true;
}

// Either of the two files may be missing, but "Dark" is in force only if the base is there.
bool IThemesManager::applyDark()
{
    const QString strFile = QStringLiteral("app_dark.qss");
    const auto base = readSheet(strFile);
    const auto platform = readSheet(QStringLiteral("win_") + strFile);
    if (base)
        m_current = {s_dark, s_dark};
    m_strRawSheet = platform.value_or(QString()) + base.value_or(QString());
    qApp->setStyleSheet(processStyleSheet(m_strRawSheet));
    return base.has_value();
}

QString IThemesManager::getSaveThemeId() const
{
    return m_pSettings ? m_pSettings->value(s_key, s_dark).toString() : s_dark;
}

bool IThemesManager::saveThemes(const QString &strId)
{
    const bool bListed = std::any_of(
        m_themes.cbegin(), m_themes.cend(), [&](const ThemesInfo *pInfo) { return pInfo->id == strId; });
    if (!bListed || !m_pSettings)
        return false;
    m_pSettings->setValue(s_key, strId);
    return ExtensionSystem::PluginManager::storeSettings(m_pSettings);
}

// Other themes than "Dark" keep no raw sheet: initialize() would apply theirs as it stands, and the next line
// would replace it by an empty one. Therefore this is called for "Dark" only.
void IThemesManager::processDPIChange()
{
    if (m_strRawSheet.isEmpty())
        initialize();
    qApp->setStyleSheet(processStyleSheet(m_strRawSheet));
}

QString IThemesManager::processStyleSheet(const QString &strSheet) const
{
    return StyleSheetTokens::resolve(strSheet, DisplayScale::logicalDpi());
}
