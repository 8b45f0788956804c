// SPDX-License-Identifier: MIT
#include "updatetest.h"

#include <updater/installercheck.h>
#include <updater/updater.h>

#include <QCryptographicHash>
#include <QThread>

#include <sodium.h>

namespace {

const QByteArray s_installer = QByteArray("installer").repeated(100000);

struct Keys
{
    Keys() { crypto_sign_keypair(open, secret); }

    [[nodiscard]] QString publicKey() const
    {
        return base64(QByteArray(reinterpret_cast<const char *>(open), sizeof open));
    }
    [[nodiscard]] QString sign(const QByteArray &content) const
    {
        QByteArray result(crypto_sign_BYTES, 0);
        crypto_sign_detached(reinterpret_cast<unsigned char *>(result.data()), nullptr,
            reinterpret_cast<const unsigned char *>(content.constData()), content.size(), secret);
        return base64(result);
    }
    static QString base64(const QByteArray &bytes) { return QString::fromLatin1(bytes.toBase64()); }

    unsigned char open[crypto_sign_PUBLICKEYBYTES];
    unsigned char secret[crypto_sign_SECRETKEYBYTES];
};

QString sum(const QByteArray &content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

} // namespace

class tst_InstallerCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(sodium_init() >= 0);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        expectNoEngine();
    }

    void onlySignedInstallersAreOpened_data()
    {
        const auto row = columns<QString, QString, QString, QString>(
            "key", "sha256", "signature", "reason"); // empty: opened
        const Keys keys;
        const Keys others;
        const QString strKey = keys.publicKey();
        const QString strSum = sum(s_installer);
        const QString strSignature = keys.sign(s_installer);
        const QString strNone = "has no signature";
        const QString strBad = "its signature is not valid";
        row("no key, nothing announced", "", "", "", "");
        row("no key, and all that is announced is wrong", "", sum("x"), keys.sign("x"), "");
        row("signed", strKey, strSum, strSignature, "");
        row("signed, sum in capitals", strKey, strSum.toUpper(), strSignature, "");
        row("signed, no sum", strKey, "", strSignature, "");
        row("no signature", strKey, strSum, "", strNone);
        row("a signature that is cut", strKey, strSum, strSignature.left(40), strNone);
        row("a signature that is no Base64", strKey, strSum, QString(88, QLatin1Char('!')), strNone);
        row("signed by somebody else", strKey, strSum, others.sign(s_installer), strBad);
        row("the signature of another file", strKey, strSum, keys.sign("x"), strBad);
        row("the sum of another file", strKey, sum("x"), strSignature,
            "its check sum is not the announced one");
        row("a damaged key", "secret", strSum, strSignature, "the key to check its signature");
        row("a key with a comma", strKey + QLatin1Char(','), strSum, strSignature,
            "the key to check its signature");
    }

    void onlySignedInstallersAreOpened()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, sha256);
        QFETCH(const QString, signature);
        QFETCH(const QString, reason);
        TestHome home;
        TestProgram program;
        if (!key.isEmpty())
            ExtensionSystem::PluginManager::globalSettings()->setValue("Updates/PublicKey", key);
        ExtensionSystem::PluginManager::settings()->setValue("Updates/PublicKey", QString());
        TestServer server;
        const QJsonObject verification {{"sha256", sha256}, {"signature", signature}};
        server.body("/", feed("9", server.url("/x"), {{"verification", verification}}));
        server.body("/x", s_installer);
        Updater updater;
        updater.setUrl(server.url("/"));
        const OfferAnswers offers("m_pBtnUpdate");
        const BoxAnswers boxes({QMessageBox::Ok});
        const QSignalSpy downloaded(&updater, &Updater::downloadFinished);
        if (!reason.isEmpty())
            expectWarning("No update: ");
        updater.checkForUpdates(true);
        QTRY_COMPARE(boxes.boxes.size(), 1);
        QTRY_COMPARE(home.opened.size(), reason.isEmpty() ? 1 : 0);
        QVERIFY2(boxes.texts().first().contains(reason), qPrintable(boxes.texts().first()));
        QCOMPARE(home.downloads(), reason.isEmpty() ? QStringList("x") : QStringList());
        QCOMPARE(downloaded.size(), reason.isEmpty() ? 1 : 0);
    }

    void damagedStoreOfTheMachineLetsNothingPass_data()
    {
        const auto row =
            columns<QByteArray, bool>("content", "damaged"); // null: a folder stands in the place of the file
        row("another section", QByteArray("[Updates]\nFeedUrl=http://k.example\n"), false);
        row("an empty store", QByteArray(""), false);
        row("an empty key", QByteArray("[Updates]\nPublicKey=\n"), true);
        row("a key that is no text", QByteArray("[Updates]\nPublicKey=@Invalid()\n"), true);
        row("a line of noise", QByteArray("[Updates\nnoise\n"), true);
        row("a folder", QByteArray(), true);
    }

    void damagedStoreOfTheMachineLetsNothingPass()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const bool, damaged);
        TestProgram program;
        if (content.isNull())
            QVERIFY(QDir().mkpath(program.filePath("m.ini")));
        else
            program.write("m.ini", content);
        program.manager.setGlobalSettings(
            std::make_unique<QSettings>(program.filePath("m.ini"), QSettings::IniFormat));
        Download download(TestServer::ok("x")); // that nobody told a key
        const BoxAnswers boxes({QMessageBox::Ok});
        if (damaged)
            expectWarning("No update: ");
        if (content.startsWith("[Updates\n") || content.isNull())
            expectWarning("Settings " + program.filePath("m.ini") + ": it is ");
        download.start();
        QTRY_COMPARE(boxes.boxes.size(), 1);
        QTRY_COMPARE(download.home.opened.size(), damaged ? 0 : 1);
        QCOMPARE(boxes.texts().first().contains("with is damaged"), damaged);
    }

    // Between the download and the click on Open anything may have happened to the file.
    void installerIsCheckedAgainBeforeItIsOpened()
    {
        for (const bool deletable : {true, false}) { // a folder is not deleted as a file is
            const Keys keys;
            Download download(TestServer::ok(s_installer));
            download.downloader.setInstallerCheck({keys.publicKey(), QString(), keys.sign(s_installer)});
            const BoxAnswers boxes({QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Ok});
            download.start();
            QTRY_VERIFY(download.openButton()->isEnabled());
            const QString strFile = Downloader::downloadFolder() + QLatin1Char('x');
            QVERIFY(QFile::remove(strFile) && (deletable || QDir().mkpath(strFile)));
            if (deletable)
                download.home.write("x", "evil");
            expectWarning("No update: ");
            download.openButton()->click();
            QTRY_COMPARE(boxes.boxes.size(), 3);
            const QString strText = boxes.texts().last();
            QVERIFY2(strText.startsWith("The update is not installed: "), qPrintable(strText));
            QCOMPARE(strText.contains("was deleted, because its signature is not valid"), deletable);
            QCOMPARE(strText.contains("deleted"), deletable);
            QCOMPARE(download.home.downloads(), deletable ? QStringList() : QStringList("x.part"));
            QVERIFY(download.home.opened.isEmpty() && !download.openButton()->isEnabled());
        }
    }

    void fileMayShrinkWhileItIsChecked()
    {
        constexpr qint64 nSize = qint64(64) << 20;
        const QTemporaryDir folder;
        QFile file(folder.filePath("x"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(nSize));
        const InstallerCheck check {Keys().publicKey(), {}, Keys().sign("x")};
        QString strReason;
        const std::unique_ptr<QThread> pThread(
            QThread::create([&] { strReason = check.check(file.fileName()); }));
        pThread->start();
        while (pThread->isRunning())
            QVERIFY(file.resize(0) && file.resize(nSize));
        QCOMPARE(strReason, "its signature is not valid");
    }

    void windowThatClosesDuringTheCheckStaysClosed()
    {
        const QByteArray large(40 << 20, 'l');
        const Keys keys;
        const BoxAnswers boxes({});
        Download download(TestServer::ok(large));
        download.downloader.setInstallerCheck({keys.publicKey(), QString(), keys.sign(large)});
        download.start();
        QTRY_COMPARE_WITH_TIMEOUT(download.child("timeLabel")->text(), "Checking the signature...", 20000);
        download.downloader.close();
        QTRY_VERIFY(download.downloader.findChildren<QThread *>().isEmpty());
        QVERIFY(boxes.boxes.isEmpty() && download.downloaded.isEmpty() && !download.downloader.isVisible());
        QCOMPARE(download.home.downloads(), {"x.part"});
    }
};

QTEST_MAIN(tst_InstallerCheck)
#include "tst_installercheck.moc"
