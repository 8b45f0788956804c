// SPDX-License-Identifier: MIT
#include "updatesettings.h"

#include <QSettings>
#include <icore.h>

namespace {

// In the order of UpdateSettings::Address.
const struct
{
    QString strKey;
    QString strDefault;
} s_addresses[] = {
    {QStringLiteral("Updates/FeedUrl"), QStringLiteral("https://updates.kelpa.example/appcast.json")},
    {QStringLiteral("Updates/ReportUrl"), QStringLiteral("https://kelpa.example/report")},
    {QStringLiteral("Updates/SuggestUrl"), QStringLiteral("https://kelpa.example/suggest")},
};

const QString s_automatic = QStringLiteral("Updates/AutomaticCheck");
const QString s_asked = QStringLiteral("Updates/Asked");
const QString s_lastCheck = QStringLiteral("Updates/LastCheck");
const QString s_skipped = QStringLiteral("Updates/SkippedVersion");
const QString s_remindAfter = QStringLiteral("Updates/RemindAfter");

QVariant value(const QString &strKey, QSettings::Scope scope = QSettings::UserScope)
{
    const QSettings *pSettings = ICore::settings(scope);
    return pSettings ? pSettings->value(strKey) : QVariant();
}

void setValue(const QString &strKey, const QVariant &newValue)
{
    if (QSettings *pSettings = ICore::settings(QSettings::UserScope))
        pSettings->setValue(strKey, newValue);
}

// QSettings reads an address with a comma as a list unless it is in quotes, so the list is joined again.
QString read(UpdateSettings::Address address, QSettings::Scope scope)
{
    return value(s_addresses[address].strKey, scope).toStringList().join(QLatin1Char(',')).trimmed();
}

QString withoutUser(UpdateSettings::Address address)
{
    const QString strMachine = read(address, QSettings::SystemScope);
    return strMachine.isEmpty() ? s_addresses[address].strDefault : strMachine;
}

} // namespace

QString UpdateSettings::url(Address address)
{
    const QString strUser = read(address, QSettings::UserScope);
    return strUser.isEmpty() ? withoutUser(address) : strUser;
}

void UpdateSettings::setUrl(Address address, const QString &strUrl)
{
    const QString strKey = s_addresses[address].strKey;
    if (!strUrl.trimmed().isEmpty() && strUrl.trimmed() != withoutUser(address))
        return setValue(strKey, strUrl.trimmed());
    if (QSettings *pSettings = ICore::settings(QSettings::UserScope))
        pSettings->remove(strKey);
}

bool UpdateSettings::hasFeed()
{
    return url(Feed) != s_addresses[Feed].strDefault;
}

bool UpdateSettings::isAutomatic()
{
    return value(s_automatic).toBool();
}

void UpdateSettings::setAutomatic(bool bAutomatic)
{
    setValue(s_automatic, bAutomatic);
    setAsked();
}

bool UpdateSettings::wasAsked()
{
    return value(s_asked).toBool() || value(s_automatic).isValid();
}

void UpdateSettings::setAsked()
{
    setValue(s_asked, true);
}

bool UpdateSettings::isCheckDue(const QDateTime &now)
{
    const QDateTime last = QDateTime::fromString(value(s_lastCheck).toString(), Qt::ISODate);
    return !last.isValid() || last > now || last.addDays(1) <= now;
}

void UpdateSettings::setChecked(const QDateTime &now)
{
    setValue(s_lastCheck, now.toUTC().toString(Qt::ISODate));
}

bool UpdateSettings::isWanted(const QString &strVersion, const QDateTime &now)
{
    const QDateTime after = QDateTime::fromString(value(s_remindAfter).toString(), Qt::ISODate);
    return strVersion != value(s_skipped).toString() && (!after.isValid() || after <= now);
}

void UpdateSettings::skip(const QString &strVersion)
{
    setValue(s_skipped, strVersion);
}

void UpdateSettings::remindAfter(const QDateTime &time)
{
    setValue(s_remindAfter, time.toUTC().toString(Qt::ISODate));
}
