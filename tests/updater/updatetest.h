// SPDX-License-Identifier: MIT
// What the tests of the updater share: a home of their own, what would have been opened, and the user's
// answers to the offer.
#pragma once

#include "testserver.h"

#include <support/coretest.h>
#include <updater/downloader.h>
#include <updater/kpreleasenotedlg.h>

#include <QDesktopServices>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QNetworkAccessManager>
#include <QSignalSpy>

/// A home folder without downloads, and an end to everything being opened for real.
class TestHome : public QObject
{
    Q_OBJECT

public:
    TestHome()
    {
        qputenv("HOME", m_folder.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", (m_folder.path() + "/share").toLocal8Bit());
        qputenv("PATH", (m_folder.path() + QLatin1Char(':')).toLocal8Bit() + m_oldPath);
        setHandlers("[ $3 = application/octet-stream ] || exit 4; echo installer.desktop");
        for (const QString &strScheme : schemes())
            QDesktopServices::setUrlHandler(strScheme, this, "open");
    }
    ~TestHome() override
    {
        for (const QString &strScheme : schemes())
            QDesktopServices::unsetUrlHandler(strScheme);
        for (QWidget *pWidget : QApplication::topLevelWidgets())
            pWidget->hide();
        qputenv("HOME", m_oldHome);
        qputenv("XDG_DATA_HOME", m_oldData);
        qputenv("PATH", m_oldPath);
    }

    static void write(const char *pName, const QByteArray &content)
    {
        QDir().mkpath(Downloader::downloadFolder());
        QFile file(Downloader::downloadFolder() + QLatin1String(pName));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    /// What the desktop says when it is asked for the program of a type: by itself it knows one for files of
    /// any type, yet none for a type of its own.
    void setHandlers(const QByteArray &script) const
    {
        QFile tool(m_folder.filePath("xdg-mime"));
        QVERIFY(tool.open(QIODevice::WriteOnly) && tool.write("#!/bin/sh\n" + script) > 0);
        QVERIFY(tool.setPermissions(QFile::Permissions(0x7777)));
    }

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] static QStringList downloads()
    {
        return QDir(Downloader::downloadFolder())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    [[nodiscard]] QStringList trash() const
    {
        return QDir(m_folder.filePath("share/Trash/files")).entryList(QDir::Files);
    }
    [[nodiscard]] static QByteArray content(const QString &strName)
    {
        QFile file(Downloader::downloadFolder() + strName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList opened;

public slots:
    void open(const QUrl &url) { opened.append(url.toString()); }

private:
    static QStringList schemes() { return {"file", "http", "https", "ftp", "javascript", "mailto"}; }

    QTemporaryDir m_folder;
    const QByteArray m_oldHome = qgetenv("HOME");
    const QByteArray m_oldData = qgetenv("XDG_DATA_HOME");
    const QByteArray m_oldPath = qgetenv("PATH");
};

/// A download of "x" with the window of it; the test may go on with what the server answers.
struct Download
{
    explicit Download(const QByteArray &answer = {})
    {
        server.on("/x", [this, answer](QTcpSocket *p) {
            pSocket = p;
            p->write(answer);
        });
        downloader.setFileName("x");
    }

    void start() { downloader.startDownload(QUrl(server.url("/x"))); }
    template <typename Widget = QLabel>
    Widget *child(const char *pName)
    {
        return downloader.findChild<Widget *>(QLatin1String(pName));
    }
    QPushButton *stopButton() { return child<QPushButton>("stopButton"); }
    QPushButton *openButton() { return child<QPushButton>("openButton"); }

    /// What the user sees of the window.
    QString look()
    {
        const auto *pBar = child<QProgressBar>("progressBar");
        return QStringLiteral("%1 | %2 | %3 of %4 | %5%6%7")
            .arg(child("downloadLabel")->text(), child("timeLabel")->text(), pBar->text())
            .arg(pBar->maximum())
            .arg(stopButton()->text(), QLatin1String(openButton()->isEnabled() ? " Open" : ""),
                QLatin1String(downloader.isVisible() ? "" : " hidden"));
    }

    TestHome home;
    TestServer server;
    QPointer<QTcpSocket> pSocket;
    Downloader downloader;
    const QSignalSpy downloaded {&downloader, &Downloader::downloadFinished};
};

/// Presses one button of each offer that comes up, once it can be pressed.
class OfferAnswers
{
public:
    explicit OfferAnswers(const QString &strButton)
        : m_strButton(strButton)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { answer(); });
        m_timer.start(1);
    }

    QStringList headings;

private:
    void answer()
    {
        auto *pDialog = qobject_cast<KPReleaseNoteDlg *>(QApplication::activeModalWidget());
        if (!pDialog || !pDialog->isVisible() || pDialog == m_pAnswered)
            return;
        auto *pButton = pDialog->findChild<QPushButton *>(m_strButton);
        if (!pButton->isEnabled())
            return;
        m_pAnswered = pDialog;
        headings.append(pDialog->findChild<QLabel *>("m_pHeadingLabel")->text());
        pButton->click();
    }

    const QString m_strButton;
    QTimer m_timer;
    QPointer<QWidget> m_pAnswered;
};

/// A feed with one entry for the platform "windows".
inline QByteArray feed(const QString &strVersion, const QString &strDownload, const QJsonObject &more = {})
{
    QJsonObject entry {
        {"latest-version", strVersion}, {"download-url", strDownload}, {"changelog", "<p>News</p>"}};
    for (auto it = more.begin(); it != more.end(); ++it)
        entry[it.key()] = it.value();
    const QJsonObject updates {{"windows", entry}};
    return QJsonDocument(QJsonObject {{"updates", updates}}).toJson();
}
