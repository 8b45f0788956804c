// SPDX-License-Identifier: MIT
#include <updater/appcast.h>
#include <updater/updatetexts.h>

#include <QtTest>

using namespace UpdateTexts;

class tst_UpdateTexts : public QObject
{
    Q_OBJECT

private slots:
    void newerVersion_data()
    {
        QTest::addColumn<QString>("latest");
        QTest::addColumn<QString>("running");
        QTest::addColumn<bool>("isNewer");
        const auto row = [](const char *pName, const char *pLatest, const char *pRunning, bool bNewer) {
            QTest::newRow(pName) << QString::fromUtf8(pLatest) << QString::fromUtf8(pRunning) << bNewer;
        };
        row("same version", "3.1.4", "3.1.4", false);
        row("next patch", "3.1.5", "3.1.4", true);
        row("previous patch", "3.1.3", "3.1.4", false);
        row("numbers, not characters", "3.10", "3.9", true);
        row("numbers, not characters, in the third part", "3.0.10", "3.0.2", true);
        row("numbers, not characters, the other way", "3.9", "3.10", false);
        row("first part decides", "4.0.0", "3.9.9", true);
        row("first part decides, the other way", "3.9.9", "4.0.0", false);
        row("more parts are newer", "3.1.0", "3.1", true);
        row("fewer parts are not", "3.1", "3.1.0", false);
        row("fewer parts but a greater one", "3.2", "3.1.9.9", true);
        row("more parts but a smaller one", "3.0.9.9", "3.1", false);
        row("one part against one", "4", "3", true);
        row("leading zeros do not count", "3.01", "3.1", false);
        row("a suffix makes the part 0", "3.1-beta", "3.0", false);
        row("a suffix makes the running part 0", "3.1", "3.2-beta", true);
        row("two suffixes are equal", "3.2-rc", "3.1-beta", false);
        row("a word is 0", "new", "0", false);
        row("a letter before the number makes it 0", "v4.0", "3.0", false);
        row("an empty version is never newer", "", "3.1", false);
        row("any version with a part more is newer than none", "0.1", "", true);
        row("none against none", "", "", false);
        row("an empty part counts as 0", "3..1", "3.0.0", true);
        row("a dot at the end is a further part", "3.1.", "3.1", true);
        row("a number too large for an integer is 0", "99999999999.1", "3.1", false);
        row("a negative part is smaller", "3.-1", "3.0", false);
        row("digits of another script are no number", "\u0664.0", "3.0", false);
    }

    void newerVersion()
    {
        QFETCH(const QString, latest);
        QFETCH(const QString, running);
        QTEST(isNewer(latest, running), "isNewer");
    }

    void sizes()
    {
        QCOMPARE(size(0), QStringLiteral("0 bytes"));
        QCOMPARE(size(1023), QStringLiteral("1023 bytes"));
        QCOMPARE(size(1024), QStringLiteral("1 KB"));
        QCOMPARE(size(1500), QStringLiteral("1 KB"));
        QCOMPARE(size(1048575), QStringLiteral("1023 KB"));
        QCOMPARE(size(1048576), QStringLiteral("1 MB"));
        QCOMPARE(size(3 * 1048576 + 1), QStringLiteral("3 MB"));
        QCOMPARE(size(qint64(5) << 30), QStringLiteral("5120 MB"));
    }

    void durations()
    {
        QCOMPARE(duration(0), QStringLiteral("1 second"));
        QCOMPARE(duration(1), QStringLiteral("1 second"));
        QCOMPARE(duration(2), QStringLiteral("2 seconds"));
        QCOMPARE(duration(60), QStringLiteral("60 seconds"));
        QCOMPARE(duration(61), QStringLiteral("About 1 minute"));
        QCOMPARE(duration(90), QStringLiteral("About 2 minutes"));
        QCOMPARE(duration(7200), QStringLiteral("About 120 minutes"));
        QCOMPARE(duration(7201), QStringLiteral("About 2 hours"));
        QCOMPARE(duration(9000), QStringLiteral("About 3 hours"));
    }

    void estimateIsThatOfTheWholeDownload()
    {
        QCOMPARE(estimatedSeconds(1000, 10000, 2), 20.0);
        QCOMPARE(estimatedSeconds(1999, 10000, 2), 10.0); // 999 bytes a second, and whole seconds
        QVERIFY(estimatedSeconds(1000, 10000, 0) < 0);
        QVERIFY(estimatedSeconds(0, 10000, 5) < 0);
        QCOMPARE(estimatedSeconds(3, 100, 10), 100.0); // slower than a byte a second
    }

