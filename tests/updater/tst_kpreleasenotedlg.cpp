// SPDX-License-Identifier: MIT
// The offer with real pages in the real browser engine, loaded as the program loads it.
#include "updatetest.h"

#include <displayscale.h>
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
        QCOMPARE(dialog.findChild<QLabel *>("m_pHeadingLabel")->text(), "<b>News</b>");
        QVERIFY(!hasEngine());
        QCOMPARE(dialog.focusWidget(), button(dialog, "m_pBtnClose"));
        const int nDPI = DisplayScale::logicalDpi(&dialog);
        const QSize most = dialog.screen()->availableSize() * 9 / 10;
        const auto scaled = [&](int nWidth, int nHeight) {
            return (QSize(nWidth, nHeight) * nDPI / 96).boundedTo(most);
        };
        QCOMPARE(dialog.minimumSize(), scaled(480, 360));
        QCOMPARE(dialog.size(), scaled(640, 520));
        QVERIFY(!dialog.windowIcon().isNull() && !(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
        dialog.setReleaseNotes(QString());
        QVERIFY(button(dialog, "m_pBtnUpdate")->isEnabled());
        dialog.setReleaseNotes(m_server.url("/notes").replace("http", "HTTP"));
        const auto *pDeadline = dialog.findChild<QTimer *>();
        QVERIFY(!button(dialog, "m_pBtnUpdate")->isEnabled() && pDeadline->isActive());
        QCOMPARE(pDeadline->interval(), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(button(dialog, "m_pBtnUpdate")->isEnabled(), 60000);
        QVERIFY(hasEngine() && !pDeadline->isActive());
        QTRY_VERIFY(m_server.paths.contains("/done?notes"));
        dialog.setReleaseNotes("<p>Text leaves the button as it is</p>");
        QVERIFY(button(dialog, "m_pBtnUpdate")->isEnabled());
    }

    void notesThatDoNotComeKeepUpdateDisabled_data()
    {
        const auto row = columns<QString, int>("url", "deadlineMs");
        row("a closed port", "http://127.0.0.1:1/", 30000);
        row("no host", "https://", 300);
        row("a server that is silent", m_server.url("/silent"), 300);
        row("a redirect to a file", m_server.url("/tofile"), 30000);
        row("a redirect to itself", m_server.url("/loop"), 30000);
        m_server.on("/silent", [](QTcpSocket *) {});
        m_server.redirect("/tofile", "file:///etc/passwd");
        m_server.redirect("/loop", "/loop");
    }

    void notesThatDoNotComeKeepUpdateDisabled()
    {
        QFETCH(const QString, url);
        QFETCH(const int, deadlineMs);
        KPReleaseNoteDlg dialog(nullptr);
        dialog.findChild<QTimer *>()->setInterval(deadlineMs);
        dialog.show();
        if (url.endsWith("/loop"))
            expectWarning("/loop: more than 10 redirects");
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

    // Below the links lies an honest one, which tells when the page is painted and hears clicks, and when it
    // has heard all.
    void linksLeaveForTheBrowserOnlyIfOfTheWeb()
    {
        TestHome home;
        QByteArray html = "<body style='margin:0'>";
        for (const char *pLink : {"https://k.example/more", "file:///etc/passwd",
                 "http://k.example/new' target='_blank", "mailto:a@k.example", "http://k.example/end"})
            html += QByteArray("<a style='display:block;height:40px' href='") + pLink + "'>x</a>";
        m_server.body("/links", html);
        KPReleaseNoteDlg dialog(nullptr);
        dialog.show();
        dialog.setReleaseNotes(m_server.url("/links"));
        QTRY_VERIFY_WITH_TIMEOUT(button(dialog, "m_pBtnUpdate")->isEnabled(), 20000);
        QWidget *pPage = dialog.findChild<WebView *>()->focusProxy();
        pPage = pPage->focusProxy() ? pPage->focusProxy() : pPage;
        const auto press = [&](int nLink, const QString &strUrl) {
            QTest::mouseClick(pPage, Qt::LeftButton, {}, {50, 40 * nLink + 20});
            return QTest::qWaitFor([&] { return home.opened.contains(strUrl); }, 500);
        };
        QTRY_VERIFY(press(4, "http://k.example/end"));
        QTRY_VERIFY(press(0, "https://k.example/more"));
        QTRY_VERIFY(press(2, "http://k.example/new"));
        home.opened.removeAll("http://k.example/end");
        for (int i : {1, 3})
            QTest::mouseClick(pPage, Qt::LeftButton, {}, {50, 40 * i + 20});
        QTRY_VERIFY(press(4, "http://k.example/end"));
        home.opened.removeDuplicates();
        QCOMPARE(home.opened.size(), 3);
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
