// SPDX-License-Identifier: MIT
// Real pages in a real browser engine.
#include <updater/testserver.h>
#include <webchannel/channelserver.h>

#include <support/rows.h>

#include <QApplication>
#include <QWebEnginePage>

class tst_WebPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const QString strName : {"/page.html", "/qwebchannel.js"}) {
            QFile file(":/qtwebchannel" + strName);
            QVERIFY(file.copy(m_folder.path() + strName) && file.open(QIODevice::ReadOnly));
            m_pages.body(strName, file.readAll());
        }
    }

    void onlyOurOwnPagesComeInWithoutTheKey_data()
    {
        const auto row = columns<QString, bool>("page", "own");
        row("our own", "qrc:///qtwebchannel/page.html", true);
        row("another server", m_pages.url("/page.html"), false);
        row("a file", "file://" + m_folder.filePath("page.html"), false);
    }

    // The page calls an object, and hears of its signals and properties.
    void onlyOurOwnPagesComeInWithoutTheKey()
    {
        QFETCH(const QString, page);
        QFETCH(const bool, own);
        ChannelServer program;
        const ChannelLog log;
        const QString strUrl = program.url().toString();
        const QString strServers = strUrl + ' ' + strUrl + "?key=" + program.wrapper.getKey();
        const QSignalSpy titles(&m_page, &QWebEnginePage::titleChanged);
        m_page.load(QUrl(page + '#' + QString::fromLatin1(QUrl::toPercentEncoding(strServers))));
        QTRY_VERIFY_WITH_TIMEOUT(
            !titles.isEmpty() && titles.last().first().toString().startsWith("done"), 60000);
        QCOMPARE(m_page.title(),
            own ? "done: change 5, result 5, signal, property 5; change 10, result 10, signal, property 10"
                : "done: closed 1008; change 5, result 5, signal, property 5");
        QCOMPARE(program.counter.total(), own ? 10 : 5);
        QCOMPARE(program.clients.size(), own ? 2 : 1);
        QCOMPARE(log.lines().size(), own ? 0 : 1);
    }

private:
    TestServer m_pages;
    QTemporaryDir m_folder;
    QWebEnginePage m_page;
};

int main(int argc, char *argv[])
{
    // The engine's own sandbox needs rights that test machines do not give.
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
    const QApplication app(argc, argv);
    tst_WebPage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_webpage.moc"
