// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <map>
#include <set>
#include <vector>

namespace {

using Action = QPointer<QAction>;

// What menus and tool bars show of an action. The tool tip is the last of the texts.
struct Look
{
    bool bEnabled = false, bVisible = true, bCheckable = false, bChecked = false, bSeparator = false;
    QString icons, texts;
    QAction::MenuRole role = QAction::NoRole;

    bool operator==(const Look &) const = default;
};

Look lookOf(const QAction *p)
{
    const auto icons = QStringList {p->iconText(), QString::number(p->icon().cacheKey())}.join('|')
        + (p->isIconVisibleInMenu() ? "|in menus" : "");
    const QStringList texts {p->text(), p->statusTip(), p->whatsThis(), p->toolTip()};
    return {p->isEnabled(), p->isVisible(), p->isCheckable(), p->isChecked(), p->isSeparator(), icons,
        texts.join('|'), p->menuRole()};
}

// What a command is to do, by the book: every command is looked at on every change of context.
struct ModelCommand
{
    Look look;
    std::map<QWidget *, Action> actions;
    QWidget *pCurrent = nullptr;
    QKeySequence keys, builtIn;
    bool bHides = false, bMirrorsText = false, bMirrorsIcon = false, bTipShowsKeys = true;

    void point(QWidget *pContext, QWidget *pMain)
    {
        pCurrent = actions.count(pContext) ? pContext : pMain;
        look.bEnabled = false;
        look.bVisible = look.bVisible && !bHides;
        follow(live());
    }
    // What an action looked like last remains when it dies.
    void follow(const QAction *pAction)
    {
        if (!pAction)
            return;
        const Look before = std::exchange(look, lookOf(pAction));
        look.bSeparator = before.bSeparator;
        look.role = before.role;
        if (!bMirrorsText)
            look.texts = before.texts;
        if (!bMirrorsIcon)
            look.icons = before.icons;
    }
    [[nodiscard]] Look shown() const
    {
        Look result = look;
        if (bTipShowsKeys && !keys.isEmpty())
            result.texts += '\t' + keys.toString(QKeySequence::NativeText);
        return result;
    }
    QAction *live() const { return actions.count(pCurrent) ? actions.at(pCurrent).data() : nullptr; }
};

struct Model
{
    QWidget *pMain = nullptr;
    QWidget *pContext = nullptr;
    std::vector<Context> contexts;
    std::map<QString, ModelCommand> commands;
    std::map<QString, QString> store;
    QStringList told; ///< the ids of commands that came, and of all for each change of the list

    [[nodiscard]] QString ids() const
    {
        QStringList ids;
        for (const auto &[strId, command] : commands)
            ids.append(strId);
        return ids.join(' ');
    }

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
        if (bNew)
            command.look = lookOf(pAction);
        if (bNew && store.count(strId))
            command.keys = QKeySequence(store.at(strId), QKeySequence::NativeText);
        command.actions.emplace(pWidget, pAction);
        command.point(pWidget, pMain);
        told.append({ids(), strId});
    }

