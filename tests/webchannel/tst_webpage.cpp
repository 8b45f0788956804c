// SPDX-License-Identifier: MIT
// Real pages in a real browser engine.
#include <support/rows.h>
#include <webchannel/channelserver.h>

#include <QApplication>
#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QWebEnginePage>

namespace {

QByteArray read(const QString &strName)
{
    QFile file(":/qtwebchannel/" + strName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Gives out the page and its script over HTTP.
class PageServer : public QTcpServer
{
public:
    PageServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] { serve(nextPendingConnection()); });
    }

private:
    void serve(QTcpSocket *pSocket)
    {
        connect(pSocket, &QTcpSocket::disconnected, pSocket, &QObject::deleteLater);
        connect(pSocket, &QTcpSocket::readyRead, pSocket, [pSocket] {
            if (!pSocket->peek(65536).contains("\r\n\r\n"))
                return;
            const bool bScript = pSocket->readAll().startsWith("GET /qwebchannel.js");
            const QByteArray body = read(bScript ? "qwebchannel.js" : "page.html");
            pSocket->write("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Type: text/"
                + QByteArray(bScript ? "javascript" : "html")
                + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
            pSocket->disconnectFromHost();
        });
    }
};

} // namespace

class tst_WebPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_pages.isListening()); }

    void ownPageCallsAnObjectAndHearsOfItsSignalsAndProperties()
    {
        ChannelServer program;
        QCOMPARE(titleOf("qrc:///qtwebchannel/page.html", program.url()), s_served);
        QCOMPARE(program.counter.total(), 5);
    }

    void pageOfAnotherOriginIsRefusedWithoutTheKey_data()
    {
        const auto row = columns<QString>("page");
        const QString strPort = QString::number(m_pages.serverPort());
        row("another server", QStringLiteral("http://127.0.0.1:%1/").arg(strPort));
        row("another server by name", QStringLiteral("http://localhost:%1/").arg(strPort));
        row("a file", "file://" + m_folder.filePath("page.html"));
        for (const char *strFile : {"page.html", "qwebchannel.js"}) {
            QFile file(m_folder.filePath(strFile));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(read(strFile)) > 0);
        }
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
        page.load(QUrl(strPage + QLatin1Char('?')
            + QString::fromLatin1(QUrl::toPercentEncoding(server.toString(QUrl::FullyEncoded)))));
        const auto isDone = [&] {
            return page.title().contains("closed") || page.title().contains("property");
        };
        return QTest::qWaitFor(isDone, 60000) ? page.title() : "nothing: " + page.title();
    }

    static inline const QString s_served = "change 5, result 5, signal, property 5";
    PageServer m_pages;
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
