// SPDX-License-Identifier: MIT
#include "testserver.h"
#include "updatetest.h"

#include <updater/installercheck.h>
#include <updater/updater.h>

#include <QCryptographicHash>
#include <QSignalSpy>

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
    }

    void onlySignedInstallersAreOpened_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("sha256");
        QTest::addColumn<QString>("signature");
        QTest::addColumn<QString>("reason"); // empty: opened
        const Keys keys;
        const Keys others;
        const QString strKey = keys.publicKey();
        const QString strSum = sum(s_installer);
        const QString strSignature = keys.sign(s_installer);
        const QString strNone = QStringLiteral("has no signature");
        const QString strBad = QStringLiteral("its signature is not valid");
        QTest::newRow("no key, nothing announced") << ""
                                                   << ""
                                                   << ""
                                                   << "";
        QTest::newRow("no key, and all that is announced is wrong") << "" << sum("x") << keys.sign("x") << "";
        QTest::newRow("signed") << strKey << strSum << strSignature << "";
        QTest::newRow("signed, sum in capitals") << strKey << strSum.toUpper() << strSignature << "";
        QTest::newRow("signed, no sum") << strKey << "" << strSignature << "";
        QTest::newRow("no signature") << strKey << strSum << "" << strNone;
        QTest::newRow("a signature that is cut") << strKey << strSum << strSignature.left(40) << strNone;
        QTest::newRow("a signature that is no Base64")
            << strKey << strSum << QString(88, QLatin1Char('!')) << strNone;
        QTest::newRow("signed by somebody else") << strKey << strSum << others.sign(s_installer) << strBad;
        QTest::newRow("the signature of another file") << strKey << strSum << keys.sign("x") << strBad;
        QTest::newRow("a signature of zeros")
            << strKey << strSum << Keys::base64(QByteArray(crypto_sign_BYTES, 0)) << strBad;
        QTest::newRow("the sum of another file")
            << strKey << sum("x") << strSignature << "its check sum is not the announced one";
        QTest::newRow("a damaged key")
            << "secret" << strSum << strSignature << "the key to check its signature";
        QTest::newRow("a key with a comma")
            << strKey + QLatin1Char(',') << strSum << strSignature << "the key to check its signature";
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
            ExtensionSystem::PluginManager::globalSettings()->setValue(
                QStringLiteral("Updates/PublicKey"), key);
        ExtensionSystem::PluginManager::settings()->setValue(QStringLiteral("Updates/PublicKey"), QString());
        TestServer server;
        const QJsonObject verification {
            {QStringLiteral("sha256"), sha256}, {QStringLiteral("signature"), signature}};
        server.body(QStringLiteral("/"),
            feed(QStringLiteral("9"), server.url(QStringLiteral("/x")),
                {{QStringLiteral("verification"), verification}}));
        server.body(QStringLiteral("/x"), s_installer);
        Updater updater;
        updater.setUrl(server.url(QStringLiteral("/")));
        const OfferAnswers offers(QStringLiteral("m_pBtnUpdate"));
        const BoxAnswers boxes({QMessageBox::Ok});
        const QSignalSpy downloaded(&updater, &Updater::downloadFinished);
        updater.checkForUpdates(true);
        QTRY_COMPARE(boxes.boxes.size(), 1);
        QTRY_COMPARE(home.opened.size(), reason.isEmpty() ? 1 : 0);
        QVERIFY2(boxes.texts().first().contains(reason), qPrintable(boxes.texts().first()));
        QCOMPARE(home.downloads(), reason.isEmpty() ? QStringList(QStringLiteral("x")) : QStringList());
        QCOMPARE(downloaded.size(), reason.isEmpty() ? 1 : 0);
    }

    void damagedStoreOfTheMachineLetsNothingPass_data()
    {
        QTest::addColumn<QByteArray>("content"); // null: a folder stands in the place of the file
        QTest::addColumn<bool>("damaged");
        QTest::newRow("another section") << QByteArray("[Updates]\nFeedUrl=http://k.example\n") << false;
        QTest::newRow("an empty store") << QByteArray("") << false;
        QTest::newRow("an empty key") << QByteArray("[Updates]\nPublicKey=\n") << true;
        QTest::newRow("a key that is no text") << QByteArray("[Updates]\nPublicKey=@Invalid()\n") << true;
        QTest::newRow("a line of noise") << QByteArray("[Updates\nnoise\n") << true;
        QTest::newRow("a folder") << QByteArray() << true;
    }

    void damagedStoreOfTheMachineLetsNothingPass()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const bool, damaged);
        TestHome home;
        TestProgram program;
        if (content.isNull())
            QVERIFY(QDir().mkpath(program.filePath("m.ini")));
        else
            program.write("m.ini", content);
        program.manager.setGlobalSettings(
            std::make_unique<QSettings>(program.filePath("m.ini"), QSettings::IniFormat));
        QCOMPARE(InstallerCheck::configuredKey().isEmpty(), !damaged);
        TestServer server;
        server.body(QStringLiteral("/x"), s_installer);
        Downloader downloader; // that nobody told a key
        downloader.setFileName(QStringLiteral("x"));
        const BoxAnswers boxes({QMessageBox::Ok});
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        QTRY_COMPARE(boxes.boxes.size(), 1);
        QTRY_COMPARE(home.opened.size(), damaged ? 0 : 1);
        QCOMPARE(boxes.texts().first().contains(QStringLiteral("with is damaged")), damaged);
    }

    // Between the download and the click on Open anything may have happened to the file.
    void installerIsCheckedAgainBeforeItIsOpened()
    {
        TestHome home;
        TestServer server;
        server.body(QStringLiteral("/x"), s_installer);
        const Keys keys;
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setInstallerCheck({keys.publicKey(), QString(), keys.sign(s_installer)});
        const BoxAnswers boxes({QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Ok});
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        auto *pOpen = downloader.findChild<QPushButton *>(QStringLiteral("openButton"));
        QTRY_VERIFY(pOpen->isEnabled());
        QFile file(Downloader::downloadFolder() + QLatin1Char('x'));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("evil") == 4);
        file.close();
        pOpen->click();
        QTRY_COMPARE(boxes.boxes.size(), 3);
        QVERIFY(
            boxes.texts().last().contains(QStringLiteral("was deleted, because its signature is not valid")));
        QVERIFY(home.downloads().isEmpty() && home.opened.isEmpty());
    }

    void deletionThatFailedIsNotClaimed()
    {
        TestHome home;
        TestServer server;
        server.body(QStringLiteral("/x"), s_installer);
        const Keys keys;
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setInstallerCheck({keys.publicKey(), QString(), keys.sign(s_installer)});
        const BoxAnswers boxes({QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Ok});
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        auto *pOpen = downloader.findChild<QPushButton *>(QStringLiteral("openButton"));
        QTRY_VERIFY(pOpen->isEnabled());
        const QString strFile = Downloader::downloadFolder() + QLatin1Char('x');
        QVERIFY(QFile::remove(strFile) && QDir().mkpath(strFile)); // a folder is not deleted as a file is
        pOpen->click();
        QTRY_COMPARE(boxes.boxes.size(), 3);
        const QString strText = boxes.texts().last();
        QVERIFY2(strText.startsWith(QStringLiteral("The update is not installed: ")), qPrintable(strText));
        QVERIFY(!strText.contains(QStringLiteral("deleted")));
        QCOMPARE(home.downloads(), {QStringLiteral("x.part")});
        QVERIFY(home.opened.isEmpty() && !pOpen->isEnabled());
    }

    void windowThatClosesDuringTheCheckStaysClosed()
    {
        TestHome home;
        TestServer server;
        const QByteArray large(40 << 20, 'l');
        server.body(QStringLiteral("/x"), large);
        const Keys keys;
        const BoxAnswers boxes({});
        Downloader downloader;
        downloader.setFileName(QStringLiteral("x"));
        downloader.setInstallerCheck({keys.publicKey(), QString(), keys.sign(large)});
        const QSignalSpy downloaded(&downloader, &Downloader::downloadFinished);
        downloader.startDownload(QUrl(server.url(QStringLiteral("/x"))));
        auto *pTime = downloader.findChild<QLabel *>(QStringLiteral("timeLabel"));
        QTRY_COMPARE_WITH_TIMEOUT(pTime->text(), QStringLiteral("Checking the signature..."), 20000);
        downloader.close();
        QTRY_VERIFY(downloader.findChildren<QThread *>().isEmpty());
        QCOMPARE(downloaded.size(), 0);
        QVERIFY(boxes.boxes.isEmpty() && !downloader.isVisible());
        QCOMPARE(home.downloads(), {QStringLiteral("x.part")});
    }
};

QTEST_MAIN(tst_InstallerCheck)
#include "tst_installercheck.moc"
