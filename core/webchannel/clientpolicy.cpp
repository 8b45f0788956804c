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

// If an attacker's host name resolves to this machine, a page from there still sends that name as its host.
bool isOwnHost(const QByteArray &host, quint16 nPort)
{
    const QByteArray port = ':' + QByteArray::number(nPort);
    const QByteArray lower = host.toLower();
    return lower == "127.0.0.1" + port || lower == "localhost" + port || lower == "[::1]" + port;
}

// A query with two keys is refused, since it is not clear which of them counts.
bool carriesKey(const QString &strQuery, const QByteArray &key)
{
    const QStringList keys =
        QUrlQuery(strQuery).allQueryItemValues(QStringLiteral("key"), QUrl::FullyDecoded);
    return keys.size() == 1 && !key.isEmpty() && equalInConstantTime(keys.first().toUtf8(), key);
}

struct Request
{
    int nType;
    bool bAnswered; // the channel answers it, so it needs an id
    const char *pMember; // of the object that it names; null: it names no object
};

// Types of messages that clients send, as numbered by QWebChannel: init, idle, invokeMethod, connectToSignal,
// disconnectFromSignal, setProperty. Type 5, debug, is left out: Qt writes its text to the standard output.
constexpr Request s_requests[] = {
    {3, true, nullptr},
    {4, false, nullptr},
    {6, true, "method"},
    {7, false, "signal"},
    {8, false, "signal"},
    {9, false, "property"},
};

// QWebChannel of Qt 6.4.2 keeps one connection to destroyed() of an object for its clients and for itself. A
// client that disconnects from it would leave the channel with a pointer to a deleted object.
bool isDeath(const QJsonValue &signal)
{
    const int nSignal = signal.toInt(-1);
    return nSignal == 0 || nSignal == 1 || signal.toString().startsWith(QLatin1String("destroyed"));
}

// A name must not be too long. A member may also be given by its number, which needs no check.
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

// In a message shorter than the limit no name can be too long, so most messages skip that check.
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
