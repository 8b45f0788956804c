// SPDX-License-Identifier: MIT
#include <webchannel/clientpolicy.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>
#include <support/rows.h>

using ClientPolicy::Verdict;

namespace {

constexpr quint16 Port = 4711;
const QByteArray Key = "0123456789abcdefghijklmnopqrstuvwxyz_-ABCDE";

} // namespace

class tst_ClientPolicy : public QObject
{
    Q_OBJECT

private slots:
    void hostIsALoopBackNameWithTheServersPort_data()
    {
        const auto row = columns<QByteArray, bool>("host", "accepted");
        row("the address", "127.0.0.1:4711", true);
        row("the name in any case", "LocalHost:4711", true);
        row("the address of the sixth version", "[::1]:4711", true);
        row("no host", "", false);
        row("no port", "127.0.0.1", false);
        row("another port", "127.0.0.1:4712", false);
        row("a port that begins like ours", "127.0.0.1:47110", false);
        row("a foreign name on our port", "evil.example:4711", false);
        row("a foreign name that begins like ours", "localhost.evil.example:4711", false);
        row("a foreign name that ends like ours", "evil-localhost:4711", false);
        row("a user before a foreign name", "127.0.0.1:4711@evil.example:4711", false);
        row("the address of all interfaces", "0.0.0.0:4711", false);
        row("blanks around it", " 127.0.0.1:4711 ", false);
    }

    void hostIsALoopBackNameWithTheServersPort()
    {
        QFETCH(const QByteArray, host);
        QFETCH(const bool, accepted);
        QCOMPARE(ClientPolicy::judge({std::nullopt, host, {}}, Port, Key),
            accepted ? Verdict::Accept : Verdict::RefuseHost);
        const Verdict keyed =
            ClientPolicy::judge({QByteArray("http://a"), host, "key=" + QString::fromLatin1(Key)}, Port, Key);
        QCOMPARE(keyed, accepted ? Verdict::Accept : Verdict::RefuseHost);
    }

    void foreignOriginsNeedTheKeyOnceAndWhole_data()
    {
        const auto row = columns<QString, bool>("query", "accepted");
        const QString key = QString::fromLatin1(Key);
        row("the key", "key=" + key, true);
        row("the key among others", "a=b&key=" + key + "&c", true);
        row("an escaped letter in it", "key=%30" + key.mid(1), true);
        row("no query", {}, false);
        row("no value", "key", false);
        row("an empty value", "key=", false);
        row("the first half", "key=" + key.left(21), false);
        row("one letter less", "key=" + key.chopped(1), false);
        row("one letter more", "key=" + key + "x", false);
        row("the first letter wrong", "key=x" + key.mid(1), false);
        row("the last letter wrong", "key=" + key.chopped(1) + "x", false);
        row("other case", "key=" + key.toUpper(), false);
        row("twice", "key=" + key + "&key=" + key, false);
        row("right, then wrong", "key=" + key + "&key=x", false);
        row("wrong, then right", "key=x&key=" + key, false);
        row("under another name", "Key=" + key, false);
        row("a zero byte behind it", "key=" + key + "%00", false);
    }

    void foreignOriginsNeedTheKeyOnceAndWhole()
    {
        QFETCH(const QString, query);
        QFETCH(const bool, accepted);
        for (const char *pOrigin : {"null", "http://evil.example", "http://127.0.0.1:4711", "QRC:", "qrc",
                 "qrc:/", "qrc://", "qrc:x", "xqrc:", " qrc:", "qrc:, qrc:", "file://", ""})
            QCOMPARE(ClientPolicy::judge({QByteArray(pOrigin), "127.0.0.1:4711", query}, Port, Key),
                accepted ? Verdict::Accept : Verdict::RefuseOrigin);
        for (const std::optional<QByteArray> &own : {std::optional<QByteArray>(), {QByteArray("qrc:")}})
            QCOMPARE(ClientPolicy::judge({own, "127.0.0.1:4711", query}, Port, Key), Verdict::Accept);
    }

    void noKeyMatchesAnEmptyOne()
    {
        const ClientPolicy::Handshake handshake {QByteArray("null"), "127.0.0.1:4711", "key="};
        QCOMPARE(ClientPolicy::judge(handshake, Port, {}), Verdict::RefuseOrigin);
    }

    void keysDifferAndFitIntoAUrl()
    {
        QSet<QByteArray> keys;
        const QRegularExpression safe("^[A-Za-z0-9_-]{43}$");
        for (int i = 0; i < 100; ++i) {
            const QByteArray key = ClientPolicy::createKey();
            QVERIFY(safe.match(QString::fromLatin1(key)).hasMatch());
            keys.insert(key);
        }
        QCOMPARE(keys.size(), 100);
    }

    void onlyRequestsOfTheProtocolReachTheChannel_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("passes");
        const QByteArray longest(ClientPolicy::NameCharacters, 'x');
        const auto row = [&](const char *pName, QByteArray message, bool bPasses) {
            QTest::newRow(pName) << message.replace("LONGEST", longest) << bPasses;
        };
        row("the start", R"({"type":3,"id":"a"})", true);
        row("ready for updates", R"({"type":4})", true);
        row("a call by name", R"({"type":6,"id":0,"object":"a","method":"b","args":[]})", true);
        row("a call by number", R"({"type":6,"id":0,"object":"a","method":2,"args":[]})", true);
        row("a signal wanted", R"({"type":7,"object":"a","signal":5})", true);
        row("a signal no longer wanted", R"({"type":8,"object":"a","signal":5})", true);
        row("the death of an object no longer wanted", R"({"type":8,"object":"a","signal":0})", false);
        row("its death without an argument no longer wanted", R"({"type":8,"object":"a","signal":1})", false);
        row("its death by name wanted", R"({"type":7,"object":"a","signal":"destroyed"})", false);
        row("a property set", R"({"type":9,"object":"a","property":1,"value":[1]})", true);
        row("the longest names", R"({"type":7,"object":"LONGEST","signal":"LONGEST"})", true);
        row("a longer object", R"({"type":7,"object":"xLONGEST"})", false);
        row("a longer method", R"({"type":6,"id":1,"object":"a","method":"xLONGEST"})", false);
        row("no type", R"({"id":1})", false);
        row("a type as text", R"({"type":"4"})", false);
        row("a type and a half", R"({"type":4.5})", false);
        row("an answer", R"({"type":10,"id":1})", false);
        row("text for the standard output", R"({"type":5,"data":"x"})", false);
        row("a start without an id", R"({"type":3})", false);
        row("a call without an id", R"({"type":6,"object":"a","method":"b"})", false);
        row("a call of no object", R"({"type":6,"id":1,"method":"b"})", false);
        row("an object that is no text", R"({"type":7,"object":["a"],"signal":5})", false);
    }

    void onlyRequestsOfTheProtocolReachTheChannel()
    {
        QFETCH(const QByteArray, message);
        const QJsonDocument document = QJsonDocument::fromJson(message);
        QVERIFY(document.isObject());
        QTEST(ClientPolicy::isForChannel(document.object(), message.size()), "passes");
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
