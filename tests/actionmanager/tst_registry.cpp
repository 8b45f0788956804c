// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <map>
#include <set>
#include <vector>

namespace {

using Action = QPointer<QAction>;

// What a command is to do, by the book: every command is looked at on every change of context.
struct ModelCommand
{
    std::map<QWidget *, Action> actions;
    QWidget *pCurrent = nullptr;
    QKeySequence keys, builtIn;

    void point(QWidget *pContext, QWidget *pMain) { pCurrent = actions.count(pContext) ? pContext : pMain; }
    QAction *live() const { return actions.count(pCurrent) ? actions.at(pCurrent).data() : nullptr; }
};

struct Model
{
    QWidget *pMain = nullptr;
    QWidget *pContext = nullptr;
    std::vector<Context> contexts;
    std::map<QString, ModelCommand> commands;
    std::map<QString, QString> store;

    void setContext(QWidget *pWidget)
    {
        pContext = pWidget;
        for (auto &[strId, command] : commands)
            command.point(pWidget, pMain);
    }

    void add(QAction *pAction, const QString &strId, QWidget *pWidget)
    {
        const bool bNew = !commands.count(strId);
        ModelCommand &command = commands[strId];
        if (bNew && store.count(strId))
            command.keys = QKeySequence(store.at(strId), QKeySequence::NativeText);
        command.actions.emplace(pWidget, pAction);
        command.point(pWidget, pMain);
    }

    void remove(QAction *pAction, const QString &strId)
    {
        if (!commands.count(strId))
            return;
        ModelCommand &command = commands[strId];
        std::erase_if(command.actions, [=](auto &entry) { return !entry.second || entry.second == pAction; });
        command.point(command.pCurrent, pMain);
        if (command.actions.empty())
            commands.erase(strId);
    }

    QWidget *activeContext(QWidget *pWidget) const
    {
        for (; pWidget; pWidget = pWidget->parentWidget()) {
            for (const Context &context : contexts) {
                if (context.widget == pWidget)
                    return pWidget;
            }
        }
        return pMain;
    }
};

} // namespace

/// Contexts and their commands: what their classes promise, then random walks next to a model of them.
class tst_Registry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_pContent = new QWidget;
        m_pRest = new QLineEdit;
        (new QVBoxLayout(m_pContent))->addWidget(m_pRest);
        m_program.window()->addToolBar("Panels")->addWidget(m_pContent);
        m_program.window()->show();
        QVERIFY(QTest::qWaitForWindowActive(m_program.window()));
        m_model.pMain = m_program.window();
    }

    void theInnermostContextCountsAndTheFirstOfAWidget()
    {
        QWidget outer;
        auto *pInner = new QWidget(&outer);
        auto *pLeaf = new QWidget(pInner);
        ContextManager::registerContext(&outer, "Outer", "Outside");
        ContextManager::registerContext(pInner, "Inner", "Inside");
        QCOMPARE(ContextManager::registerContext(pInner, "Inner", "again").name, "Inside");
        ContextManager::registerContext(pInner, "Later", "");
        QCOMPARE(ContextManager::getContexts().size(), 3);
        QCOMPARE(ContextManager::getActiveContext(pLeaf).id, "Inner");
        QCOMPARE(ContextManager::getContextId(pLeaf), QString());
        QCOMPARE(ContextManager::getContextName(pInner), "Inside");
        QCOMPARE(ContextManager::getContextName("Outer"), "Outside");
        QCOMPARE(ContextManager::getContextWidget("Inner"), pInner);
        ContextManager::unregisterContext(&outer, "Inner");
        ContextManager::unregisterContext(&outer, "Outer");
        QCOMPARE(ContextManager::getActiveContext(pLeaf).id, "Inner");
        ContextManager::unregisterContext(pInner, "Inner");
        QCOMPARE(ContextManager::getActiveContext(pLeaf).id, "Later");
        ContextManager::unregisterContext(pInner, "Later");
        for (QWidget *pWidget : {static_cast<QWidget *>(nullptr), pLeaf}) {
            const Context context = ContextManager::getActiveContext(pWidget);
            QCOMPARE(context.widget, m_program.window());
            QCOMPARE(context.id + context.name, "GlobalGlobal");
        }
        QVERIFY(ContextManager::isGlobalContext({pLeaf, "Global", {}}));
        QCOMPARE(ContextManager::registerContext(nullptr, "A", "a").id, QString());
        QCOMPARE(ContextManager::registerContext(pLeaf, QString(), "a").widget, nullptr);
        QVERIFY(ContextManager::getContexts().isEmpty());
    }

    void aCommandOfAPanelIsOffElsewhere()
    {
        QWidget panel, child(&panel);
        Registered local("Cells.Merge", &panel);
        QSignalSpy spy(local.pCommand, &ContextAction::activeStateChanged);
        QVERIFY(local.proxy()->isEnabled());
        ActionManager::setContext(&child);
        QVERIFY(!local.proxy()->isEnabled());
        QVERIFY(local.pCommand->isActive());
        ActionManager::setContext(m_program.window());
        QCOMPARE(spy.size(), 1);
        ActionManager::setContext(&panel);
        QVERIFY(local.proxy()->isEnabled());
        QCOMPARE(spy.size(), 2);
    }

    void aProxyPointedElsewhereByHandComesBack()
    {
        QAction stranger;
        Registered global("Edit.Undo", m_program.window());
        ActionManager::setContext(m_program.window());
        global.proxy()->setAction(&stranger);
        ActionManager::setContext(m_program.window());
        QCOMPARE(global.proxy()->action(), &global.action);
    }

    void visibilityGoesToEveryActionThatLives()
    {
        QWidget panel, gone;
        Registered global("Edit.Redo", m_program.window()), local("Edit.Redo", &panel);
        auto dead = std::make_unique<QAction>();
        ActionManager::registerAction(dead.get(), "Edit.Redo", &gone, false);
        dead.reset();
        ActionManager::setContext(&panel);
        global.pCommand->setVisible(false);
        QVERIFY(!global.action.isVisible() && !local.action.isVisible() && !local.proxy()->isVisible());
    }

    void behavesLikeTheModel_data()
    {
        const auto row = columns<quint32>("seed");
        for (const char *pName : {"walk 1", "walk 2", "walk 3", "walk 4"})
            row(pName, quint32(pName[5] - '0'));
    }
    void behavesLikeTheModel()
    {
        QFETCH(quint32, seed);
        m_random.seed(seed);
        for (int i = 0; i < 4000; ++i) {
            const int nStep = below(15);
            step(nStep);
            compare();
            if (QTest::currentTestFailed()) {
                qInfo("after step %d of kind %d", i, nStep);
                return;
            }
        }
    }

    void cleanup()
    {
        while (!m_panels.empty())
            destroyPanel(0);
        for (QAction *pAction : std::vector<QAction *>(m_actions.begin(), m_actions.end()))
            destroyAction(pAction);
        for (const ContextAction *pCommand : ActionManager::getActions())
            unregister(nullptr, pCommand->getId());
        QVERIFY(ActionManager::getActions().isEmpty());
        m_program.settings().clear();
        m_model.store.clear();
    }

