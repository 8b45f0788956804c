// SPDX-License-Identifier: MIT
// Real pages in a real browser engine.
#include <updater/testserver.h>
#include <webchannel/channelserver.h>

#include <support/rows.h>

#include <QApplication>
#include <QWebEnginePage>

namespace {

QByteArray read(const QString &strName)
{
    QFile file(":/qtwebchannel/" + strName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_WebPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const char *pFile : {"page.html", "qwebchannel.js"}) {
            QFile file(m_folder.filePath(pFile));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(read(pFile)) > 0);
            m_pages.body(QStringLiteral("/") + pFile, read(pFile));
        }
    }

    void ownPageCallsAnObjectAndHearsOfItsSignalsAndProperties()
    {
        ChannelServer program;
        QCOMPARE(titleOf("qrc:///qtwebchannel/page.html", program.url()), s_served);
        QCOMPARE(program.counter.total(), 5);
    }

    void pageOfAnotherOriginIsRefusedWithoutTheKey_data()
    {
        const auto row = columns<QString>("page");
        row("another server", m_pages.url("/page.html"));
        row("another server by name", m_pages.url("/page.html").replace("127.0.0.1", "localhost"));
        row("a file", "file://" + m_folder.filePath("page.html"));
    }

    void pageOfAnotherOriginIsRefusedWithoutTheKey()
    {
        QFETCH(const QString, page);
        ChannelServer program;
        const ChannelLog log;
        QCOMPARE(titleOf(page, program.url()), "closed 1008");
        QCOMPARE(program.clients.size(), 0);
        QCOMPARE(log.lines().size(), 1);

        QUrl url = program.url();
        url.setQuery("key=" + program.wrapper.getKey());
        QCOMPARE(titleOf(page, url), s_served);
        QCOMPARE(program.counter.total(), 5);
        QCOMPARE(log.lines().size(), 1);
    }

private:
    /// The title that a page ends with after it went to the server.
    static QString titleOf(const QString &strPage, const QUrl &server)
    {
        QWebEnginePage page;
        page.load(QUrl(strPage + QLatin1Char('#')
            + QString::fromLatin1(QUrl::toPercentEncoding(server.toString(QUrl::FullyEncoded)))));
        const auto isDone = [&] {
            return page.title().contains("closed") || page.title().contains("property");
        };
        return QTest::qWaitFor(isDone, 60000) ? page.title() : "nothing: " + page.title();
    }

    static inline const QString s_served = "change 5, result 5, signal, property 5";
    TestServer m_pages;
    QTemporaryDir m_folder;
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