    void fileNamesStayInTheFolder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isKept");
        const auto row = [](const char *pName, const QString &strName, bool bKept) {
            QTest::newRow(pName) << strName << bKept;
        };
        row("a plain name", QStringLiteral("Kelpa-3.2.exe"), true);
        row("a name with spaces within", QStringLiteral("Kelpa Studio 3.2.msi"), true);
        row("a name in another script", QStringLiteral("\u5b89\u88c5.run"), true);
        row("an encoded path is one name", QStringLiteral("..%2F..%2Fetc"), false);
        row("an encoded space", QStringLiteral("Kelpa%20Setup.exe"), true);
        row("a name that only begins like a device", QStringLiteral("console.exe"), true);
        row("empty", QString(), false);
        row("the folder itself", QStringLiteral("."), false);
        row("the parent folder", QStringLiteral(".."), false);
        row("a path upward", QStringLiteral("../evil"), false);
        row("an absolute path", QStringLiteral("/etc/passwd"), false);
        row("a path with back-slashes", QStringLiteral("..\\evil.exe"), false);
        row("a drive", QStringLiteral("C:evil.exe"), false);
        row("a stream beside the file", QStringLiteral("a.exe:evil"), false);
        row("a hidden file", QStringLiteral(".bashrc"), false);
        row("a device", QStringLiteral("NUL"), false);
        row("a device in small letters with a suffix", QStringLiteral("com1.exe"), false);
        row("a device with a superscript digit", QStringLiteral("LPT\u00B2.txt"), false);
        row("a device with a space", QStringLiteral("aux .exe"), false);
        row("the console's input", QStringLiteral("CONIN$"), false);
        row("a new line", QStringLiteral("a\nb.exe"), false);
        row("a null character", QString(QStringLiteral("a.exe") + QChar(0) + QStringLiteral(".txt")), false);
        row("letters turned around", QStringLiteral("a\u202Eexe.txt"), false);
        row("a dot at the end", QStringLiteral("a.exe."), false);
        row("a space at the end", QStringLiteral("a.exe "), false);
        row("a wildcard", QStringLiteral("*.exe"), false);
        row("half a character", QString(QStringLiteral("a") + QChar(0xD800)), false);
        row("a name too long for a file system", QString(260, QLatin1Char('a')), false);
    }

    void fileNamesStayInTheFolder()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isKept);
        QCOMPARE(safeFileName(name), isKept ? name : QStringLiteral("Kelpa_Update.bin"));
    }

    void redirects_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("followed");
        QTest::addColumn<bool>("isAllowed");
        const auto row = [](const char *pName, const char *pFrom, const char *pTo, int nFollowed,
                             bool bAllowed) {
            QTest::newRow(pName) << QString::fromLatin1(pFrom) << QString::fromLatin1(pTo) << nFollowed
                                 << bAllowed;
        };
        row("to a secure address", "http://a", "https://b", 0, true);
        row("from a file to the web", "file:///a", "http://b", 0, true);
        row("the tenth", "http://a", "http://b", 9, true);
        row("the eleventh", "http://a", "http://b", 10, false);
        row("to an address that is not secure", "https://a", "http://a", 0, false);
        row("to a file", "http://a", "file:///etc/passwd", 0, false);
        row("to a script", "http://a", "javascript:alert(1)", 0, false);
        row("to no host", "http://a", "http:///x", 0, false);
        row("to nothing", "http://a", "", 0, false);
    }

    void redirects()
    {
        QFETCH(const QString, from);
        QFETCH(const QString, to);
        QFETCH(const int, followed);
        QTEST(redirectObjection(QUrl(from), QUrl(to), followed).isEmpty(), "isAllowed");
    }

    void feedIsReadByPlatform()
    {
        const QByteArray data = R"({"updates": {"windows": {"latest-version": "3.2", "open-url": "o",
            "changelog": "c", "download-url": "d", "verification": {"sha256": "s", "signature": "g"}}}})";
        const Appcast appcast = Appcast::parse(data, QStringLiteral("windows"));
        QCOMPARE(appcast.strFault, QString());
        QCOMPARE((QStringList {appcast.strLatestVersion, appcast.strOpenUrl, appcast.strChangelog,
                     appcast.strDownloadUrl, appcast.strSha256, appcast.strSignature}),
            QStringLiteral("3.2 o c d s g").split(QLatin1Char(' ')));
        const Appcast other = Appcast::parse(data, QStringLiteral("Windows"));
        QVERIFY(other.strLatestVersion.isEmpty() && !other.strFault.isEmpty());
    }

    void oddFeedsGiveNothingAndAReason_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("<html></html>");
        QTest::newRow("a list") << QByteArray(R"(["updates"])");
        QTest::newRow("nested too deep") << QByteArray(500000, '[');
        QTest::newRow("updates is a list") << QByteArray(R"({"updates": [{"windows": {}}]})");
        QTest::newRow("the platform is a text") << QByteArray(R"({"updates": {"windows": "3.2"}})");
        QTest::newRow("the version is a number")
            << QByteArray(R"({"updates": {"windows": {"latest-version": 9}}})");
        QTest::newRow("text that is not UTF-8") << QByteArray("{\"updates\": \"\xFF\xFE\"}");
        QTest::newRow("too large") << QByteArray(R"({"updates": {"windows": {"latest-version": "9"}}})")
                                          .leftJustified(Appcast::LargestSize + 1, ' ');
    }

    void oddFeedsGiveNothingAndAReason()
    {
        QFETCH(const QByteArray, data);
        const Appcast appcast = Appcast::parse(data, QStringLiteral("windows"));
        QCOMPARE(appcast.strLatestVersion, QString());
        QVERIFY(!appcast.strFault.isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_UpdateTexts)
#include "tst_updatetexts.moc"
