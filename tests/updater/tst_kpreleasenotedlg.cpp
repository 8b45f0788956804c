// SPDX-License-Identifier: MIT
// The offer with real pages in the real browser engine, loaded as the program loads it.
#include "updatetest.h"

#include <ui/webviewloader.h>

#include <QFile>
#include <QGroupBox>

namespace {

QPushButton *button(const KPReleaseNoteDlg &dialog, const char *pName)
{
    return dialog.findChild<QPushButton *>(QLatin1String(pName));
}

bool hasEngine()
{
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt6WebEngineCore");
}

/// A page whose script goes to "/done?" and what it found out.
QByteArray page(const QByteArray &script)
{
    return TestServer::ok("<html><body><script>function done(s) { fetch('/done?' + s); }" + script
        + "</script><iframe src='file:///etc/passwd'></iframe></body></html>");
}

} // namespace

class tst_KPReleaseNoteDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        m_server.answer("/notes", page("done('notes')"));
    }

    void engineComesWithTheFirstNotes()
    {
        KPReleaseNoteDlg dialog(nullptr);
        dialog.setHeading("<b>News</b>");
        QVERIFY(!hasEngine());
        QCOMPARE(dialog.focusWidget(), button(dialog, "m_pBtnClose"));
        dialog.setReleaseNotes(QString());
        QVERIFY(button(dialog, "m_pBtnUpdate")->isEnabled());
        dialog.setReleaseNotes(m_server.url("/notes").replace("http", "HTTP"));
        QVERIFY(!button(dialog, "m_pBtnUpdate")->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(button(dialog, "m_pBtnUpdate")->isEnabled(), 60000);
        QVERIFY(hasEngine());
        QTRY_VERIFY(m_server.paths.contains("/done?notes"));
        dialog.setReleaseNotes("<p>Text leaves the button as it is</p>");
        QVERIFY(button(dialog, "m_pBtnUpdate")->isEnabled());
    }

    void notesThatDoNotComeKeepUpdateDisabled_data()
    {
        const auto row = columns<QString>("url");
        row("a closed port", "http://127.0.0.1:1/");
        row("no host", "https://");
        row("a server that is silent", m_server.url("/silent"));
        row("a redirect to a file", m_server.url("/tofile"));
        row("a redirect to itself", m_server.url("/loop"));
        m_server.on("/silent", [](QTcpSocket *) {});
        m_server.redirect("/tofile", "file:///etc/passwd");
        m_server.redirect("/loop", "/loop");
    }

    void notesThatDoNotComeKeepUpdateDisabled()
    {
        QFETCH(const QString, url);
        KPReleaseNoteDlg dialog(nullptr);
        dialog.findChild<QTimer *>()->setInterval(3000);
        dialog.show();
        dialog.setReleaseNotes(url);
        auto *pView = dialog.findChild<WebView *>();
        QSignalSpy finished(pView, &WebView::loadFinished);
        // The page in its place, and only that, loads.
        QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty() && finished.last().first().toBool(), 20000);
        QVERIFY(!button(dialog, "m_pBtnUpdate")->isEnabled());
        QVERIFY(button(dialog, "m_pBtnClose")->isEnabled());
        QVERIFY(m_server.paths.count("/loop") <= 12);
    }

    void pagesReadNoFilesAndOpenNothingByThemselves()
    {
        TestHome home;
        m_server.answer("/evil",
            page("try { window.open('http://k.example/popup') } catch (e) {}"
                 "var f = document.createElement('iframe'); f.src = 'qrc:/core/images/icon.png';"
                 "alert('stop'); confirm('stop');"
                 "fetch('file:///etc/passwd').then(r => r.text()).then(t => done('file'), () => "
                 "done('nofile'));"
                 "var s = document.createElement('script'); s.src = 'file:///etc/hosts';"
                 "s.onload = () => done('script'); s.onerror = () => done('noscript');"
                 "document.head.appendChild(s);"));
        const BoxAnswers boxes({});
        KPReleaseNoteDlg dialog(nullptr);
        dialog.show();
        dialog.setReleaseNotes(m_server.url("/evil"));
        QTRY_VERIFY_WITH_TIMEOUT(m_server.paths.contains("/done?nofile"), 20000);
        QTRY_VERIFY(m_server.paths.contains("/done?noscript"));
        QVERIFY(!m_server.paths.contains("/done?file"));
        QVERIFY(boxes.boxes.isEmpty());
        QVERIFY(home.opened.isEmpty());
    }

    void linksLeaveForTheBrowserOnlyIfOfTheWeb_data()
    {
        const auto row = columns<QString, bool>("link", "isOpened");
        row("the web", "https://k.example/more", true);
        row("the web in a new window", "http://k.example/new' target='_blank", true);
        row("a file", "file:///etc/passwd", false);
        row("mail", "mailto:a@k.example", false);
    }

    // Under the link in question lies an honest one, which ends the wait.
    void linksLeaveForTheBrowserOnlyIfOfTheWeb()
    {
        QFETCH(const QString, link);
        QFETCH(const bool, isOpened);
        TestHome home;
        const QByteArray start = "<a style='display:block;height:100px' href='";
        m_server.body("/links",
            "<body style='margin:0'>" + start + link.toUtf8() + "'>x</a>" + start
                + "http://k.example/end'>x</a>");
        KPReleaseNoteDlg dialog(nullptr);
        dialog.show();
        dialog.setReleaseNotes(m_server.url("/links"));
        QTRY_VERIFY_WITH_TIMEOUT(button(dialog, "m_pBtnUpdate")->isEnabled(), 20000);
        QWidget *pPage = dialog.findChild<WebView *>()->focusProxy();
        pPage = pPage->focusProxy() ? pPage->focusProxy() : pPage;
        const auto press = [&](int nY) {
            QTest::mouseClick(pPage, Qt::LeftButton, {}, {50, nY});
            return QTest::qWaitFor([&] { return !home.opened.isEmpty(); }, 500);
        };
        if (isOpened)
            QTRY_VERIFY(press(50)); // a page that is not painted yet may miss a click
        else
            QVERIFY(!press(50));
        QTRY_VERIFY(isOpened || press(150));
        QCOMPARE(
            home.opened.first(), isOpened ? link.section(QLatin1Char('\''), 0, 0) : "http://k.example/end");
    }

private:
    TestServer m_server;
};

int main(int argc, char *argv[])
{
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
    const QApplication app(argc, argv);
    QCoreApplication::addLibraryPath(QStringLiteral(KELPA_PROGRAM_DIR));
    tst_KPReleaseNoteDlg test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_kpreleasenotedlg.moc"
