// SPDX-License-Identifier: MIT
// The main window on screens of several scales, which the platform off screen has.
#include <support/coretest.h>

#include <icore.h>
#include <mainwindow.h>

#include <QDesktopServices>
#include <QScreen>
#include <QWindow>

namespace {

// One whose native window can be taken away, as putting a web view into it does.
class Window : public MainWindow
{
public:
    Window()
        : MainWindow(nullptr)
    {
    }
    void destroyNativeWindow() { destroy(); }
};

} // namespace

class tst_MainWindowDisplay : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<Window>();
        m_pWindow->setGeometry(screen("96")->geometry().adjusted(100, 100, -200, -200));
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pProgram.reset();
    }

    void movingToAnotherScaleTellsItOnce_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("margin");
        QTest::newRow("to 120 DPI") << "120" << 125 << 1;
        QTest::newRow("to 144 DPI") << "144" << 150 << 1;
        QTest::newRow("to 192 DPI") << "192" << 200 << 2;
    }

    void movingToAnotherScaleTellsItOnce()
    {
        QFETCH(QString, name);
        QSignalSpy changed(m_pWindow.get(), &MainWindow::dpiChanged);
        m_pWindow->show();
        moveTo(name);
        QTRY_COMPARE(changed.count(), 1);
        QTEST(changed.first().first().toInt(), "percent");
        QVERIFY(!changed.wait(400));
        QFETCH(int, margin);
        QCOMPARE(m_pWindow->contentsMargins(), QMargins(margin, margin, margin, margin));
        changed.clear();
        moveTo("96");
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toInt(), 100);
    }

    // Two screens of one scale apart from each other: the check finds nothing new.
    void movingWithinOneScaleTellsNothingMore()
    {
        QSignalSpy changed(m_pWindow.get(), &MainWindow::dpiChanged);
        m_pWindow->show();
        moveTo("192");
        QTRY_COMPARE(changed.count(), 1);
        emit m_pWindow->windowHandle()->screenChanged(m_pWindow->screen());
        QVERIFY(!changed.wait(400));
    }

    void aNewNativeWindowIsWatchedToo()
    {
        m_pWindow->show();
        const QPointer<QWindow> pFirst = m_pWindow->windowHandle();
        m_pWindow->setParent(nullptr, m_pWindow->windowFlags() | Qt::WindowStaysOnTopHint);
        m_pWindow->destroyNativeWindow();
        m_pWindow->show();
        QVERIFY(!pFirst);
        QSignalSpy changed(m_pWindow.get(), &MainWindow::dpiChanged);
        moveTo("144");
        QTRY_COMPARE(changed.count(), 1);
    }

    void coveringAScreenWithoutReservedSpaceLeavesTheLastLineFree()
    {
        const QRect whole = screen("96")->geometry();
        m_pWindow->setGeometry(whole);
        m_pWindow->show();
        QTRY_COMPARE(m_pWindow->height(), whole.height() - 1);
        QVERIFY(m_pWindow->isMaximized());
    }

    void raisingRestoresFromMinimizedToMaximized()
    {
        m_pWindow->show();
        m_pWindow->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
        m_pWindow->raiseUp();
        QVERIFY(m_pWindow->isMaximized() && !m_pWindow->isMinimized());
    }

    void help_data()
    {
        QTest::addColumn<bool>("exists");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QStringList>("boxes");
        QTest::newRow("opens") << true << true << QStringList();
        QTest::newRow("cannot be opened") << true << false << QStringList("Could not open help file.");
        QTest::newRow("is missing") << false << true << QStringList("Help document is missing.");
    }

    void help()
    {
        QFETCH(bool, exists);
        QFETCH(bool, opens);
        const QString strFile = ICore::resourcePath() + "/Kelpa_help_en.pdf";
        QFile::remove(strFile);
        QFile file(strFile);
        QVERIFY(!exists || file.open(QIODevice::WriteOnly));
        if (opens)
            QDesktopServices::setUrlHandler("file", this, "openUrl");
        else
            QTest::ignoreMessage(QtInfoMsg, qPrintable("Failed to open help file: " + strFile));
        if (!exists)
            QTest::ignoreMessage(QtInfoMsg, qPrintable("Help file not found: " + strFile));
        m_opened.clear();
        BoxAnswers boxes({QMessageBox::Ok});
        m_pWindow->onHelpContents();
        QDesktopServices::unsetUrlHandler("file");
        file.remove();
        QTEST(boxes.texts(), "boxes");
        QCOMPARE(m_opened, exists && opens ? QList<QUrl> {QUrl::fromLocalFile(strFile)} : QList<QUrl> {});
        QVERIFY(boxes.boxes.isEmpty() || !boxes.boxes.first().pParent);
    }

public slots:
    void openUrl(const QUrl &url) { m_opened.append(url); }

private:
    static QScreen *screen(const QString &strName)
    {
        const auto screens = QGuiApplication::screens();
        const auto it = std::find_if(screens.begin(), screens.end(),
            [&](const QScreen *pScreen) { return pScreen->name() == strName; });
        return it == screens.end() ? nullptr : *it;
    }

    void moveTo(const QString &strName)
    {
        m_pWindow->move(screen(strName)->geometry().topLeft() + QPoint(100, 100));
        m_pWindow->windowHandle()->setScreen(screen(strName));
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<Window> m_pWindow;
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_MainWindowDisplay)
#include "tst_mainwindow_display.moc"
