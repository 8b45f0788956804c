// SPDX-License-Identifier: MIT
#include "updater/appcast.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Updater)
};

// The text members of a platform's entry and where they are stored.
constexpr struct
{
    const char *pName;
    QString Appcast::*pField;
} s_members[] = {
    {"open-url", &Appcast::strOpenUrl},
    {"changelog", &Appcast::strChangelog},
    {"download-url", &Appcast::strDownloadUrl},
    {"latest-version", &Appcast::strLatestVersion},
};

void readPlatform(const QJsonObject &platform, Appcast *pAppcast)
{
    for (const auto &member : s_members)
        pAppcast->*member.pField = platform.value(QLatin1String(member.pName)).toString();
    const QJsonObject verification = platform.value(QLatin1String("verification")).toObject();
    pAppcast->strSha256 = verification.value(QLatin1String("sha256")).toString();
    pAppcast->strSignature = verification.value(QLatin1String("signature")).toString();
}

} // namespace

Appcast Appcast::parse(const QByteArray &data, const QString &strPlatformKey)
{
    Appcast result;
    if (data.size() > LargestSize) {
        result.strFault = Texts::tr("it is larger than %1 bytes").arg(LargestSize);
        return result;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (document.isNull()) {
        result.strFault = Texts::tr("%1 at byte %2").arg(error.errorString()).arg(error.offset);
        return result;
    }
    readPlatform(
        document.object().value(QLatin1String("updates")).toObject().value(strPlatformKey).toObject(),
        &result);
    if (result.strLatestVersion.isEmpty())
        result.strFault = Texts::tr("it names no version for \"%1\"").arg(strPlatformKey);
    return result;
}
