// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QString>

/// What a feed says about the newest release for one platform. Plain values. A member is empty if the feed
/// does not have it, or has something other than a text in its place.
struct CORE_EXPORT Appcast
{
    QString strOpenUrl;
    QString strChangelog;
    QString strDownloadUrl;
    QString strLatestVersion;
    QString strSha256; ///< of the installer, in hexadecimal digits
    QString strSignature; ///< of the installer, by Ed25519, in Base64

    /// Why the newest release cannot be told from the feed, as text for the user; empty if it can be.
    QString strFault;

    static constexpr qsizetype LargestSize = 1024 * 1024; ///< bytes of a feed that parse() accepts
    static constexpr qsizetype LargestCustomSize = 16 * LargestSize; ///< bytes of a feed that a plug-in reads

    /// Reads the entry `strPlatformKey` of the feed. Any content may be passed; errors go to `strFault`.
    [[nodiscard]] static Appcast parse(const QByteArray &data, const QString &strPlatformKey);
};
