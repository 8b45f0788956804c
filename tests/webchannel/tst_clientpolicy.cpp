// SPDX-License-Identifier: MIT
// Each rule stands here a second time, in the plainest way, and is compared over all combinations.
#include <webchannel/clientpolicy.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>

using ClientPolicy::Verdict;

namespace {

constexpr quint16 s_port = 4711;
const QByteArray s_key = "0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE";

} // namespace

class tst_ClientPolicy : public QObject
{
    Q_OBJECT

private slots:
    void handshakesAreJudgedByHostThenOriginThenKey()
    {
        const QString strKey = QString::fromLatin1(s_key);
        const QList<QByteArray> goodHosts {"127.0.0.1:4711", "LocalHost:4711", "[::1]:4711"};
        const QList<QByteArray> badHosts {"", "127.0.0.1", "127.0.0.1:4712", "127.0.0.1:47110",
            "evil.example:4711", "localhost.evil.example:4711", "evil-localhost:4711",
            "127.0.0.1:4711@evil.example:4711", "0.0.0.0:4711", " 127.0.0.1:4711 ", "[::1]"};
        const QList<std::optional<QByteArray>> ownOrigins {std::nullopt, "qrc:"};
        const QList<std::optional<QByteArray>> foreignOrigins {"null", "http://evil.example",
            "http://127.0.0.1:4711", "QRC:", "qrc", "qrc:/", "qrc://", "qrc:x",
            "xqrc:", " qrc:", "qrc:, qrc:", "file://", ""};
        const QStringList goodQueries {
            "key=" + strKey, "a=b&key=" + strKey + "&c", "key=%30" + strKey.mid(1)};
        const QStringList badQueries {{}, "key", "key=", "key=" + strKey.left(21), "key=" + strKey.chopped(1),
            "key=" + strKey + "x", "key=x" + strKey.mid(1), "key=" + strKey.chopped(1) + "x",
            "key=" + strKey.toUpper(), "key=" + strKey + "&key=" + strKey, "key=" + strKey + "&key=x",
            "key=x&key=" + strKey, "Key=" + strKey, "key=" + strKey + "%00"};
        for (const QByteArray &host : goodHosts + badHosts)
            for (const std::optional<QByteArray> &origin : ownOrigins + foreignOrigins)
                for (const QString &strQuery : goodQueries + badQueries) {
                    const Verdict expected = !goodHosts.contains(host) ? Verdict::RefuseHost
                        : ownOrigins.contains(origin) || goodQueries.contains(strQuery)
                        ? Verdict::Accept
                        : Verdict::RefuseOrigin;
                    QVERIFY2(ClientPolicy::judge({origin, host, strQuery}, s_port, s_key) == expected,
                        qPrintable(host + ' ' + origin.value_or("none") + ' ' + strQuery.toLatin1()));
                }
        QCOMPARE(ClientPolicy::judge({"null", goodHosts.first(), "key="}, s_port, {}), Verdict::RefuseOrigin);
    }

    void keysDifferAndFitIntoAUrl()
    {
        QSet<QByteArray> keys;
        const QRegularExpression safe("^[A-Za-z0-9_-]{43}$");
        for (int i = 0; i < 100; ++i) {
            keys.insert(ClientPolicy::createKey());
            QVERIFY(safe.match(QString::fromLatin1(ClientPolicy::createKey())).hasMatch());
        }
        QCOMPARE(keys.size(), 100);
    }

    void onlyRequestsOfTheProtocolReachTheChannel()
    {
        const QJsonValue absent(QJsonValue::Undefined);
        const QString strFits(ClientPolicy::NameCharacters, QLatin1Char('x'));
        const QString strLong = strFits + QLatin1Char('x');
        const QList<QJsonValue> names {
            absent, 0, 1, 2, "b", "destroyed", "destroyed(QObject*)", strFits, strLong, QJsonArray {"b"}};
        QList<QJsonValue> types {absent, "4", 4.5};
        for (int i = -1; i < 12; ++i)
            types.append(i);
        const QMap<double, QString> members {{6, "method"}, {7, "signal"}, {8, "signal"}, {9, "property"}};
        for (const QJsonValue &type : std::as_const(types))
            for (const QJsonValue &id : {absent, QJsonValue(0), QJsonValue("a")})
                for (const QJsonValue &object : names)
                    for (const QJsonValue &name : names) {
                        const QString strMember = members.value(type.toDouble());
                        QJsonObject message {{"type", type}, {"id", id}, {"object", object}};
                        message[strMember.isEmpty() ? "signal" : strMember] = name;
                        const bool bDeath = strMember == "signal"
                            && (name == 0 || name == 1 || name.toString().startsWith("destroyed"));
                        const bool bNamed = object.isString() && object != strLong && name != strLong;
                        const bool bPasses = type == 4 || (type == 3 && !id.isUndefined())
                            || (type == 6 && !id.isUndefined() && bNamed)
                            || (type.toDouble() >= 7 && type.toDouble() <= 9 && bNamed && !bDeath);
                        const QByteArray text = QJsonDocument(message).toJson(QJsonDocument::Compact);
                        QVERIFY2(
                            ClientPolicy::isForChannel(message, text.size()) == bPasses, text.constData());
                    }
    }

    void longTextsAreLoggedByTheirBeginning()
    {
        const QString strFits(ClientPolicy::LoggedCharacters, QLatin1Char('x'));
        QCOMPARE(ClientPolicy::forLog(strFits), strFits);
        QCOMPARE(ClientPolicy::forLog(strFits + QLatin1Char('y')),
            strFits + QStringLiteral("... (%1 characters)").arg(strFits.size() + 1));
    }
};

QTEST_GUILESS_MAIN(tst_ClientPolicy)
#include "tst_clientpolicy.moc"
