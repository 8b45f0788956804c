// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QString>

/// Decides whether a downloaded installer may be opened. Plain values; check() may run on any thread.
struct CORE_EXPORT InstallerCheck
{
    static constexpr qint64 LargestSize = qint64(1) << 30; ///< bytes; what is larger never passes a check

    QString strKey; ///< Ed25519 public key in Base64; empty: installers are not checked
    QString strSha256; ///< hexadecimal digits; when empty only the signature counts
    QString strSignature; ///< Base64

    /// "Updates/PublicKey" of the machine's settings store; if that has none, the key that was built in. The
    /// user's own store cannot change it. If the machine's store cannot be read or its key is empty, this is
    /// a text that is not a valid key, so that no installer passes. GUI thread only.
    [[nodiscard]] static QString configuredKey();

    [[nodiscard]] bool isNeeded() const { return !strKey.isEmpty(); }

    /// Why every file would fail the check, as text for the user; empty if a file can pass.
    [[nodiscard]] QString objection() const;

    /// Why this file must not be opened, as text for the user; empty if it may be. Reads the whole file into
    /// memory.
    [[nodiscard]] QString check(const QString &strFileName) const;
};
