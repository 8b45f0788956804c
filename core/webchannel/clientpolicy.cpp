// SPDX-License-Identifier: MIT
#include "clientpolicy.h"

#include <QJsonObject>
#include <QRandomGenerator>
#include <QUrlQuery>

#include <algorithm>
#include <array>
#include <iterator>

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

struct Request
{
    int nType;
    bool bAnswered; // and so has an id
    const char *pMember; // of the object it names; none: it names no object
};

// What clients send. Text for debugging is not among them: Qt would write it to the standard output.
constexpr Request s_requests[] = {
    {3, true, nullptr},
    {4, false, nullptr},
    {6, true, "method"},
    {7, false, "signal"},
    {8, false, "signal"},
    {9, false, "property"},
};

// The channel listens for the death of its objects by the same means as its clients do: one that stopped
// listening would stop it too, and leave it with an object that is gone.
bool isDeath(const QJsonValue &signal)
{
    const int nSignal = signal.toInt(-1);
    return nSignal == 0 || nSignal == 1 || signal.toString().startsWith(QLatin1String("destroyed"));
}

// Members are named or numbered.
bool isShort(const QJsonObject &message, const char *pName)
{
    const QJsonValue name = message.value(QLatin1String(pName));
    return !name.isString() || name.toString().size() <= NameCharacters;
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

// Each look into an object takes its time: small messages are measured by these.
bool isForChannel(const QJsonObject &message, qsizetype nCharacters)
{
    const int nType = message.value(QLatin1String("type")).toInt(-1);
    const auto *pRequest = std::find_if(std::begin(s_requests), std::end(s_requests),
        [nType](const Request &request) { return request.nType == nType; });
    if (pRequest == std::end(s_requests))
        return false;
    if (pRequest->bAnswered && !message.contains(QLatin1String("id")))
        return false;
    if (!pRequest->pMember)
        return true;
    const auto object = message.constFind(QLatin1String("object"));
    if (object == message.constEnd() || !object->isString())
        return false;
    if (!pRequest->bAnswered && isDeath(message.value(QLatin1String("signal"))))
        return false;
    return nCharacters <= NameCharacters
        || (isShort(message, "object") && isShort(message, pRequest->pMember));
}

QString forLog(const QString &strText)
{
    if (strText.size() <= LoggedCharacters)
        return strText;
    return QStringLiteral("%1... (%2 characters)").arg(strText.left(LoggedCharacters)).arg(strText.size());
}

} // namespace ClientPolicy
