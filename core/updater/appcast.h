// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QString>

/// What a feed says about the newest release for one platform. Missing members, and those of a type that is
/// not expected, are empty.
struct CORE_EXPORT Appcast
{
    QString strOpenUrl;
    QString strChangelog;
    QString strDownloadUrl;
    QString strLatestVersion;
    QString strSha256; ///< of the installer, in hexadecimal digits
    QString strSignature; ///< of the installer, by Ed25519, in Base64

    /// Why the feed does not say what the newest release is, for people; empty when it does.
    QString strFault;

    static constexpr qsizetype LargestSize = 1024 * 1024;
    static constexpr qsizetype LargestCustomSize = 16 * LargestSize; ///< of a feed that somebody else reads

    /// Reads a feed of any content. Never fails: what is wrong goes to `strFault`.
    [[nodiscard]] static Appcast parse(const QByteArray &data, const QString &strPlatformKey);
};
