// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <iui.h>
#include <ui/kpnotificationbar.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>

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

    void barShowsWhatItIsGiven_data()
    {
        const auto row = columns<QString, QString, bool>("text", "button", "closable");
        row("everything", "Saved & <b>done</b>", "Undo", true);
        row("no button", "Saved", "", true);
        row("nothing but the icon", "", "", false);
    }
    void barShowsWhatItIsGiven()
    {
        QFETCH(QString, text);
        QFETCH(QString, button);
        QFETCH(bool, closable);
        QVERIFY(!m_pBar->isVisible());
        m_pWindow->showNotification("before", KPNotificationBar::Warning, "before", !closable);
        m_pWindow->showNotification(text, KPNotificationBar::Info, button, closable);
        QVERIFY(m_pBar->isVisible());
        QCOMPARE(message()->text(), text);
        QCOMPARE(message()->isVisible(), !text.isEmpty());
        QCOMPARE(goButton()->text(), button);
        QCOMPARE(goButton()->isVisible(), !button.isEmpty());
        QCOMPARE(closeBox()->isVisible(), closable);
        m_pWindow->hideNotification();
        QVERIFY(!m_pBar->isVisible());
    }

    void iconFollowsTypeAndDisplay()
    {
        for (const char *pName : {"warning", "info"}) {
            const bool bWarning = pName[0] == 'w';
            m_pBar->show(
                "text", bWarning ? KPNotificationBar::Warning : KPNotificationBar::Type(2), {}, true);
            for (const int nDPI : {144, 96}) {
                m_pWindow->setScreen(screenOf(nDPI));
                emit m_pWindow->dpiChanged(nDPI * 100 / 96);
                QCOMPARE(m_pBar->findChild<QLabel *>("m_pIconLabel")->pixmap(Qt::ReturnByValue).toImage(),
                    QPixmap(QString(":/core/images/%1_16%2.png").arg(pName, nDPI == 144 ? "_2x" : ""))
                        .toImage());
                QCOMPARE(closeBox()->iconSize().width(), nDPI == 144 ? 32 : 16);
            }
        }
    }

    void laterShowForgetsTheReceivers()
    {
        m_pBar->show("one", KPNotificationBar::Info, "Go", true);
        const QSignalSpy first(m_pBar, &KPNotificationBar::buttonClicked);
        goButton()->click();
        m_pBar->show("two", KPNotificationBar::Info, "Go", true);
        const QSignalSpy second(m_pBar, &KPNotificationBar::buttonClicked);
        goButton()->click();
        QCOMPARE(first.size(), 1);
        QCOMPARE(second.size(), 1);
        QVERIFY(m_pBar->isVisible());
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
    [[nodiscard]] QLabel *message() const { return m_pBar->findChild<QLabel *>("m_pMessageLabel"); }
    [[nodiscard]] QPushButton *goButton() const { return m_pBar->findChild<QPushButton *>("m_pButton"); }
    [[nodiscard]] QToolButton *closeBox() const { return m_pBar->findChild<QToolButton *>("m_pCloseButton"); }

    KPNotificationBar *m_pBar = nullptr;
};

QTEST_MAIN(tst_KPNotificationBar)
#include "tst_kpnotificationbar.moc"
