// SPDX-License-Identifier: MIT
#include "updater/installercheck.h"

#include "icore.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#ifdef KELPA_SIGNATURES
#include <sodium.h>
#endif

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Downloader)
};

// Empty unless it is well formed and has exactly this size.
QByteArray fromBase64(const QString &strText, qsizetype nSize)
{
    const auto result =
        QByteArray::fromBase64Encoding(strText.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return result && (*result).size() == nSize ? *result : QByteArray();
}

#ifdef KELPA_SIGNATURES
constexpr bool s_bCanCheck = true;
constexpr qsizetype s_nKeySize = crypto_sign_PUBLICKEYBYTES;
constexpr qsizetype s_nSignatureSize = crypto_sign_BYTES;

bool isSignedBy(const QByteArray &signature, const uchar *pData, qint64 nSize, const QByteArray &key)
{
    const auto *pSignature = reinterpret_cast<const uchar *>(signature.constData());
    const auto *pKey = reinterpret_cast<const uchar *>(key.constData());
    return sodium_init() >= 0
        && crypto_sign_verify_detached(pSignature, pData, static_cast<unsigned long long>(nSize), pKey) == 0;
}
#else
constexpr bool s_bCanCheck = false;
constexpr qsizetype s_nKeySize = 32;
constexpr qsizetype s_nSignatureSize = 64;

bool isSignedBy(const QByteArray &, const uchar *, qint64, const QByteArray &)
{
    return false;
}
#endif

bool hasSum(const QString &strSha256, const uchar *pData, qint64 nSize)
{
    constexpr qint64 nPiece = 1024 * 1024;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (qint64 nAt = 0; nAt < nSize; nAt += nPiece) {
        const auto *pPiece = reinterpret_cast<const char *>(pData + nAt);
        hash.addData(QByteArray::fromRawData(pPiece, qMin(nPiece, nSize - nAt)));
    }
    return QString::fromLatin1(hash.result().toHex()) == strSha256.toLower();
}

// A store that is not there is fine; one that hides what it says is not.
bool isDamaged(const QSettings &machine)
{
    const QFileInfo file(machine.fileName());
    return machine.status() != QSettings::NoError || (file.exists() && !(file.isFile() && file.isReadable()));
}

} // namespace

// Where the machine's key cannot be read there may be one, so nothing passes.
QString InstallerCheck::configuredKey()
{
    const QString strDamaged = QStringLiteral("?");
    const QString strName = QStringLiteral("Updates/PublicKey");
    const QSettings *pMachine = ICore::settings(QSettings::SystemScope);
    if (pMachine && isDamaged(*pMachine))
        return strDamaged;
    if (!pMachine || !pMachine->contains(strName))
        return QStringLiteral(KELPA_UPDATE_KEY);
    // A value with a comma comes as a list; it is no key, but neither is it none.
    const QString strPolicy = pMachine->value(strName).toStringList().join(QLatin1Char(','));
    return strPolicy.isEmpty() ? strDamaged : strPolicy;
}

QString InstallerCheck::objection() const
{
    if (!isNeeded())
        return {};
    if (!s_bCanCheck)
        return Texts::tr("this build cannot check signatures");
    if (fromBase64(strKey, s_nKeySize).isEmpty())
        return Texts::tr("the key to check its signature with is damaged");
    if (fromBase64(strSignature, s_nSignatureSize).isEmpty())
        return Texts::tr("it has no signature");
    return {};
}

// The file is mapped, not read: however large it is, the system can take the memory back.
QString InstallerCheck::check(const QString &strFileName) const
{
    if (!isNeeded())
        return {};
    if (const QString strObjection = objection(); !strObjection.isEmpty())
        return strObjection;
    QFile file(strFileName);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const qint64 nSize = file.size();
    const uchar *pData = file.map(0, nSize);
    if (!pData)
        return file.errorString();
    if (!strSha256.isEmpty() && !hasSum(strSha256, pData, nSize))
        return Texts::tr("its check sum is not the announced one");
    if (!isSignedBy(fromBase64(strSignature, s_nSignatureSize), pData, nSize, fromBase64(strKey, s_nKeySize)))
        return Texts::tr("its signature is not valid");
    return {};
}
