// SPDX-License-Identifier: MIT
// The main window on screens of several scales, which the platform off screen has.
#include <support/windowtest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <icore.h>
#include <iui.h>

#include <qpa/qwindowsysteminterface.h>

class tst_MainWindowDisplay : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        m_pWindow->setGeometry(screenOf(96)->geometry().adjusted(100, 100, -200, -200));
    }

    void movingToAnotherScaleTellsItOnce_data()
    {
        const auto row = columns<int, int, int, QList<int>>("dpi", "percent", "margin", "icons");
        row("to 120 DPI", 120, 125, 1, {16, 16});
        row("to 144 DPI", 144, 150, 1, {32, 32});
        row("to 192 DPI", 192, 200, 2, {32, 32});
    }
    void movingToAnotherScaleTellsItOnce()
    {
        QFETCH(int, dpi);
        QSignalSpy changed(m_pWindow.get(), &MainWindow::dpiChanged);
        m_pWindow->show();
        const qint64 nCached = image().cacheKey();
        moveTo(dpi);
        QTRY_COMPARE(changed.count(), 1);
        QTEST(changed.first().first().toInt(), "percent");
        emit m_pWindow->windowHandle()->screenChanged(m_pWindow->screen()); // of the same scale
        QVERIFY(!changed.wait(400));
        QTEST(iconSides(), "icons");
        QFETCH(int, margin);
        QCOMPARE(m_pWindow->contentsMargins(), QMargins(margin, margin, margin, margin));
        changed.clear();
        moveTo(96);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toInt(), 100);
        QCOMPARE(iconSides(), QList<int>({16, 16}));
        QVERIFY2(image().cacheKey() != nCached, "the image was not read again");
    }

    void anotherScaleOfTheSameScreenReachesEveryFont()
    {
        m_pWindow->show();
        QDialog dialog(m_pWindow.get());
        const QLabel label("text", &dialog);
        QSignalSpy changed(m_pWindow.get(), &MainWindow::dpiChanged);
        for (const int nDPI : {192, 96}) {
            const int nBefore = label.sizeHint().height();
            QWindowSystemInterface::handleScreenLogicalDotsPerInchChange(m_pWindow->screen(), nDPI, nDPI);
            QTRY_COMPARE(m_pWindow->screen()->logicalDotsPerInch(), nDPI);
            QTRY_COMPARE(changed.size(), nDPI == 192 ? 1 : 2);
            QVERIFY(nDPI == 192 ? label.sizeHint().height() > nBefore * 3 / 2
                                : label.sizeHint().height() < nBefore * 2 / 3);
            for (const QWidget *pWidget : m_pWindow->findChildren<QWidget *>())
                QCOMPARE(pWidget->fontInfo().pixelSize(), label.fontInfo().pixelSize());
        }
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
        moveTo(144);
        QTRY_COMPARE(changed.count(), 1);
    }

    // The screens here have nothing reserved, as with a task bar that hides itself.
    void aMaximizedWindowLeavesALineAndComesBack()
    {
        m_pWindow->show();
        const QRect normal = m_pWindow->geometry();
        m_pWindow->showMaximized();
        QTRY_COMPARE(m_pWindow->size(), m_pWindow->screen()->availableSize() - QSize(0, 1));
        QVERIFY(m_pWindow->isMaximized());
        const auto *pButton = m_pWindow->findChild<QPushButton *>("maximizeButton");
        QCOMPARE(pButton->toolTip(), "Restore Down");
        QCOMPARE(m_pWindow->normalGeometry(), normal);
        QMainWindow other;
        QVERIFY(other.restoreGeometry(m_pWindow->saveGeometry()));
        QCOMPARE(other.normalGeometry(), normal);
        m_pWindow->showNormal();
        QTRY_COMPARE(m_pWindow->geometry(), normal);
        QVERIFY(!m_pWindow->isMaximized());
        QCOMPARE(pButton->toolTip(), "Maximize");
        m_pWindow->setGeometry(m_pWindow->screen()->geometry()); // as by hand
        QTRY_VERIFY(m_pWindow->isMaximized());
        m_pWindow->resize(300, 200);
        QCOMPARE(m_pWindow->size(), QSize(300, 200));
    }

    void theWindowsIconIsWhatItsFileHolds()
    {
        QMap<int, QImage> images;
        QImageReader reader(":/app/images/app_icon.ico");
        for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
            const QImage image = reader.read();
            images.insert(image.width(), image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        }
        QIcon icon = m_pWindow->windowIcon();
        QList<QSize> sizes;
        for (const int nSide : images.keys())
            sizes += nSide <= 128 ? QList<QSize> {QSize(nSide, nSide)} : QList<QSize>();
        QCOMPARE(icon.availableSizes(), sizes);
        for (const int nSide : {10, 16, 20, 128, 200, 256, 300}) {
            const int nSource = images.contains(nSide) ? nSide
                : nSide > 256                          ? 256
                                                       : images.upperBound(nSide).key();
            const QSize size(qMin(nSide, 256), qMin(nSide, 256));
            QCOMPARE(icon.actualSize(QSize(nSide, nSide + 7)), size);
            const QImage expected =
                images.value(nSource).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            QCOMPARE(icon.pixmap(QSize(nSide, nSide)).toImage(), expected);
            QImage painted(nSide + 40, nSide, expected.format());
            painted.fill(Qt::transparent);
            QPainter painter(&painted);
            icon.paint(&painter, painted.rect());
            const QPoint corner(20 + (nSide - size.width()) / 2, (nSide - size.height()) / 2);
            QCOMPARE(painted.copy(QRect(corner, size)), expected);
        }
    }

    void help_data()
    {
        const auto row = columns<QString, QStringList, QString, bool, QStringList>(
            "language", "files", "file", "opens", "boxes");
        row("in English", "en_US", {"en", "de"}, "en", true, {});
        row("in another language", "de_DE", {"en", "de"}, "de", true, {});
        row("in English where there is none of that language", "pt_BR", {"en", "de"}, "en", true, {});
        row("cannot be opened", "de_DE", {"de"}, "de", false, {"Could not open help file."});
        row("is missing", "de_DE", {"pt"}, "en", true, {"Help document is missing."});
    }
    void help()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, files);
        QFETCH(QString, file);
        QFETCH(bool, opens);
        const auto pathOf = [](const QString &strCode) {
            return QString("%1/Kelpa_help_%2.pdf").arg(ICore::resourcePath(), strCode);
        };
        for (const char *pCode : {"en", "de", "pt"})
            QFile::remove(pathOf(pCode));
        for (const QString &strCode : std::as_const(files))
            QVERIFY(QFile(pathOf(strCode)).open(QIODevice::WriteOnly));
        ExtensionSystem::PluginManager::settings()->setValue("Kelpa/Language", language);
        ILanguageManager::getInstance().initialize();
        if (opens)
            QDesktopServices::setUrlHandler("file", this, "openUrl");
        else
            QTest::ignoreMessage(QtInfoMsg, qPrintable("Failed to open help file: " + pathOf(file)));
        if (!opens && files.contains(file))
            expectWarning("This plugin does not support QPlatformServices::openDocument()");
        if (!files.contains(file))
            QTest::ignoreMessage(QtInfoMsg, qPrintable("Help file not found: " + pathOf(file)));
        m_opened.clear();
        BoxAnswers boxes({QMessageBox::Ok});
        m_pWindow->onHelpContents();
        QDesktopServices::unsetUrlHandler("file");
        QTEST(boxes.texts(), "boxes");
        QCOMPARE(m_opened,
            boxes.boxes.isEmpty() ? QList<QUrl> {QUrl::fromLocalFile(pathOf(file))} : QList<QUrl> {});
        QVERIFY(boxes.boxes.isEmpty() || !boxes.boxes.first().pParent);
    }

public slots:
    void openUrl(const QUrl &url) { m_opened.append(url); }

private:
    static QPixmap image() { return IUi::getPixmap("open", 2, false, ":/designer/images/"); }

    // The sides of the icons of a command and of the language menu.
    static QList<int> iconSides()
    {
        const auto sideOf = [](const QIcon &icon) { return icon.availableSizes().value(0).width(); };
        return {sideOf(ActionManager::getAction("File.Open_Project")->getAction()->icon()),
            sideOf(ActionManager::getActionContainer("View.Language")->getMenu()->icon())};
    }

    void moveTo(int nDPI)
    {
        m_pWindow->move(screenOf(nDPI)->geometry().topLeft() + QPoint(100, 100));
        m_pWindow->windowHandle()->setScreen(screenOf(nDPI));
    }

    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_MainWindowDisplay)
#include "tst_mainwindow_display.moc"