private:
    int below(int nEnd) { return static_cast<int>(m_random.bounded(nEnd)); }
    QString anyId() { return QString("Test.%1").arg(below(10)); }
    QKeySequence anyKeys()
    {
        return below(4) ? QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_A + below(8))) : QKeySequence();
    }
    QAction *anyAction()
    {
        return m_actions.empty() ? nullptr : m_actions[static_cast<size_t>(below(int(m_actions.size())))];
    }
    size_t anyPanel() { return static_cast<size_t>(below(int(m_panels.size()))); }
    QWidget *anyContext() { return m_panels.empty() || !below(3) ? m_model.pMain : m_panels[anyPanel()]; }

    void step(int nKind)
    {
        static constexpr void (tst_Registry::*s_steps[])() = {&tst_Registry::createPanel,
            &tst_Registry::createOrDestroyPanel, &tst_Registry::focusAny, &tst_Registry::focusRest,
            &tst_Registry::registerAny, &tst_Registry::registerAny, &tst_Registry::registerAny,
            &tst_Registry::unregisterAny, &tst_Registry::destroyAny, &tst_Registry::toggleAny,
            &tst_Registry::changeKeys, &tst_Registry::save, &tst_Registry::read, &tst_Registry::reset,
            &tst_Registry::trigger};
        const auto pStep = s_steps[nKind];
        (this->*pStep)();
    }

    void createPanel()
    {
        QWidget *pParent = m_panels.empty() || below(2) ? m_pContent : m_panels.front();
        auto *pPanel = new QWidget(pParent);
        (new QVBoxLayout(pPanel))->addWidget(new QLineEdit(pPanel));
        pPanel->setGeometry(0, 0, 50, 30);
        pPanel->show();
        m_panels.push_back(pPanel);
        const Context context {pPanel, QString("Panel"), QString()};
        ContextManager::registerContext(pPanel, context.id, context.name);
        m_model.contexts.push_back(context);
    }

    // What is in the panel leaves the registry with it, also panels within it; their dead actions do not.
    void destroyPanel(size_t nIndex)
    {
        focus(m_pRest);
        QWidget *pDoomed = m_panels[nIndex];
        for (QWidget *pPanel : std::vector<QWidget *>(m_panels)) {
            if (pPanel != pDoomed && !pDoomed->isAncestorOf(pPanel))
                continue;
            for (const auto &[strId, command] : std::map(m_model.commands)) {
                if (command.actions.count(pPanel))
                    unregister(command.actions.at(pPanel), strId);
            }
            ContextManager::unregisterContext(pPanel, "Panel");
            std::erase_if(m_model.contexts, [=](const Context &context) { return context.widget == pPanel; });
            std::erase(m_panels, pPanel);
        }
        delete pDoomed;
    }

    void focus(QWidget *pWidget)
    {
        const bool bHadFocus = pWidget->hasFocus();
        pWidget->setFocus();
        QVERIFY(pWidget->hasFocus());
        if (!bHadFocus)
            m_model.setContext(m_model.activeContext(pWidget));
    }

    void registerAny()
    {
        QAction *pAction = below(3) ? nullptr : anyAction();
        if (!pAction) {
            pAction = new QAction;
            pAction->setEnabled(below(4));
            pAction->setCheckable(!below(4));
            connect(pAction, &QAction::triggered, this, [this, pAction] { fired(pAction); });
            m_actions.push_back(pAction);
        }
        const QString strId = anyId();
        QWidget *pContext = anyContext();
        m_model.add(pAction, strId, pContext);
        ContextAction *pCommand = ActionManager::registerAction(pAction, strId, pContext, false);
        const QKeySequence builtIn(Qt::ALT | Qt::Key(Qt::Key_A + strId.back().digitValue()));
        pCommand->setDefaultKeySequence(builtIn);
        ModelCommand &command = m_model.commands[strId];
        command.builtIn = builtIn;
        if (command.keys.isEmpty())
            command.keys = builtIn;
    }

    // Null stands for any: the registry itself ignores it, so a stranger purges what is dead.
    void unregister(QAction *pAction, const QString &strId)
    {
        QAction stranger;
        m_model.remove(pAction ? pAction : &stranger, strId);
        ActionManager::unregisterAction(pAction ? pAction : &stranger, strId);
    }

    void destroyAction(QAction *pAction)
    {
        std::erase(m_actions, pAction);
        delete pAction;
    }

    void toggleAny()
    {
        if (QAction *pAction = anyAction())
            pAction->setEnabled(!pAction->isEnabled());
    }
    void destroyAny() { destroyAction(below(3) ? nullptr : anyAction()); }
    void unregisterAny() { unregister(anyAction(), anyId()); }
    void focusRest() { focus(m_pRest); }
    void focusAny() { focus(m_panels.empty() ? m_pRest : m_panels[anyPanel()]->findChild<QLineEdit *>()); }
    void createOrDestroyPanel() { m_panels.size() > 3 ? destroyPanel(anyPanel()) : createPanel(); }

    void changeKeys()
    {
        const QString strId = anyId();
        const QKeySequence sequence = anyKeys();
        if (ContextAction *pCommand = ActionManager::getAction(strId)) {
            pCommand->setKeySequence(sequence);
            m_model.commands[strId].keys = sequence;
        }
    }

    void save()
    {
        for (const auto &[strId, command] : m_model.commands) {
            m_model.store.erase(strId);
            if (!command.keys.isEmpty())
                m_model.store[strId] = command.keys.toString(QKeySequence::PortableText);
        }
        ActionManager::saveSettings();
    }

    void read()
    {
        for (auto &[strId, command] : m_model.commands)
            command.keys = QKeySequence(m_model.store[strId], QKeySequence::NativeText);
        ActionManager::readFromSettings();
    }

    void reset()
    {
        for (auto &[strId, command] : m_model.commands)
            command.keys = command.builtIn;
        ActionManager::resetToDefault();
    }

    // Some actions unregister themselves when they fire.
    void fired(QAction *pAction)
    {
        m_fired.push_back(pAction);
        if (m_bUnregisterOnFire)
            unregister(pAction, m_strTriggered);
    }

    void trigger()
    {
        const QString strId = anyId();
        m_fired.clear();
        m_strTriggered = strId;
        m_bUnregisterOnFire = !below(4);
        std::vector<QAction *> expected;
        if (m_model.commands.count(strId)) {
            QAction *pLive = m_model.commands.at(strId).live();
            if (pLive && pLive->isEnabled())
                expected.push_back(pLive);
            ActionManager::getAction(strId)->getAction()->trigger();
        }
        QCOMPARE(m_fired, expected);
    }

    void compare()
    {
        QStringList ids;
        for (const ContextAction *pCommand : ActionManager::getActions())
            ids.append(pCommand->getId());
        QStringList expected;
        for (const auto &[strId, command] : m_model.commands) {
            expected.append(strId);
            const ContextAction *pCommand = ActionManager::getAction(strId);
            QVERIFY(pCommand);
            const auto *pProxy = static_cast<const ProxyAction *>(pCommand->getAction());
            QCOMPARE(pProxy->action(), command.live());
            if (command.live()) {
                QCOMPARE(pProxy->isEnabled(), command.live()->isEnabled());
                QCOMPARE(pProxy->isChecked(), command.live()->isChecked());
            }
            QCOMPARE(pCommand->getKeySequence(), command.keys);
        }
        QCOMPARE(ids, expected);
    }

    Program m_program;
    Model m_model;
    QRandomGenerator m_random;
    QWidget *m_pContent = nullptr;
    QLineEdit *m_pRest = nullptr;
    std::vector<QWidget *> m_panels;
    std::vector<QAction *> m_actions;
    std::vector<QAction *> m_fired;
    QString m_strTriggered;
    bool m_bUnregisterOnFire = false;
};

QTEST_MAIN(tst_Registry)
#include "tst_registry.moc"
