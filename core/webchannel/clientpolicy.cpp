// SPDX-License-Identifier: MIT
#include "clientpolicy.h"

#include <QRandomGenerator>
#include <QUrlQuery>

#include <array>

Q_LOGGING_CATEGORY(lcWebChannel, "kelpa.core.webchannel")

namespace ClientPolicy {
namespace {

// A page reached through a name that was made to point here still sends that name.
bool isOwnHost(const QByteArray &host, quint16 nPort)
{
    const QByteArray port = ':' + QByteArray::number(nPort);
    const QByteArray lower = host.toLower();
    return lower == "127.0.0.1" + port || lower == "localhost" + port || lower == "[::1]" + port;
}

// Given twice, it is not clear which one counts: then none does.
bool carriesKey(const QString &strQuery, const QByteArray &key)
{
    const QStringList keys =
        QUrlQuery(strQuery).allQueryItemValues(QStringLiteral("key"), QUrl::FullyDecoded);
    return keys.size() == 1 && !key.isEmpty() && equalInConstantTime(keys.first().toUtf8(), key);
}

} // namespace

Verdict judge(const Handshake &handshake, quint16 nPort, const QByteArray &key)
{
    if (!isOwnHost(handshake.host, nPort))
        return Verdict::RefuseHost;
    const bool bOwn = !handshake.origin || *handshake.origin == "qrc:";
    return bOwn || carriesKey(handshake.strQuery, key) ? Verdict::Accept : Verdict::RefuseOrigin;
}

QByteArray createKey()
{
    std::array<quint32, 8> words;
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char *>(words.data()), sizeof words)
        .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

bool equalInConstantTime(const QByteArray &first, const QByteArray &second)
{
    if (first.size() != second.size())
        return false;
    volatile char difference = 0;
    for (qsizetype i = 0; i < first.size(); ++i)
        difference = static_cast<char>(difference | (first[i] ^ second[i]));
    return difference == 0;
}

QString forLog(const QString &strText)
{
    if (strText.size() <= LoggedCharacters)
        return strText;
    return QStringLiteral("%1... (%2 characters)").arg(strText.left(LoggedCharacters)).arg(strText.size());
}

} // namespace ClientPolicy
