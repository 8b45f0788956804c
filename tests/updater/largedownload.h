// SPDX-License-Identifier: MIT
// Downloads a large file from a server on another thread, and measures what it costs. Linux.
#pragma once

#include <support/load.h>
#include <updater/downloader.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <future>
#include <thread>

struct LargeDownload
{
    qint64 nGrowth = -1; ///< bytes of memory that the process needed more at the worst moment
    double stallMs = -1; ///< most processor time that one turn of the event loop took
    qint64 nBytesPerSecond = 0;
};

/// One file of zeros, to one client.
inline void serveLargeFile(qint64 nSize, bool bLength, std::promise<quint16> *pPort)
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    pPort->set_value(server.serverPort());
    if (!server.waitForNewConnection(10000))
        return;
    QTcpSocket *pSocket = server.nextPendingConnection();
    pSocket->waitForReadyRead(10000);
    QByteArray head = "HTTP/1.1 200 OK\r\n";
    if (bLength)
        head += "Content-Length: " + QByteArray::number(nSize) + "\r\n";
    pSocket->write(head + "\r\n");
    const QByteArray piece(65536, 0);
    for (qint64 nSent = 0; nSent < nSize && pSocket->state() == QTcpSocket::ConnectedState;
         nSent += piece.size()) {
        pSocket->write(piece);
        while (pSocket->bytesToWrite() > 0 && pSocket->waitForBytesWritten(10000)) { }
    }
    pSocket->disconnectFromHost();
    if (pSocket->state() != QTcpSocket::UnconnectedState)
        pSocket->waitForDisconnected(10000);
}

inline qint64 statusValue(const char *pKey)
{
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray status = file.readAll();
    const qsizetype nAt = status.indexOf(pKey);
    return status.mid(nAt + qstrlen(pKey), 20).simplified().split(' ').value(0).toLongLong() * 1024;
}

inline void forgetPeak()
{
    QFile file("/proc/self/clear_refs");
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

/// Leaves the file "large" in the folder of downloads.
inline LargeDownload downloadLargeFile(qint64 nSize, bool bLength)
{
    std::promise<quint16> port;
    std::future<quint16> listening = port.get_future();
    std::thread server(serveLargeFile, nSize, bLength, &port);
    const quint16 nPort = listening.get();

    Downloader downloader;
    downloader.setFileName("large");
    downloader.setUseCustomInstallProcedures(true);
    QEventLoop loop;
    QObject::connect(&downloader, &Downloader::downloadFinished, &loop, &QEventLoop::quit);
    QTimer::singleShot(200000, &loop, [&loop] { loop.exit(1); });

    LargeDownload result;
    double beat = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &loop, [&] {
        result.stallMs = qMax(result.stallMs, threadMs() - beat);
        beat = threadMs();
    });
    forgetPeak();
    const qint64 nBefore = statusValue("VmRSS:");
    QElapsedTimer whole;
    whole.start();
    downloader.startDownload(QUrl(QStringLiteral("http://127.0.0.1:%1/large").arg(nPort)));
    beat = threadMs();
    heart.start(1);
    const bool bDone = loop.exec() == 0;
    server.join();
    if (!bDone)
        return {};
    result.nGrowth = statusValue("VmHWM:") - nBefore;
    result.nBytesPerSecond = nSize * 1000 / qMax<qint64>(1, whole.elapsed());
    return result;
}
