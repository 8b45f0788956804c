// SPDX-License-Identifier: MIT
#include <updater/appcast.h>
#include <updater/updatetexts.h>

#include <QtTest>
#include <support/rows.h>

using namespace UpdateTexts;

class tst_UpdateTexts : public QObject
{
    Q_OBJECT

private slots:
    void newerVersion_data()
    {
        const auto row = columns<QString, QString, bool>("latest", "running", "isNewer");
        row("same version", "3.1.4", "3.1.4", false);
        row("numbers, not characters", "3.10", "3.9", true);
        row("more parts are newer", "3.1.0", "3.1", true);
        row("fewer parts are not", "3.1", "3.1.0", false);
        row("a suffix makes the part 0", "3.1-beta", "3.0", false);
        row("an empty version is never newer", "", "3.1", false);
        row("a dot at the end is a further part", "3.1.", "3.1", true);
        row("a number too large for an integer is 0", "99999999999.1", "3.1", false);
    }

    void newerVersion()
    {
        QFETCH(const QString, latest);
        QFETCH(const QString, running);
        QTEST(isNewer(latest, running), "isNewer");
    }

    void sizes()
    {
        QCOMPARE(size(1023), "1023 bytes");
        QCOMPARE(size(1024), "1 KB");
        QCOMPARE(size(1048575), "1023 KB");
        QCOMPARE(size(1048576), "1 MB");
        QCOMPARE(size(3 * 1048576 + 1), "3 MB");
        QCOMPARE(size(qint64(5) << 30), "5120 MB");
    }

    void durations()
    {
        QCOMPARE(duration(1.4), "1 second");
        QCOMPARE(duration(2), "2 seconds");
        QCOMPARE(duration(61), "About 1 minute");
        QCOMPARE(duration(90), "About 2 minutes");
        QCOMPARE(duration(7200), "About 120 minutes");
        QCOMPARE(duration(7201), "About 2 hours");
        QCOMPARE(duration(9000), "About 3 hours");
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
        const auto row = columns<QString, bool>("name", "isKept");
        row("a plain name", "Kelpa-3.2.exe", true);
        row("a name in another script", "\u5b89\u88c5.run", true);
        row("an encoded space", "Kelpa%20Setup.exe", true);
        row("a name that only begins like a device", "console.exe", true);
        row("empty", QString(), false);
        row("a path with back-slashes", "..\\evil.exe", false);
        row("a drive", "C:evil.exe", false);
        row("a hidden file", ".bashrc", false);
        row("a device", "NUL", false);
        row("a device in small letters with a suffix", "com1.exe", false);
        row("a device with a superscript digit", "LPT\u00B2.txt", false);
        row("a device with a space", "aux .exe", false);
        row("the console's input", "CONIN$", false);
        row("a new line", "a\nb.exe", false);
        row("letters turned around", "a\u202Eexe.txt", false);
        row("a dot at the end", "a.exe.", false);
        row("a space at the end", "a.exe ", false);
        row("half a character", QString("a") + QChar(0xD800), false);
        row("a name too long for a file system", QString(260, QLatin1Char('a')), false);
    }

    void fileNamesStayInTheFolder()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isKept);
        QCOMPARE(safeFileName(name), isKept ? name : "Kelpa_Update.bin");
    }

    void redirects_data()
    {
        const auto row = columns<QString, QString, int, bool>("from", "to", "followed", "isAllowed");
        row("to a secure address", "http://a", "https://b", 0, true);
        row("from a file to the web", "file:///a", "http://b", 0, true);
        row("the tenth", "http://a", "http://b", 9, true);
        row("the eleventh", "http://a", "http://b", 10, false);
        row("to an address that is not secure", "https://a", "http://a", 0, false);
        row("to a file", "http://a", "file:///etc/passwd", 0, false);
        row("to no host", "http://a", "http:///x", 0, false);
    }

    void redirects()
    {
        QFETCH(const QString, from);
        QFETCH(const QString, to);
        QFETCH(const int, followed);
        QTEST(redirectObjection(QUrl(from), QUrl(to), followed).isEmpty(), "isAllowed");
    }

    void feedIsRead_data()
    {
        const auto row = columns<QByteArray, QString>("data", "members");
        const QByteArray good = R"({"updates": {"windows": {"latest-version": "3.2", "open-url": "o",
            "changelog": "c", "download-url": "d", "verification": {"sha256": "s", "signature": "g"}}}})";
        row("all members", good, "3.2 o c d s g");
        row("as large as can be", good.leftJustified(Appcast::LargestSize, ' '), "3.2 o c d s g");
        row("larger", good.leftJustified(Appcast::LargestSize + 1, ' '), "");
        row("another platform", QByteArray(good).replace("windows", "Windows"), "");
        row("half a feed", good.chopped(9), "");
        row("a page", "<html>Welcome to the hotel's network</html>", "");
        row("brackets within brackets", QByteArray(900000, '['), "");
        row("updates that are a list", R"({"updates": []})", "");
        row("a version that is a number", R"({"updates": {"windows": {"latest-version": 9}}})", "");
    }

    void feedIsRead()
    {
        QFETCH(const QByteArray, data);
        const Appcast read = Appcast::parse(data, "windows");
        QTEST((QStringList {read.strLatestVersion, read.strOpenUrl, read.strChangelog, read.strDownloadUrl,
                   read.strSha256, read.strSignature})
                  .join(QLatin1Char(' '))
                  .trimmed(),
            "members");
        QCOMPARE(read.strFault.isEmpty(), !read.strLatestVersion.isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_UpdateTexts)
#include "tst_updatetexts.moc"
