// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>

/// What decides whether a downloaded installer may be opened. Plain values; check() may run on any thread.
struct CORE_EXPORT InstallerCheck
{
    static constexpr qint64 LargestSize = qint64(1) << 30; ///< bytes; what is larger never passes a check

    QString strKey; ///< Ed25519 public key in Base64; empty: installers are not checked
    QString strSha256; ///< hexadecimal digits; when empty only the signature counts
    QString strSignature; ///< Base64

    /// The key of the machine's settings store ("Updates/PublicKey"), or else the one built in. The user's
    /// own store cannot change it. When the machine's store is damaged or its key is empty, a text that is no
    /// key, so that nothing passes. GUI thread only.
    [[nodiscard]] static QString configuredKey();

    [[nodiscard]] bool isNeeded() const { return !strKey.isEmpty(); }

    /// Why no file at all could pass, for people; empty when one may.
    [[nodiscard]] QString objection() const;

    /// Why this file must not be opened, for people; empty when it may. Needs as much memory as the file
    /// is large.
    [[nodiscard]] QString check(const QString &strFileName) const;
};
