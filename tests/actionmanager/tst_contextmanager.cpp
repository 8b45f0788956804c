// SPDX-License-Identifier: MIT
#include "commandtest.h"

class tst_ContextManager : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const Context &context : ContextManager::getContexts())
            ContextManager::unregisterContext(context.widget, context.id);
    }

    void theInnermostContextWins()
    {
        QWidget outer;
        auto *pMiddle = new QWidget(&outer);
        auto *pInner = new QWidget(pMiddle);
        auto *pLeaf = new QWidget(pInner);
        ContextManager::registerContext(&outer, "Outer", "Outside");
        ContextManager::registerContext(pInner, "Inner", "Inside");
        QCOMPARE(ContextManager::getActiveContext(pLeaf).id, "Inner");
        QCOMPARE(ContextManager::getActiveContext(pInner).widget, pInner);
        QCOMPARE(ContextManager::getActiveContext(pMiddle).id, "Outer");
        QCOMPARE(ContextManager::getContextId(pLeaf), QString());
        QCOMPARE(ContextManager::getContextName(pInner), "Inside");
        QCOMPARE(ContextManager::getContextName("Outer"), "Outside");
        QCOMPARE(ContextManager::getContextWidget("Inner"), pInner);
        QCOMPARE(ContextManager::getContextWidget("inner"), nullptr);
    }

    void whatIsInNoContextIsGlobal()
    {
        QWidget lonely;
        for (QWidget *pWidget : {static_cast<QWidget *>(nullptr), &lonely}) {
            const Context context = ContextManager::getActiveContext(pWidget);
            QCOMPARE(context.widget, m_program.window());
            QCOMPARE(context.id, "Global");
            QCOMPARE(context.name, "Global");
        }
        QVERIFY(ContextManager::isGlobalContext({&lonely, "Global", {}}));
        QVERIFY(!ContextManager::isGlobalContext({m_program.window(), "global", {}}));
        QVERIFY(ContextManager::getContexts().isEmpty());
    }

    void theFirstContextOfAWidgetWins()
    {
        QWidget first, second;
        ContextManager::registerContext(&first, "Other", "");
        const Context original = ContextManager::registerContext(&second, "A", "one");
        QCOMPARE(ContextManager::registerContext(&second, "A", "two").name, original.name);
        ContextManager::registerContext(&second, "B", "");
        QCOMPARE(ContextManager::getContexts().size(), 3);
        QCOMPARE(ContextManager::getActiveContext(&second).id, "A");

        ContextManager::unregisterContext(&first, "A");
        ContextManager::unregisterContext(&second, "C");
        QCOMPARE(ContextManager::getContexts().size(), 3);
        ContextManager::unregisterContext(&first, "Other");
        QCOMPARE(ContextManager::getActiveContext(&second).id, "A");
        ContextManager::unregisterContext(&second, "A");
        QCOMPARE(ContextManager::getActiveContext(&second).id, "B");
    }

    void nullIsNotRegistered()
    {
        QWidget widget;
        QCOMPARE(ContextManager::registerContext(nullptr, "A", "a").id, QString());
        QCOMPARE(ContextManager::registerContext(&widget, QString(), "a").widget, nullptr);
        QVERIFY(ContextManager::getContexts().isEmpty());
    }

private:
    Program m_program;
};

QTEST_MAIN(tst_ContextManager)
#include "tst_contextmanager.moc"
