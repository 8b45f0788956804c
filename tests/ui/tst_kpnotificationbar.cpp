// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <iui.h>
#include <ui/kpnotificationbar.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QRandomGenerator>

namespace {

QStringList s_heard; // what a screen reader reads out, with the text it gets when it asks at that moment

// As the window system does when a screen reader is running.
void setScreenReader(bool bRuns)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(bRuns);
}

// Alerts of whatever object, the focus, and new names of the bar.
void record(QAccessibleEvent *pEvent)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const auto announcement = QAccessible::Announcement;
#else
    const auto announcement = QAccessible::Alert;
#endif
    const bool bNewName =
        pEvent->type() == QAccessible::NameChanged && qobject_cast<KPNotificationBar *>(pEvent->object());
    if (pEvent->type() != announcement && pEvent->type() != QAccessible::Focus && !bNewName)
        return;
    const QAccessibleInterface *pInterface = pEvent->accessibleInterface();
    const bool bShowing = pInterface && !pInterface->state().invisible;
    s_heard.append(bShowing
            ? pInterface->text(QAccessible::Description) + ": " + pInterface->text(QAccessible::Name)
            : "");
}

} // namespace

class tst_KPNotificationBar : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        m_pWindow->resize(800, 600);
        showAndWait();
        m_pBar = m_pWindow->getNotificationBar();
    }

    // Whatever was shown before, by the window or by the bar itself, on whatever display.
    void barShowsWhatItIsGiven()
    {
        const QSignalSpy before(m_pBar, &KPNotificationBar::buttonClicked); // is forgotten
        QRandomGenerator random(3);
        for (int i = 0; i < 100; ++i) {
            const QString strText = QStringList({"", "Saved & <b>done</b>", "x"})[random.bounded(3)];
            const QString strButton = QStringList({"", "Undo"})[random.bounded(2)];
            const bool bClosable = random.bounded(2);
            const int nType = random.bounded(3); // the last is no type
            const bool bFine = random.bounded(2);
            m_pWindow->setScreen(screenOf(bFine ? 144 : 96));
            m_pWindow->showNotification(strText, KPNotificationBar::Type(nType), strButton, bClosable);
            if (random.bounded(2))
                compareIcons(nType == KPNotificationBar::Warning, bFine);
            m_pWindow->setScreen(screenOf(bFine ? 96 : 144));
            emit m_pWindow->dpiChanged(bFine ? 100 : 150);
            compareIcons(nType == KPNotificationBar::Warning, !bFine);
            QCOMPARE(m_pBar->text(), strText);
            QCOMPARE(message()->text(), strText);
            QCOMPARE(goButton()->text(), strButton);
            QVERIFY(m_pBar->isVisible());
            QCOMPARE(message()->isVisible(), !strText.isEmpty());
            QCOMPARE(goButton()->isVisible(), !strButton.isEmpty());
            QCOMPARE(closeBox()->isVisible(), bClosable);
            const QSignalSpy clicks(m_pBar, &KPNotificationBar::buttonClicked);
            goButton()->click();
            QCOMPARE(clicks.size(), 1);
            const int nEnd = random.bounded(3);
            if (nEnd == 0)
                m_pWindow->hideNotification();
            else if (nEnd == 1)
                closeBox()->click();
            QCOMPARE(m_pBar->isVisible(), nEnd == 2);
        }
        QCOMPARE(before.size(), 0);
    }

    // The focus goes back to where it came from.
    void keysReachTheCloseBoxAndCloseOnlyWhatMayBeClosed()
    {
        QLineEdit other(m_pWindow.get());
        QLineEdit before(m_pWindow.get());
        other.show();
        before.show();
        before.setFocus();
        for (const bool bClosable : {false, true}) {
            m_pBar->show("text", KPNotificationBar::Info, "Go", bClosable);
            goButton()->setFocus();
            QTest::keyClick(goButton(), Qt::Key_Escape);
            QCOMPARE(m_pBar->isVisible(), !bClosable);
        }
        QCOMPARE(QApplication::focusWidget(), &before);
        m_pBar->show("text", KPNotificationBar::Info, "Go", true);
        goButton()->setFocus();
        QTest::keyClick(goButton(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), closeBox());
        QCOMPARE(closeBox()->accessibleName(), "Close");
        QTest::keyClick(closeBox(), Qt::Key_Space);
        QVERIFY(!m_pBar->isVisible());
    }

    void longMessageLeavesTheWindowAlone()
    {
        m_pBar->show("short", KPNotificationBar::Info, "Go", true);
        const int nMinimum = m_pWindow->minimumSizeHint().width();
        const QString strText = QString("word ").repeated(2000) + "\n<b>second</b> line";
        m_pBar->show(strText, KPNotificationBar::Info, "Go", true);
        QTest::qWait(0);
        QCOMPARE(m_pWindow->width(), 800);
        QVERIFY(m_pWindow->minimumSizeHint().width() <= nMinimum);
        QVERIFY(m_pBar->height() < 2 * goButton()->height());
        QCOMPARE(message()->text(), strText);
        QVERIFY(m_pBar->rect().contains(closeBox()->geometry()));
        QVERIFY(!closeBox()->geometry().intersects(message()->geometry()));
    }

    void everyEndOfALineIsABlank()
    {
        const auto shown = [this](char16_t separator) {
            m_pBar->show(QString("one") + QChar(separator) + "two", KPNotificationBar::Info, {}, true);
            QTest::qWait(0);
            return message()->grab().toImage();
        };
        const QImage expected = shown(u' ');
        for (const char16_t separator : {u'\n', u'\r', u'\u2028', u'\u2029'})
            QCOMPARE(shown(separator), expected);
    }

    void eachMessageIsAnnouncedOnceAndTheFocusStays_data()
    {
        const auto row = columns<bool>("focusInBar");
        row("the focus is elsewhere", false);
        row("the focus is in the bar", true);
    }
    void eachMessageIsAnnouncedOnceAndTheFocusStays()
    {
        QFETCH(bool, focusInBar);
        if (focusInBar) {
            m_pBar->show("before", KPNotificationBar::Info, "Go", true);
            goButton()->setFocus();
        }
        const QWidget *pFocus = QApplication::focusWidget();
        QVERIFY(pFocus);
        s_heard.clear();
        setScreenReader(true);
        const auto previous = QAccessible::installUpdateHandler(record);
        m_pBar->show("first", KPNotificationBar::Info, "Go", true);
        m_pBar->show("second", KPNotificationBar::Warning, "Go", true);
        m_pBar->show("second", KPNotificationBar::Warning, "Go", true);
        QAccessible::installUpdateHandler(previous);
        setScreenReader(false);
        QCOMPARE(s_heard, QStringList({"Information: first", "Warning: second", "Warning: second"}));
        QCOMPARE(QApplication::focusWidget(), pFocus);
        QCOMPARE(QAccessible::queryAccessibleInterface(m_pBar)->role(), QAccessible::AlertMessage);
    }

private:
    void compareIcons(bool bWarning, bool bFine) const
    {
        const QString strName = bWarning ? "warning" : "info";
        QCOMPARE(m_pBar->findChild<QLabel *>("m_pIconLabel")->pixmap(Qt::ReturnByValue).toImage(),
            QPixmap(QString(":/core/images/%1_16%2.png").arg(strName, bFine ? "_2x" : "")).toImage());
        QCOMPARE(closeBox()->iconSize(), QSize(16, 16) * (bFine ? 2 : 1));
        QVERIFY(!closeBox()->icon().isNull());
    }

    [[nodiscard]] QLabel *message() const { return m_pBar->findChild<QLabel *>("m_pMessageLabel"); }
    [[nodiscard]] QPushButton *goButton() const { return m_pBar->findChild<QPushButton *>("m_pButton"); }
    [[nodiscard]] QToolButton *closeBox() const { return m_pBar->findChild<QToolButton *>("m_pCloseButton"); }

    KPNotificationBar *m_pBar = nullptr;
};

QTEST_MAIN(tst_KPNotificationBar)
#include "tst_kpnotificationbar.moc"
