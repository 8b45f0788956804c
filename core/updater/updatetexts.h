// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>
#include <QUrl>

/// Decisions and texts of the updater over plain values. Any thread, but GUI thread for those that translate.
namespace UpdateTexts {

/// Whether dotted version `strX` is newer than `strY`. Parts are compared as numbers; a part that is not a
/// number counts as 0. If all shared parts are equal, the version with more parts is newer.
[[nodiscard]] CORE_EXPORT bool isNewer(const QString &strX, const QString &strY);

/// A size in whole bytes, KB of 1024 bytes or MB of 1024 KB, rounded down. Translated.
[[nodiscard]] CORE_EXPORT QString size(qint64 nBytes);

/// A time in seconds, in minutes if longer than 60, or in hours if longer than 7200, rounded. Translated.
[[nodiscard]] CORE_EXPORT QString duration(double fSeconds);

/// Seconds that all `nTotal` bytes take, not only the missing ones, at the average speed so far: `nReceived`
/// divided by `nElapsedSeconds`, rounded down to whole bytes per second and at least one. Negative while
/// nothing has been received or no time has passed.
[[nodiscard]] CORE_EXPORT double estimatedSeconds(qint64 nReceived, qint64 nTotal, qint64 nElapsedSeconds);

/// The name under which a download is saved: `strName`, or "Kelpa_Update.bin" if that is empty, could lead to
/// another folder, is not allowed on one of the platforms, or hides what it is.
[[nodiscard]] CORE_EXPORT QString safeFileName(const QString &strName);

/// The part of an address after its last slash, not decoded, without query and fragment.
[[nodiscard]] CORE_EXPORT QString fileNameOf(const QString &strUrl);

constexpr int LongestVersion = 60; ///< characters of a version that are shown

/// The text itself, or its first `nLongest` characters and three dots if it is longer.
[[nodiscard]] CORE_EXPORT QString shortened(const QString &strText, int nLongest);

constexpr int LongestLog = 200; ///< characters of a text from outside that are logged

/// An address for messages and logs: without user, password and query, and shortened to `LongestLog`.
[[nodiscard]] CORE_EXPORT QString shown(const QUrl &url);

/// Whether a text begins with "http://" or "https://", in any case.
[[nodiscard]] CORE_EXPORT bool isWebAddress(const QString &strText);

/// Whether an address from a feed may be fetched or opened: http or https with a host.
[[nodiscard]] CORE_EXPORT bool isWebUrl(const QUrl &url);

constexpr int MostRedirects = 10;

/// Why a redirect must not be followed, as translated text for the user; empty if it may be. `nFollowed` is
/// the number of redirects followed before.
[[nodiscard]] CORE_EXPORT QString redirectObjection(const QUrl &from, const QUrl &to, int nFollowed);

} // namespace UpdateTexts