    void remove(QAction *pAction, const QString &strId)
    {
        if (!commands.count(strId))
            return;
        ModelCommand &command = commands[strId];
        command.follow(command.live());
        std::erase_if(command.actions, [=](auto &entry) { return !entry.second || entry.second == pAction; });
        command.point(command.pCurrent, pMain);
        if (command.actions.empty())
            commands.erase(strId);
        told.append(ids());
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
        m_program.window()->installEventFilter(this);
        m_nOwnActions = m_program.window()->actions().size();
        const auto *pManager = ActionManager::getInstance();
        connect(pManager, &ActionManager::commandListChanged, this, [this] {
            m_told.append(ids());
            if (!m_bListens)
                compare();
        });
        connect(pManager, &ActionManager::commandAdded, this, [this](auto strId) { m_told.append(strId); });
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

    void aNewProxyHasTheLookOnly()
    {
        ProxyAction proxy(nullptr);
        QAction action("Copy");
        action.setCheckable(true);
        action.setChecked(true);
        proxy.initialize(&action);
        QCOMPARE(proxy.text(), "Copy");
        QVERIFY(proxy.isCheckable() && !proxy.isEnabled() && !proxy.isChecked());
    }

    // Its own end, and that of its action, while it tells that it changed. Where it points from then on, a
    // change that it still tells of does not go.
    void aProxySurvivesItsListeners()
    {
        const QPointer<ProxyAction> pProxy = new ProxyAction(nullptr);
        auto pAction = std::make_unique<QAction>();
        QAction next, last;
        pAction->setCheckable(true);
        next.setCheckable(true);
        last.setCheckable(true);
        pProxy->setAction(pAction.get());
        auto connection = connect(pProxy, &QAction::changed, this, [&] { pAction.reset(); });
        pAction->setChecked(true);
        QVERIFY(!pAction);
        disconnect(connection);
        pProxy->setAction(&next);
        connection = connect(pProxy, &QAction::changed, &last, [&] { pProxy->setAction(&last); });
        next.setChecked(true);
        QVERIFY(next.isChecked() && !last.isChecked() && !pProxy->isChecked());
        disconnect(connection);
        connect(pProxy, &QAction::changed, this, [&] { delete pProxy; });
        pProxy->setAction(&next);
        QVERIFY(!pProxy);
    }

    void whatIsNoActionIsRefused()
    {
        QAction action;
        ActionManager::unregisterAction(&action, "Edit.Unknown");
        QCOMPARE(ActionManager::registerAction(nullptr, "Edit.Cut", m_pContent, false), nullptr);
        QCOMPARE(ActionManager::registerAction(&action, "Edit.Cut", nullptr, false), nullptr);
        QCOMPARE(ActionManager::registerAction(&action, QString(), m_pContent, false), nullptr);
        QVERIFY(m_told.isEmpty() && ActionManager::getActions().isEmpty());
    }

    void behavesLikeTheModel_data()
    {
        const auto row = columns<quint32, bool>("seed", "listens");
        for (const char *pName : {"walk 1", "walk 2", "walk 3", "walk 4",
                 "walk 5 with listeners that change the registry", "walk 6 with such"})
            row(pName, quint32(pName[5] - '0'), pName[6]);
    }
    void behavesLikeTheModel()
    {
        QFETCH(quint32, seed);
        QFETCH(bool, listens);
        m_random.seed(seed);
        m_bListens = listens;
        for (int i = 0; i < 2000; ++i) {
            const int nStep = below(listens ? 10 : 20);
            m_nReactions = listens ? 3 : 0;
            step(nStep);
            m_nReactions = 0;
            if (listens)
                settle();
            compare();
            const QStringList told = std::exchange(m_told, {}), toTell = std::exchange(m_model.told, {});
            if (!listens)
                QCOMPARE(told, toTell);
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
        m_model.told.clear();
        m_told.clear();
    }

private:
    int below(qsizetype nEnd) { return static_cast<int>(m_random.bounded(static_cast<int>(nEnd))); }
    static QString ids()
    {
        QStringList ids;
        for (const ContextAction *pCommand : ActionManager::getActions())
            ids.append(pCommand->getId());
        return ids.join(' ');
    }
    QString anyText() { return QString("&Do %1...").arg(below(9)); }
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
            &tst_Registry::unregisterAny, &tst_Registry::destroyAny, &tst_Registry::changeAny,
            &tst_Registry::changeKeys, &tst_Registry::save, &tst_Registry::read, &tst_Registry::reset,
            &tst_Registry::changeContext, &tst_Registry::trigger, &tst_Registry::trigger,
            &tst_Registry::changeAny, &tst_Registry::changeAny, &tst_Registry::changeByHand};
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
            std::erase(m_panels, pPanel);
            for (const auto &[strId, command] : std::map(m_model.commands)) {
                if (command.actions.count(pPanel))
                    unregister(command.actions.at(pPanel), strId);
            }
            ContextManager::unregisterContext(pPanel, "Panel");
            std::erase_if(m_model.contexts, [=](const Context &context) { return context.widget == pPanel; });
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
            pAction = new QAction(anyText());
            pAction->setEnabled(below(4));
            pAction->setCheckable(below(2));
            pAction->setSeparator(!below(9));
            pAction->setIconVisibleInMenu(below(2)); // which Qt does not always tell of
            pAction->setMenuRole(QAction::MenuRole(below(3)));
            connect(pAction, &QAction::triggered, this, [this, pAction] { fired(pAction); });
            m_actions.push_back(pAction);
        }
        const QString strId = anyId();
        QWidget *pContext = anyContext();
        m_model.add(pAction, strId, pContext);
        ContextAction *pCommand = ActionManager::registerAction(pAction, strId, pContext, false);
        if (pCommand && !pCommand->property("active").isValid())
            pCommand->setProperty("active", isActive(pCommand));
        if (pCommand)
            connect(pCommand, &ContextAction::activeStateChanged, this, &tst_Registry::noteActive,
                Qt::UniqueConnection);
        if (m_bListens) {
            QAction *pProxy = pCommand ? pCommand->getAction() : new QAction(this);
            connect(pProxy, &QAction::changed, this, &tst_Registry::react, Qt::UniqueConnection);
            connect(pProxy, &QObject::destroyed, this, &tst_Registry::react, Qt::UniqueConnection);
            return;
        }
        const QKeySequence builtIn(Qt::ALT | Qt::Key(Qt::Key_A + strId.back().digitValue()));
        pCommand->setDefaultKeySequence(builtIn);
        ModelCommand &command = m_model.commands[strId];
        command.builtIn = builtIn;
        if (command.keys.isEmpty())
            command.keys = builtIn;
        command.bHides = builtIn[0].key() % 2;
        auto *pProxy = static_cast<ProxyAction *>(pCommand->getAction());
        if (command.bHides)
            pProxy->setAttribute(ProxyAction::HideWhenNoAction);
        mirror(pProxy, ProxyAction::MirrorText, &command.bMirrorsText);
        mirror(pProxy, ProxyAction::MirrorIcon, &command.bMirrorsIcon);
        command.point(pContext, m_model.pMain);
    }

    static bool isActive(const ContextAction *pCommand)
    {
        const QAction *pProxy = pCommand->getAction();
        return pProxy->isEnabled() && pProxy->isVisible() && !pProxy->isSeparator();
    }

    void noteActive()
    {
        auto *pCommand = static_cast<ContextAction *>(sender());
        QVERIFY(pCommand->property("active").toBool() != isActive(pCommand));
        pCommand->setProperty("active", isActive(pCommand));
    }

    void mirror(ProxyAction *pProxy, ProxyAction::Attribute attribute, bool *pMirrors)
    {
        *pMirrors = below(2);
        *pMirrors ? pProxy->setAttribute(attribute) : pProxy->removeAttribute(attribute);
    }

    bool eventFilter(QObject *, QEvent *pEvent) override
    {
        if (pEvent->type() == QEvent::ActionRemoved)
            react();
        return false;
    }

    // A listener that changes the registry while a proxy tells that it changed, or goes.
    void react()
    {
        if (m_nReactions > 0 && m_nReactions-- > 0)
            step(QList<int> {4, 7, 9, 14}.at(below(4)));
    }

    // Whatever the listeners did, a command looks like its action, and the next change of context is by the
    // book.
    void settle()
    {
        for (const ContextAction *pCommand : ActionManager::getActions())
            looksLikeItsAction(static_cast<const ProxyAction *>(pCommand->getAction()));
        m_model.setContext(anyContext());
        ActionManager::setContext(m_model.pContext);
    }

    static void looksLikeItsAction(const ProxyAction *pProxy)
    {
        const QAction *pAction = pProxy->action();
        const auto state = [](const QAction *p) {
            return QList<bool> {p->isEnabled(), p->isVisible(), p->isCheckable(), p->isChecked()};
        };
        if (pAction)
            QCOMPARE(state(pProxy), state(pAction));
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

    void changeAny()
    {
        static const QVariant s_icons[] = {QIcon(QPixmap(1, 1)), QIcon(QPixmap(2, 2))};
        static constexpr const char *s_properties[] = {"enabled", "visible", "checkable", "checked", "icon",
            "text", "iconText", "toolTip", "statusTip", "whatsThis"};
        QAction *pAction = anyAction();
        const int n = below(std::size(s_properties)), nOn = below(2);
        if (pAction)
            pAction->setProperty(s_properties[n],
                n < 4        ? QVariant(nOn == 1)
                    : n == 4 ? s_icons[nOn]
                             : anyText());
    }

    // What a plug-in does to a command, or to its proxy behind its back.
    void changeByHand()
    {
        const QString strId = anyId();
        QAction *pAction = anyAction();
        const int nKind = below(4);
        const bool bOn = below(2);
        ContextAction *pCommand = ActionManager::getAction(strId);
        if (!pCommand || !pAction)
            return;
        ModelCommand &command = m_model.commands.at(strId);
        auto *pProxy = static_cast<ProxyAction *>(pCommand->getAction());
        if (nKind == 0) {
            pProxy->setToolTip("by hand");
        } else if (nKind == 1) {
            pProxy->setShortcutVisibleInToolTip(command.bTipShowsKeys = bOn);
        } else if (nKind == 2) {
            pCommand->setVisible(bOn);
            for (const auto &[pContext, pOne] : command.actions)
                QVERIFY(!pOne || pOne->isVisible() == bOn);
        } else {
            pProxy->setAction(pAction);
            command.follow(pAction);
            m_model.setContext(nullptr);
            ActionManager::setContext(nullptr);
        }
    }
    void changeContext()
    {
        QWidget *pContext = below(4) ? anyContext() : nullptr;
        m_model.setContext(pContext);
        ActionManager::setContext(pContext);
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
            if (command.look.bSeparator)
                continue;
            m_model.store.erase(strId);
            if (!command.keys.isEmpty())
                m_model.store[strId] = command.keys.toString(QKeySequence::PortableText);
        }
        ActionManager::saveSettings();
    }

    void read()
    {
        for (auto &[strId, command] : m_model.commands) {
            if (!command.look.bSeparator)
                command.keys = QKeySequence(m_model.store[strId], QKeySequence::NativeText);
        }
        ActionManager::readFromSettings();
    }

    void reset()
    {
        for (auto &[strId, command] : m_model.commands) {
            if (!command.look.bSeparator)
                command.keys = command.builtIn;
        }
        ActionManager::resetToDefault();
    }

    // Some actions unregister themselves when they fire.
    void fired(QAction *pAction)
    {
        m_fired.push_back(pAction);
        QCOMPARE(ExtensionSystem::PluginManager::setActivity({}), m_strTriggered);
        if (m_bUnregisterOnFire)
            unregister(pAction, m_strTriggered);
    }

    void trigger()
    {
        const QString strId = anyId();
        m_fired.clear();
        m_strTriggered = strId;
        m_bUnregisterOnFire = !below(4);
        const bool bToggles = !below(3);
        std::vector<QAction *> expected;
        if (m_model.commands.count(strId)) {
            Look &look = m_model.commands.at(strId).look;
            QAction *pLive = m_model.commands.at(strId).live();
            const bool bReacts = bToggles || (pLive ? pLive->isEnabled() : look.bEnabled);
            const bool bChecked = pLive && pLive->isChecked() != (bReacts && pLive->isCheckable());
            if (pLive && bReacts && !bToggles)
                expected.push_back(pLive);
            else if (!pLive && bReacts && look.bCheckable) // of an action that died
                look.bChecked = !look.bChecked;
            QAction *pProxy = ActionManager::getAction(strId)->getAction();
            bToggles ? pProxy->toggle() : pProxy->trigger();
            QVERIFY(!pLive || pLive->isChecked() == bChecked);
        }
        QCOMPARE(m_fired, expected);
    }

    void compare()
    {
        QCOMPARE(ids(), m_model.ids());
        for (auto &[strId, command] : m_model.commands) {
            command.follow(command.live());
            const ContextAction *pCommand = ActionManager::getAction(strId);
            const auto *pProxy = static_cast<const ProxyAction *>(pCommand->getAction());
            QCOMPARE(pProxy->action(), command.live());
            looksLikeItsAction(pProxy);
            QCOMPARE(pProxy->isEnabled(), command.look.bEnabled);
            if (!m_bListens)
                QCOMPARE(lookOf(pProxy), command.shown());
            if (pCommand->property("active").isValid())
                QCOMPARE(pCommand->property("active").toBool(), isActive(pCommand));
            QCOMPARE(pProxy->objectName(), strId);
            QCOMPARE(pProxy->shortcutContext(), Qt::ApplicationShortcut);
            QVERIFY(m_program.window()->actions().contains(pCommand->getAction()));
            QCOMPARE(pCommand->getKeySequence(), command.keys);
        }
        QCOMPARE(m_program.window()->actions().size(), m_nOwnActions + qsizetype(m_model.commands.size()));
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
    QStringList m_told;
    qsizetype m_nOwnActions = 0;
    bool m_bUnregisterOnFire = false;
    bool m_bListens = false;
    int m_nReactions = 0;
};

QTEST_MAIN(tst_Registry)
#include "tst_registry.moc"
