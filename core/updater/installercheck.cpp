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

// The decoded bytes; empty unless the text is well-formed Base64 for exactly `nSize` bytes.
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

const uchar *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const uchar *>(bytes.constData());
}

bool isSignedBy(const QByteArray &signature, const QByteArray &content, const QByteArray &key)
{
    const auto nSize = static_cast<unsigned long long>(content.size());
    return sodium_init() >= 0
        && crypto_sign_verify_detached(bytesOf(signature), bytesOf(content), nSize, bytesOf(key)) == 0;
}
#else
constexpr bool s_bCanCheck = false;
constexpr qsizetype s_nKeySize = 32;
constexpr qsizetype s_nSignatureSize = 64;

bool isSignedBy(const QByteArray &, const QByteArray &, const QByteArray &)
{
    return false;
}
#endif

bool hasSum(const QString &strSha256, const QByteArray &content)
{
    const QByteArray sum = QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    return QString::fromLatin1(sum.toHex()) == strSha256.toLower();
}

// Returns false and gives the reason if the file cannot be read. It is not mapped into memory: if another
// program truncates a mapped file, reading it ends this program with SIGBUS.
bool readWhole(const QString &strFileName, QByteArray *pContent, QString *pReason)
{
    QFile file(strFileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *pReason = file.errorString();
        return false;
    }
    const qint64 nSize = file.size();
    if (nSize > InstallerCheck::LargestSize) {
        *pReason = Texts::tr("it is larger than %1 bytes").arg(InstallerCheck::LargestSize);
        return false;
    }
    *pContent = file.read(nSize);
    *pReason = file.errorString();
    return file.error() == QFileDevice::NoError;
}

// A missing store is fine. One that exists but cannot be read may hold a key that we do not see.
bool isDamaged(const QSettings &machine)
{
    const QFileInfo file(machine.fileName());
    return machine.status() != QSettings::NoError || (file.exists() && !(file.isFile() && file.isReadable()));
}

} // namespace

// If the machine's store cannot be read, it may hold a key; so an invalid key is returned and nothing passes.
QString InstallerCheck::configuredKey()
{
    const QString strDamaged = QStringLiteral("?");
    const QString strName = QStringLiteral("Updates/PublicKey");
    const QSettings *pMachine = ICore::settings(QSettings::SystemScope);
    if (pMachine && isDamaged(*pMachine))
        return strDamaged;
    if (!pMachine || !pMachine->contains(strName))
        return QStringLiteral(KELPA_UPDATE_KEY);
    // QSettings gives a value with a comma as a list. It is joined again, so that it counts as a wrong key.
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

// libsodium verifies a detached signature over one block of memory, so the whole file has to be read.
QString InstallerCheck::check(const QString &strFileName) const
{
    if (!isNeeded())
        return {};
    if (const QString strObjection = objection(); !strObjection.isEmpty())
        return strObjection;
    QByteArray content;
    QString strReason;
    if (!readWhole(strFileName, &content, &strReason))
        return strReason;
    if (!strSha256.isEmpty() && !hasSum(strSha256, content))
        return Texts::tr("its check sum is not the announced one");
    if (!isSignedBy(fromBase64(strSignature, s_nSignatureSize), content, fromBase64(strKey, s_nKeySize)))
        return Texts::tr("its signature is not valid");
    return {};
}
