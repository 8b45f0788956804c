// SPDX-License-Identifier: MIT
// A web server that behaves as badly as a test wants, plain or over TLS.
#pragma once

#include <QDir>
#include <QFile>
#include <QHash>
#include <QPointer>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTemporaryDir>

#include <functional>
#include <optional>

/// A certificate for "localhost" that was made just now, and that only this program can know.
class TestCertificate
{
public:
    TestCertificate()
    {
        QProcess openssl;
        openssl.start("openssl",
            QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -batch "
                           "-subj /CN=localhost -addext subjectAltName=DNS:localhost "
                           "-keyout %1/key -out %1/cert")
                .arg(m_folder.path())
                .split(QLatin1Char(' ')));
        openssl.waitForFinished();
        QFile keyFile(m_folder.filePath("key"));
        if (keyFile.open(QIODevice::ReadOnly))
            key = QSslKey(&keyFile, QSsl::Ec);
        certificate = QSslCertificate::fromPath(m_folder.filePath("cert")).value(0);
    }

    /// From now on this program believes it.
    void trust() const
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.addCaCertificate(certificate);
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

    QSslKey key;
    QSslCertificate certificate;

private:
    QTemporaryDir m_folder;
};

class TestServer : public QTcpServer
{
    Q_OBJECT

public:
    using Handler = std::function<void(QTcpSocket *)>;

    explicit TestServer(const TestCertificate *pCertificate = nullptr)
        : m_pCertificate(pCertificate)
    {
        listen(QHostAddress::LocalHost);
    }

    [[nodiscard]] QString url(const QString &strPath) const
    {
        return QStringLiteral("%1:%2%3")
            .arg(QLatin1String(m_pCertificate ? "https://localhost" : "http://127.0.0.1"))
            .arg(serverPort())
            .arg(strPath);
    }

    void on(const QString &strPath, const Handler &handler) { m_handlers[strPath] = handler; }

    /// The whole answer; the connection closes after it.
    void answer(const QString &strPath, const QByteArray &raw)
    {
        on(strPath, [raw](QTcpSocket *pSocket) { send(pSocket, raw); });
    }
    void body(const QString &strPath, const QByteArray &content) { answer(strPath, ok(content)); }
    void redirect(const QString &strPath, const QString &strTarget)
    {
        answer(strPath,
            "HTTP/1.1 302 Found\r\nLocation: " + strTarget.toUtf8() + "\r\nContent-Length: 0\r\n\r\n");
    }

    [[nodiscard]] static QByteArray ok(const QByteArray &content)
    {
        return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(content.size()) + "\r\n\r\n"
            + content;
    }
    static void send(QTcpSocket *pSocket, const QByteArray &raw)
    {
        pSocket->write(raw);
        pSocket->disconnectFromHost();
    }

    QStringList paths; ///< as requested, in order
    QList<QByteArray> heads;

protected:
    void incomingConnection(qintptr nDescriptor) override
    {
        auto *pSocket = new QSslSocket(this);
        pSocket->setSocketDescriptor(nDescriptor);
        connect(pSocket, &QTcpSocket::disconnected, pSocket, &QObject::deleteLater);
        connect(pSocket, &QTcpSocket::readyRead, this, [this, pSocket] { read(pSocket); });
        if (!m_pCertificate)
            return;
        pSocket->setPrivateKey(m_pCertificate->key);
        pSocket->setLocalCertificate(m_pCertificate->certificate);
        pSocket->startServerEncryption();
    }

private:
    void read(QSslSocket *pSocket)
    {
        const QByteArray head = pSocket->peek(65536);
        if (!head.contains("\r\n\r\n"))
            return;
        pSocket->readAll();
        const QString strPath = QString::fromLatin1(head.split(' ').value(1));
        paths.append(strPath);
        heads.append(head);
        if (m_handlers.contains(strPath))
            m_handlers.value(strPath)(pSocket);
        else
            send(pSocket, "HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\ngone");
    }

    const TestCertificate *m_pCertificate;
    QHash<QString, Handler> m_handlers;
};
