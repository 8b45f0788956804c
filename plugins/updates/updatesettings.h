// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// What the user, or else the machine, has set about updates. GUI thread only, while the program has
/// settings.
class UpdateSettings
{
public:
    enum Address { Feed, Report, Suggestion };

    /// One that is not set leads to a domain that nobody can own.
    [[nodiscard]] static QString url(Address address);

    /// Setting nothing, or what counts without the user (the machine's address, else the default), takes the
    /// user's choice away.
    static void setUrl(Address address, const QString &strUrl);

    /// Whether a feed is set; otherwise nothing must be contacted.
    [[nodiscard]] static bool hasFeed();

    [[nodiscard]] static bool isAutomatic();
    static void setAutomatic(bool bAutomatic);

    /// The user was asked whether checks may be automatic, or has decided without being asked.
    [[nodiscard]] static bool wasAsked();
    static void setAsked();

    /// A day has passed since the last automatic check, or the clock was set back.
    [[nodiscard]] static bool isCheckDue(const QDateTime &now);
    static void setChecked(const QDateTime &now);

    /// Whether the user wants to be told of this version now.
    [[nodiscard]] static bool isWanted(const QString &strVersion, const QDateTime &now);
    static void skip(const QString &strVersion);
    static void remindAfter(const QDateTime &time);
};
