// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// The settings about updates: those of the user or else, for addresses, those of the machine. GUI thread
/// only. Without a settings store the defaults are returned and changes are ignored.
class UpdateSettings
{
public:
    enum Address { Feed, Report, Suggestion };

    /// The default of an address that is not set is in the top-level domain "example", which nobody can own.
    [[nodiscard]] static QString url(Address address);

    /// An empty text, or the address that counts without the user's (the machine's or the default), removes
    /// the user's setting.
    static void setUrl(Address address, const QString &strUrl);

    /// Whether a feed is set. If not, the program must not contact any server.
    [[nodiscard]] static bool hasFeed();

    [[nodiscard]] static bool isAutomatic();
    static void setAutomatic(bool bAutomatic);

    /// Whether the user was asked about automatic checks, or has decided without being asked.
    [[nodiscard]] static bool wasAsked();
    static void setAsked();

    /// Whether a day has passed since the last automatic check, or the clock was set back behind it.
    [[nodiscard]] static bool isCheckDue(const QDateTime &now);
    static void setChecked(const QDateTime &now);

    /// False for the version that was skipped, and for every version until the time of remindAfter().
    [[nodiscard]] static bool isWanted(const QString &strVersion, const QDateTime &now);
    static void skip(const QString &strVersion);
    static void remindAfter(const QDateTime &time);
};
