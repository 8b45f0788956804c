// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <ui/imainmenuwidget.h>

#include <QRandomGenerator>

namespace {

// Keeps the options of the title bar drawn last. If `strip` is set, paints it and the title over the bar.
class RecordingStyle : public QProxyStyle
{
public:
    explicit RecordingStyle(QWidget *pWidget)
        : m_pWidget(pWidget)
    {
        pWidget->setStyle(this);
    }
    ~RecordingStyle() override { m_pWidget->setStyle(nullptr); }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *pOption, QPainter *pPainter,
        const QWidget *pWidget) const override
    {
        if (control == CC_TitleBar)
            option = *qstyleoption_cast<const QStyleOptionTitleBar *>(pOption);
        QProxyStyle::drawComplexControl(control, pOption, pPainter, pWidget);
        if (control != CC_TitleBar || !strip.isValid())
            return;
        pPainter->fillRect(pOption->rect, strip);
        pPainter->drawText(pOption->rect, Qt::AlignLeft, option.text);
    }

    mutable QStyleOptionTitleBar option;
    QColor strip;

private:
    QWidget *const m_pWidget;
};

// The columns of `rect` in which something is painted on the background, as the rectangle around them.
QRect inkOf(const QImage &image, const QRect &rect)
{
    const QRgb background = image.pixel(rect.topLeft() + QPoint(1, 2));
    QRect ink;
    for (int x = rect.left(); x <= rect.right(); ++x) {
        for (int y = rect.top() + 2; y < rect.bottom() - 2; ++y) {
            if (image.pixel(x, y) != background)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

class tst_IMainMenuWidget : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        m_pTitleBar = m_pWindow->findChild<IMainMenuWidget *>();
        m_pMenuBar = m_pTitleBar->findChild<QMenuBar *>();
        m_pMenuBar->clear();
        for (const char *pTitle : {"&File", "&Edit", "&Help"})
            m_pMenuBar->addMenu(QString::fromLatin1(pTitle))->addAction("Entry");
        m_pWindow->setGeometry(100, 100, 800, 600);
        showAndWait();
    }

    void cleanup()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        WindowTest::cleanup();
    }

    void onlyTheEmptyStretchIsTitleBar_data() { directions(); }
    void onlyTheEmptyStretchIsTitleBar()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QApplication::setLayoutDirection(direction);
        m_pWindow->showNotification("text", KPNotificationBar::Info, {}, true);
        QTest::qWait(0);
        QCOMPARE(m_pMenuBar->actionGeometry(file()).left() > 400, direction == Qt::RightToLeft);
        QVERIFY(isTitleBar(m_pMenuBar, stretchPoint()));
        QVERIFY(isTitleBar(m_pMenuBar, m_pMenuBar->rect().center()));
        for (QAction *pAction : m_pMenuBar->actions())
            QVERIFY(!isTitleBar(m_pMenuBar, m_pMenuBar->actionGeometry(pAction).center()));
        QVERIFY(!isTitleBar(m_pMenuBar->cornerWidget(Qt::TopLeftCorner), {5, 5}));
        QVERIFY(!isTitleBar(button("minizeButton"), {5, 5}));
        QVERIFY(!isTitleBar(m_pWindow->getNotificationBar(), {400, 5}));
        QVERIFY(!isTitleBar(m_pWindow.get(), {400, 300}));
        QVERIFY(!m_pTitleBar->isTitleBarArea(400, -1));
        QVERIFY(!TestWindow().isStyledFrameTitleBar(400, 5));
    }

    // The window goes with the cursor from a press on the empty stretch to whatever ends that. A maximised
    // one is restored by a way of six pixels right or down, and then comes under the cursor at the top of the
    // screens.
    void dragsOfTheTitleBar()
    {
        const int nScreens = m_pWindow->screen()->virtualGeometry().width();
        QRandomGenerator random(9);
        QRect normal = m_pWindow->geometry();
        QPoint pressed;
        QPoint origin;
        bool bMaximized = false;
        bool bDragging = false;
        bool bRestored = false;
        for (int i = 0; i < 1000; ++i) {
            const QPoint cursor =
                pressed + QPoint(random.bounded(-9, 14), random.bounded(-9, 10)) * random.bounded(1, 9);
            const auto held = random.bounded(8) ? Qt::LeftButton : Qt::RightButton;
            const int nWhat = random.bounded(14);
            if (nWhat < 2) {
                const bool bEmpty = random.bounded(5);
                const QPoint where(random.bounded(300, 500), random.bounded(100));
                mouse(QEvent::MouseButtonPress, bEmpty ? stretchPoint() : QPoint(3, 5), where, held);
                if (bEmpty && held == Qt::LeftButton) {
                    pressed = where;
                    origin = m_pWindow->pos();
                    bDragging = true;
                    bRestored = false;
                }
            } else if (nWhat < 9) {
                bDragging = bDragging && held == Qt::LeftButton;
                const bool bOverMenu = nWhat < 5 && bDragging; // without a drag it would open
                mouse(QEvent::MouseMove, bOverMenu ? titlePoint() : stretchPoint(), cursor, held);
                const QPoint way = cursor - pressed;
                if (bDragging && bMaximized) {
                    bMaximized = way.x() < 6 && way.y() < 6;
                    bRestored = bRestored || !bMaximized;
                } else if (bDragging) {
                    if (std::exchange(bRestored, false))
                        origin = QPoint(qMin(qMax(0, cursor.x() - 400), nScreens - 800), 0);
                    normal.moveTopLeft(origin + way);
                }
            } else if (nWhat < 11) {
                mouse(QEvent::MouseButtonRelease, random.bounded(2) ? stretchPoint() : titlePoint(), cursor,
                    held);
                bDragging = bDragging && held != Qt::LeftButton;
            } else if (nWhat == 11) {
                mouse(QEvent::MouseButtonDblClick, stretchPoint(), cursor, held);
                bMaximized = bMaximized || held == Qt::LeftButton;
            } else if (nWhat == 12) {
                QEvent deactivated(QEvent::WindowDeactivate);
                QApplication::sendEvent(m_pMenuBar, &deactivated);
                bDragging = false;
            } else {
                m_pWindow->hide();
                m_pWindow->show();
                bDragging = false;
            }
            QCOMPARE(m_pWindow->isMaximized(), bMaximized);
            QVERIFY(bMaximized || m_pWindow->geometry() == normal);
            QVERIFY(!QApplication::activePopupWidget());
        }
    }

    void titleIsThatOfTheFile_data()
    {
        const auto row = columns<QString, bool, QString>("file", "modified", "painted");
        row("no file, modified", "", true, "Kelpa Studio*");
        row("a file", "/a/b.kelpa", false, "/a/b.kelpa - Kelpa Studio");
        row("a name with the sign for the mark", "/[*].kelpa", false, "/[*].kelpa - Kelpa Studio");
        row("a name with place holders", "/%1%2.kelpa", true, "/%1%2.kelpa - Kelpa Studio*");
    }
    void titleIsThatOfTheFile()
    {
        QFETCH(QString, file);
        QFETCH(bool, modified);
        QFETCH(QString, painted);
        const RecordingStyle style(m_pTitleBar);
        m_pWindow->setWindowFilePath(file);
        m_pWindow->setWindowModified(modified);
        m_pTitleBar->grab();
        QCOMPARE(style.option.text, painted);
        QCOMPARE(m_pWindow->windowTitle(), painted.replace("[*]", "[*][*]"));
        const int nHeight = style.pixelMetric(QStyle::PM_TitleBarHeight, &style.option, m_pTitleBar);
        QCOMPARE(style.option.rect, QRect(0, 0, m_pTitleBar->width(), nHeight));
        QVERIFY(!style.option.icon.isNull());
    }

    void longTitleIsElidedAndItsToolTipIsPlainText()
    {
        const RecordingStyle style(m_pTitleBar);
        const QString strFile = "<i>" + QString(500, 'm');
        m_pWindow->setWindowFilePath(strFile);
        m_pTitleBar->grab();
        QVERIFY(style.option.text.endsWith(QChar(0x2026)));
        QVERIFY(m_pTitleBar->fontMetrics().horizontalAdvance(style.option.text) <= m_pTitleBar->width());
        QHelpEvent event(QEvent::ToolTip, stretchPoint(), m_pMenuBar->mapToGlobal(stretchPoint()));
        QApplication::sendEvent(m_pMenuBar, &event);
        QVERIFY(QToolTip::text().contains(strFile.toHtmlEscaped() + " - Kelpa Studio"));
        QToolTip::hideText();
    }

    void titleIsSeenBesideTheMenus_data() { directions(); }
    void titleIsSeenBesideTheMenus()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QApplication::setLayoutDirection(direction);
        QVERIFY(qAbs(titleInk().center().x() - m_pMenuBar->width() / 2) <= 2);
        m_pWindow->setWindowFilePath(QString(500, 'm'));
        const QRect stretch = stretchRect();
        const QRect longTitle = titleInk();
        QVERIFY(longTitle.width() > stretch.width() * 9 / 10 - 24);
        QVERIFY(longTitle.left() >= stretch.left() + 6 && longTitle.right() <= stretch.right() - 6);
        m_pMenuBar->addMenu("A further menu");
        QTest::qWait(0);
        QVERIFY(titleInk().width() < longTitle.width() - 20);
    }

    void stripIsSeenThroughTheMenuBarButTheTitleOnce()
    {
        RecordingStyle style(m_pTitleBar);
        style.strip = Qt::yellow;
        m_pWindow->setWindowFilePath(QString(500, 'm'));
        const auto stretchOn = [this](const char *pBackground) {
            m_pMenuBar->setStyleSheet(QString("QMenuBar { background: %1; }").arg(pBackground));
            return m_pTitleBar->grab().toImage().copy(stretchRect());
        };
        QCOMPARE(stretchOn("transparent"), stretchOn("yellow"));
        QVERIFY(stretchOn("transparent") != stretchOn("white"));
    }

    void buttonsDoWhatTheyAreCalled()
    {
        QAbstractButton *pMaximize = button("maximizeButton");
        for (const bool bMaximized : {false, true}) {
            QCOMPARE(pMaximize->toolTip(), bMaximized ? "Restore Down" : "Maximize");
            QCOMPARE(pMaximize->accessibleName(), pMaximize->toolTip());
            pMaximize->click();
            QCOMPARE(m_pWindow->isMaximized(), !bMaximized);
        }
        // The system may report a state late that the window has already taken for itself.
        m_pWindow->overrideWindowState(Qt::WindowMaximized);
        m_pTitleBar->updateMaximized(false);
        QWindowStateChangeEvent late(Qt::WindowMaximized);
        QApplication::sendEvent(m_pWindow.get(), &late);
        QCOMPARE(pMaximize->toolTip(), "Restore Down");
        m_pWindow->showNormal();
        QCOMPARE(unnamedControls(m_pTitleBar), QStringList());
        button("minizeButton")->click();
        QVERIFY(m_pWindow->isMinimized());
        QCOMPARE(button("qt_menubar_ext_button")->accessibleName(), "More menus");
        button("closeButton")->click();
        QVERIFY(!m_pWindow->isVisible());
    }

    void iconsAndRowFollowTheDisplay_data()
    {
        const auto row = columns<int, int>("dpi", "icon");
        row("148 percent", 143, 16);
        row("150 percent", 144, 32);
    }
    void iconsAndRowFollowTheDisplay()
    {
        QFETCH(int, dpi);
        QFETCH(int, icon);
        m_pWindow->setGeometry({screenOf(dpi)->geometry().topLeft() + QPoint(50, 50), QSize(800, 600)});
        m_pWindow->setScreen(screenOf(dpi));
        emit m_pWindow->dpiChanged(dpi * 100 / 96);
        const auto *pIcon = qobject_cast<QLabel *>(m_pMenuBar->cornerWidget(Qt::TopLeftCorner));
        QCOMPARE(pIcon->pixmap(Qt::ReturnByValue).size(), QSize(icon, icon));
        QTest::qWait(0);
        QCOMPARE(m_pMenuBar->height(), m_pMenuBar->actionGeometry(file()).height());
        for (const char *pName : {"minizeButton", "maximizeButton", "closeButton"}) {
            const QAbstractButton *pButton = button(pName);
            QCOMPARE(pButton->icon().availableSizes(), QList<QSize>({QSize(icon, icon)}));
            QCOMPARE(pButton->iconSize(), QSize(icon, icon));
            QCOMPARE(pButton->width(), pButton->height());
            QCOMPARE(pButton->height(), m_pMenuBar->actionGeometry(file()).height());
        }
    }

    void theWindowLivesOnWithoutItsTitleBar()
    {
        m_pWindow->setMenuWidget(nullptr);
        QCoreApplication::sendPostedEvents(m_pTitleBar, QEvent::DeferredDelete);
        m_pWindow->showNotification("text", KPNotificationBar::Info, {}, true);
        m_pWindow->hideNotification();
        m_pWindow->showMaximized();
        QVERIFY(!m_pWindow->getNotificationBar() && !m_pWindow->isStyledFrameTitleBar(400, 5));
    }

    void aProjectMayBeDroppedOnTheRowsAboveTheDocuments()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile("/missing.kelpa")});
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        for (const QWidget *pRow :
            {static_cast<QWidget *>(m_pTitleBar), static_cast<QWidget *>(m_pWindow->getFileToolbar())}) {
            const QPoint point = pRow->mapTo(m_pWindow.get(), pRow->rect().center());
            QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(m_pWindow->windowHandle(), &enter);
            QVERIFY(enter.isAccepted());
            QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(m_pWindow->windowHandle(), &drop);
        }
        QCOMPARE(boxes.boxes.size(), 2);
    }

    void windowMenuOffersWhatIsPossible()
    {
        const auto states = [this] {
            QContextMenuEvent event(
                QContextMenuEvent::Mouse, stretchPoint(), m_pWindow->pos() + QPoint(300, 5));
            QApplication::sendEvent(m_pMenuBar, &event);
            const QMenu *pMenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QStringList result;
            for (const QAction *pAction : pMenu ? pMenu->actions() : QList<QAction *>())
                result.append(pAction->text() + (pAction->isEnabled() ? "" : " -"));
            return result;
        };
        QCOMPARE(states(), QStringList({"Restore -", "Minimize", "Maximize", "Close"}));
        choose("Maximize");
        QVERIFY(m_pWindow->isMaximized());
        QCOMPARE(states(), QStringList({"Restore", "Minimize", "Maximize -", "Close"}));
        choose("Restore");
        QVERIFY(!m_pWindow->isMaximized());
        states();
        choose("Close");
        QVERIFY(!m_pWindow->isVisible());
    }

    void keysReachTheWindowMenuAndTheMenus()
    {
        QTest::keyPress(m_pWindow->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(m_pWindow->windowHandle(), Qt::Key_Alt);
        QCOMPARE(m_pMenuBar->activeAction(), file());
        QTest::keyClick(m_pMenuBar, Qt::Key_Escape);
        QTest::keyClick(m_pWindow.get(), Qt::Key_Space, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QTRY_VERIFY(m_pWindow->isMaximized());
        file()->setEnabled(false);
        QTest::keyClick(m_pWindow.get(), Qt::Key_F10);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QCOMPARE(QApplication::activePopupWidget(), m_pMenuBar->actions().at(1)->menu());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

private:
    static void directions()
    {
        const auto row = columns<Qt::LayoutDirection>("direction");
        row("left to right", Qt::LeftToRight);
        row("right to left", Qt::RightToLeft);
    }

    [[nodiscard]] QAction *file() const { return m_pMenuBar->actions().constFirst(); }

    [[nodiscard]] QAbstractButton *button(const char *pName) const
    {
        return m_pTitleBar->findChild<QAbstractButton *>(QLatin1String(pName));
    }

    [[nodiscard]] bool isTitleBar(const QWidget *pWidget, const QPoint &point) const
    {
        const QPoint inClient = pWidget->mapTo(m_pWindow.get(), point);
        return m_pWindow->isStyledFrameTitleBar(inClient.x(), inClient.y());
    }

    // Between the last menu and the title, in either direction of writing.
    [[nodiscard]] QPoint stretchPoint() const
    {
        const QRect last = m_pMenuBar->actionGeometry(m_pMenuBar->actions().constLast());
        return {m_pMenuBar->isRightToLeft() ? last.left() - 8 : last.right() + 8, 5};
    }

    [[nodiscard]] QRect stretchRect() const
    {
        const QRect last = m_pMenuBar->actionGeometry(m_pMenuBar->actions().constLast());
        const QRect corner = m_pMenuBar->cornerWidget()->geometry();
        QRect rect = m_pMenuBar->rect();
        rect.setLeft(qMin(last.right(), corner.right()) + 1);
        rect.setRight(qMax(last.left(), corner.left()) - 1);
        return rect;
    }

    [[nodiscard]] QRect titleInk() const { return inkOf(m_pMenuBar->grab().toImage(), stretchRect()); }

    [[nodiscard]] QPoint titlePoint() const { return m_pMenuBar->actionGeometry(file()).center(); }

    void mouse(QEvent::Type type, const QPoint &point, const QPoint &cursor, Qt::MouseButton button)
    {
        const bool bMove = type == QEvent::MouseMove;
        const bool bUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, QPointF(point), QPointF(cursor), bMove ? Qt::NoButton : button,
            bUp ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(m_pMenuBar, &event);
    }

    static void choose(const char *pText)
    {
        auto *pMenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(pMenu);
        for (QAction *pAction : pMenu->actions()) {
            if (pAction->text() == QLatin1String(pText))
                pAction->trigger();
        }
        pMenu->close();
    }

    IMainMenuWidget *m_pTitleBar = nullptr;
    QMenuBar *m_pMenuBar = nullptr;
};

QTEST_MAIN(tst_IMainMenuWidget)
#include "tst_imainmenuwidget.moc"
