// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>
#include <QUrl>

/// Decisions and texts of the updater over plain values. Any thread, except those that translate: GUI thread.
namespace UpdateTexts {

/// Whether dotted version `strX` is newer than `strY`. Parts compare as numbers, one that is no number as 0;
/// when all shared parts are equal, the version with more parts is the newer one.
[[nodiscard]] CORE_EXPORT bool isNewer(const QString &strX, const QString &strY);

/// Whole bytes, KB or MB of 1024, truncated.
[[nodiscard]] CORE_EXPORT QString size(qint64 nBytes);

/// Whole seconds, minutes or hours, rounded.
[[nodiscard]] CORE_EXPORT QString duration(double fSeconds);

/// Seconds that `nTotal` bytes take at the speed so far, which is that of whole bytes per second: the time of
/// the whole download, not of what is missing. Below one byte per second it counts as one. Negative when
/// nothing can be said yet.
[[nodiscard]] CORE_EXPORT double estimatedSeconds(qint64 nReceived, qint64 nTotal, qint64 nElapsedSeconds);

/// The name under which a download is saved: `strName`, or the default when that could leave the folder, is
/// no name on one of the platforms, or is not what it looks like.
[[nodiscard]] CORE_EXPORT QString safeFileName(const QString &strName);

/// The name that the address of an installer ends with, as it is spelled there; without query and fragment.
[[nodiscard]] CORE_EXPORT QString fileNameOf(const QString &strUrl);

constexpr int LongestVersion = 60; ///< in characters, where one is shown

/// What of a text from outside is shown: all, or its first `nLongest` characters and three dots.
[[nodiscard]] CORE_EXPORT QString shortened(const QString &strText, int nLongest);

constexpr int LongestLog = 200; ///< characters of what came from outside

/// An address as it is told and logged: without user, password and query, and shortened to `LongestLog`.
[[nodiscard]] CORE_EXPORT QString shown(const QUrl &url);

/// Whether a text begins like an address of the web: http or https.
[[nodiscard]] CORE_EXPORT bool isWebAddress(const QString &strText);

/// Whether what a feed names may be fetched or opened: an address of the web with a host.
[[nodiscard]] CORE_EXPORT bool isWebUrl(const QUrl &url);

constexpr int MostRedirects = 10;

/// Why a redirect must not be followed, for people; empty when it may. `nFollowed` were followed already.
[[nodiscard]] CORE_EXPORT QString redirectObjection(const QUrl &from, const QUrl &to, int nFollowed);

} // namespace UpdateTexts
