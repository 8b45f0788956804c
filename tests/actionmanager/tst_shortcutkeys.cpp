// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <ui/imainmdiarea.h>

// Keys that reach commands through the focus. On an X server they come from its keyboard.
class tst_ShortcutKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        auto *pContent = new QWidget;
        auto *pLayout = new QHBoxLayout(pContent);
        for (QWidget *pWidget : {m_pLeft, m_pRight, static_cast<QWidget *>(m_pField)}) {
            pWidget->setFocusPolicy(Qt::StrongFocus);
            pWidget->setMinimumSize(100, 30);
            pLayout->addWidget(pWidget);
        }
        m_program.window()->getMdiArea()->addSubWindow(pContent)->show();
        m_program.window()->show();
        m_program.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_program.window()));
        ContextManager::registerContext(m_pLeft, "Left", "Left");
        ContextManager::registerContext(m_pRight, "Right", "Right");
    }

    void oneShortcutFiresInTheFocusedContextOnly()
    {
        Registered global("Edit.Go", m_program.window());
        Registered left("Edit.Go", m_pLeft), right("Edit.Go", m_pRight);
        global.pCommand->setDefaultKeySequence(keys("Ctrl+G"));
        const auto fired = [&] { return QList<int> {left.nFired, right.nFired, global.nFired}; };
        QList<int> expected(3, 0);
        for (int i = 0; i < 3; ++i) {
            focus(QList<QWidget *> {m_pLeft, m_pRight, m_pField}.at(i));
            press("Ctrl+G");
            expected[i] = 1;
            QTRY_COMPARE(fired(), expected);
        }
        // What its context disables does not fire, nor does the global one for it.
        Registered next("Edit.Next", m_program.window());
        next.pCommand->setDefaultKeySequence(keys("Ctrl+H"));
        left.action.setEnabled(false);
        focus(m_pLeft);
        press("Ctrl+G");
        press("Ctrl+H"); // the keys before it have arrived when it fires
        QTRY_COMPARE(next.nFired, 1);
        focus(m_pRight);
        press("Ctrl+G");
        expected[1] = 2;
        QTRY_COMPARE(fired(), expected);
        // A menu that takes the focus leaves the context as it is.
        QWidget *pParent = m_pRight->parentWidget();
        for (QWidget *pMenu :
            {static_cast<QWidget *>(new QMenu(pParent)), static_cast<QWidget *>(new QMenuBar(pParent))}) {
            const std::unique_ptr<QWidget> menu(pMenu);
            pMenu->setWindowFlags(Qt::Widget);
            pMenu->show();
            focus(pMenu);
            QCOMPARE(left.proxy()->action(), &right.action);
            focus(m_pRight);
        }
    }

    void sharedKeysGoToTheCommandThatHadThemFirst()
    {
        Registered later("Edit.A_Later", m_program.window()), first("Edit.First", m_program.window());
        for (const Registered *pCommand : {&first, &later})
            pCommand->pCommand->setKeySequence(keys("Ctrl+G"));
        focus(m_pLeft);
        for (int i = 1; i <= 2; ++i) {
            QTest::ignoreMessage(QtWarningMsg,
                "Ctrl+G is the shortcut of Edit.First, Edit.A_Later; the first one is triggered");
            press("Ctrl+G");
            QTRY_COMPARE(first.nFired, i);
        }
        const auto change = [&first] {
            first.pCommand->setKeySequence({});
            first.pCommand->setKeySequence(keys("Ctrl+G"));
        };
        change();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("of Edit.A_Later, Edit.First;"));
        press("Ctrl+G");
        QTRY_COMPARE(later.nFired, 1);
        // A default that comes back is as old as its command.
        first.pCommand->setDefaultKeySequence(keys("Ctrl+G"));
        change();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("of Edit.First, Edit.A_Later;"));
        press("Ctrl+G");
        QTRY_COMPARE(first.nFired, 3);
    }

    void aTextFieldKeepsItsEditingKeys()
    {
        Registered all("Edit.All", m_program.window()), remove("Edit.Delete", m_program.window());
        Registered letter("Tools.Brush", m_program.window());
        all.pCommand->setDefaultKeySequence(keys("Ctrl+A"));
        remove.pCommand->setDefaultKeySequence(keys("Backspace"));
        letter.pCommand->setDefaultKeySequence(keys("B"));
        focus(m_pField);
        press("B");
        QTRY_COMPARE(m_pField->text(), "b");
        press("Ctrl+A");
        QTRY_VERIFY(m_pField->hasSelectedText());
        press("Backspace");
        QTRY_COMPARE(m_pField->text(), QString());
        QCOMPARE(all.nFired + remove.nFired + letter.nFired, 0);
        focus(m_pLeft);
        press("Ctrl+A");
        press("Backspace");
        press("B");
        QTRY_COMPARE(letter.nFired, 1);
        QCOMPARE(all.nFired, 1);
        QCOMPARE(remove.nFired, 1);
    }

private:
    // Commands follow changes of the focus only.
    static void focus(QWidget *pWidget)
    {
        if (pWidget->hasFocus())
            pWidget->clearFocus();
        pWidget->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), pWidget);
    }

    static void press(const char *pKeys)
    {
        if (QGuiApplication::platformName() == "xcb")
            return pressOnServer(pKeys);
        const QKeySequence sequence = keys(pKeys);
        QTest::keyClick(QApplication::focusWidget(), sequence[0].key(), sequence[0].keyboardModifiers());
    }

    Program m_program;
    QWidget *m_pLeft = new QWidget;
    QWidget *m_pRight = new QWidget;
    QLineEdit *m_pField = new QLineEdit;
};

QTEST_MAIN(tst_ShortcutKeys)
#include "tst_shortcutkeys.moc"
