// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <actionmanager/contextmanager.h>
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
        pPainter->drawText(pOption->rect, int(Qt::AlignLeft | Qt::AlignAbsolute), option.text);
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
        compareShown();
        QCOMPARE(style.option.text, painted);
        QCOMPARE(m_pWindow->windowTitle(), painted.replace("[*]", "[*][*]"));
        const int nHeight = style.pixelMetric(QStyle::PM_TitleBarHeight, &style.option, m_pTitleBar);
        QCOMPARE(style.option.rect, QRect(0, 0, m_pTitleBar->width(), nHeight));
        QVERIFY(!style.option.icon.isNull());
        QVERIFY(style.option.titleBarState & QStyle::State_Active);
        QCOMPARE(style.option.titleBarState & 0xff, int(m_pWindow->windowState()));
    }

    // Where no menu bar covers it: icon and title in a strip of the style, and under that what a widget
    // shows.
    void aBareTitleBarPaintsEverythingItself_data() { directions(); }
    void aBareTitleBarPaintsEverythingItself()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QApplication::setLayoutDirection(direction);
        RecordingStyle style(m_pTitleBar);
        style.strip = Qt::yellow;
        m_pMenuBar->hide();
        m_pTitleBar->setFixedHeight(40);
        m_pTitleBar->setBackgroundRole(QPalette::Base);
        for (const int nLength : {3, 500}) {
            m_pWindow->setWindowFilePath(QString(nLength, 'm'));
            QCoreApplication::sendPostedEvents();
            const QImage image = m_pTitleBar->grab().toImage();
            QImage expected(image.size(), image.format());
            expected.fill(m_pTitleBar->palette().color(QPalette::Window));
            QPainter painter(&expected);
            painter.setFont(m_pTitleBar->font());
            const QRect strip = style.option.rect;
            painter.fillRect(strip, style.strip);
            painter.setLayoutDirection(direction);
            painter.drawText(
                strip, int(Qt::AlignLeft | Qt::AlignAbsolute), style.option.text); // by the style
            const bool bMirrored = direction == Qt::RightToLeft;
            const int nSide = strip.height() - 3;
            const QPixmap icon = m_pTitleBar->windowIcon().pixmap(nSide, nSide);
            const int nIconX = bMirrored ? strip.width() - 3 - icon.width() : 3;
            painter.drawPixmap(nIconX, 3 + (nSide - icon.height()) / 2, icon);
            const int nX = icon.width() + 10;
            const int nWidth = strip.width() - 10 - strip.height();
            painter.drawText(QRect(bMirrored ? strip.width() - nX - nWidth : nX, 0, nWidth, strip.height()),
                int(Qt::AlignVCenter | Qt::AlignAbsolute | (bMirrored ? Qt::AlignRight : Qt::AlignLeft)),
                style.option.text);
            painter.end();
            QCOMPARE(image, expected);
        }
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
        const int nRow = m_pMenuBar->actionGeometry(file()).height();
        QCOMPARE(m_pMenuBar->height(), nRow);
        for (const char *pName : {"minizeButton", "maximizeButton", "closeButton"}) {
            const QAbstractButton *pButton = button(pName);
            QCOMPARE(pButton->icon().availableSizes(), QList<QSize>({QSize(icon, icon)}));
            QCOMPARE(pButton->iconSize(), QSize(icon, icon));
            QCOMPARE(pButton->width(), pButton->height());
            QCOMPARE(pButton->height(), nRow);
        }
        QCOMPARE(m_pMenuBar->cornerWidget()->size(), QSize(3 * nRow, nRow));
        QCOMPARE(pIcon->margin(), qMax(0, (nRow - icon) / 2));
        QCOMPARE(pIcon->size(), QSize(1, 1) * qMin(nRow, icon + 2 * pIcon->margin()));
        QVERIFY(pIcon->hasScaledContents());
        compareShown();
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
        const QPoint place = m_pWindow->pos() + QPoint(300, 5);
        const auto open = [&] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, stretchPoint(), place);
            QApplication::sendEvent(m_pMenuBar, &event);
            return qobject_cast<QMenu *>(QApplication::activePopupWidget());
        };
        for (const char *pEntry : {"Maximize", "Restore", "Minimize", "Close"}) {
            const QPointer<QMenu> pMenu = open();
            QVERIFY(pMenu && pMenu->pos() == place);
            QStringList states;
            QAction *pChosen = nullptr;
            const auto actions = pMenu->actions();
            for (QAction *pAction : actions) {
                states.append(pAction->text() + (pAction->isEnabled() ? "" : " -"));
                pChosen = pAction->text() == pEntry ? pAction : pChosen;
            }
            const bool bRestorable = !qstrcmp(pEntry, "Restore");
            QCOMPARE(states,
                QStringList({bRestorable ? "Restore" : "Restore -", "Minimize",
                    bRestorable ? "Maximize -" : "Maximize", "Close"}));
            pChosen->trigger();
            QCOMPARE(m_pWindow->isMaximized(), !qstrcmp(pEntry, "Maximize"));
            QCOMPARE(m_pWindow->isMinimized(), !qstrcmp(pEntry, "Minimize"));
            QCOMPARE(m_pWindow->isVisible(), qstrcmp(pEntry, "Close") != 0);
            m_pWindow->setWindowState(m_pWindow->windowState() & ~Qt::WindowMinimized);
            pMenu->close();
            QCoreApplication::sendPostedEvents(pMenu, QEvent::DeferredDelete);
            QVERIFY(!pMenu);
        }
    }

    // The commands stay those of where the focus was, while the menus have it.
    void keysReachTheWindowMenuAndTheMenus()
    {
        QLineEdit edit(m_pWindow.get());
        edit.show();
        ContextManager::registerContext(&edit, "Test.Edit", "Edit");
        QAction action("Only there");
        ActionManager::registerAction(&action, "Test.There", &edit, false);
        const QAction *pCommand = ActionManager::getAction("Test.There")->getAction();
        edit.setFocus();
        QVERIFY(pCommand->isEnabled());
        QTest::keyPress(m_pWindow->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(m_pWindow->windowHandle(), Qt::Key_Alt);
        QCOMPARE(m_pMenuBar->activeAction(), file());
        QCOMPARE(QApplication::focusWidget(), m_pMenuBar);
        QVERIFY(pCommand->isEnabled());
        QTest::keyClick(m_pMenuBar, Qt::Key_Escape);

        const QPoint place = m_pMenuBar->mapToGlobal(QPoint(0, m_pMenuBar->height()));
        for (const bool bMaximized : {true, false}) {
            QTest::keyClick(m_pWindow.get(), Qt::Key_Space, Qt::AltModifier);
            QTRY_VERIFY(QApplication::activePopupWidget());
            QVERIFY(!bMaximized || QApplication::activePopupWidget()->pos() == place);
            if (bMaximized)
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
            QTRY_COMPARE(m_pWindow->isMaximized(), bMaximized);
        }
        file()->setEnabled(false);
        m_pMenuBar->actions().at(1)->setVisible(false);
        QTest::keyClick(m_pWindow.get(), Qt::Key_F10);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QCOMPARE(QApplication::activePopupWidget(), m_pMenuBar->actions().at(2)->menu());
        QVERIFY(pCommand->isEnabled());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        m_pWindow->setFocus();
        QVERIFY(!pCommand->isEnabled());
        ActionManager::unregisterAction(&action, "Test.There");
        ContextManager::unregisterContext(&edit, "Test.Edit");
    }

    void docksAreListedByTheirArea()
    {
        const Qt::DockWidgetArea areas[] = {
            Qt::LeftDockWidgetArea, Qt::BottomDockWidgetArea, Qt::LeftDockWidgetArea};
        QList<QDockWidget *> docks;
        for (const Qt::DockWidgetArea area : areas) {
            docks.append(new QDockWidget(m_pWindow.get()));
            m_pWindow->addDockWidget(area, docks.last());
        }
        using List = QList<QDockWidget *>;
        QCOMPARE(m_pWindow->getListDockWidgetsByArea(Qt::LeftDockWidgetArea), List({docks[0], docks[2]}));
        QCOMPARE(m_pWindow->getListDockWidgetsByArea(Qt::BottomDockWidgetArea), List({docks[1]}));
        QCOMPARE(m_pWindow->getListDockWidgetsByArea(Qt::RightDockWidgetArea), List());
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

    // What the screen shows is what would be painted now.
    void compareShown() const
    {
        QTest::qWait(0);
        const QRect rect(m_pTitleBar->mapTo(m_pWindow.get(), QPoint()), m_pTitleBar->size());
        const QImage shown = m_pWindow->screen()->grabWindow(m_pWindow->winId()).toImage();
        const QImage painted = m_pWindow->grab(rect).toImage();
        QCOMPARE(shown.copy(rect).convertToFormat(painted.format()), painted);
    }

    IMainMenuWidget *m_pTitleBar = nullptr;
    QMenuBar *m_pMenuBar = nullptr;
};

QTEST_MAIN(tst_IMainMenuWidget)
#include "tst_imainmenuwidget.moc"
