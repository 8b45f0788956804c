// SPDX-License-Identifier: MIT
// The time to change the focus, to look up the context of a widget and to register commands.
#include <bench/bounds.h>

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <actionmanager/contextmanager.h>
#include <actionmanager/proxyaction.h>
#include <actionmanager/shortcuts.h>
#include <extensionsystem/pluginmanager.h>
#include <mainwindow.h>

#include <QAction>
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <memory>

namespace {

MainWindow *s_pWindow = nullptr;

QString idOf(int i)
{
    return QStringLiteral("Bench.%1").arg(i, 6, 10, QLatin1Char('0'));
}

// Each shortcut has two strokes, because there are not enough keys for shortcuts of one.
QKeySequence keysOf(int i)
{
    return QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_A + i % 26), Qt::ALT | Qt::Key(Qt::Key_0 + i / 26 % 75));
}

/// Commands of the whole window, the first `nShortcuts` of them with shortcuts. Spread among them,
/// `nSwitching` commands have an action for a panel. Half of these have no other action, so they are disabled
/// while the focus is outside the panel.
class Commands
{
public:
    Commands(int nCount, int nShortcuts, int nSwitching)
    {
        const int nStep = nCount / nSwitching;
        for (int i = 0; i < nCount; ++i) {
            const bool bSwitching = i % nStep == 0 && i / nStep < nSwitching;
            if (!bSwitching || i / nStep % 2)
                add(i, s_pWindow);
            if (bSwitching)
                add(i, &m_panel);
            if (i < nShortcuts)
                ActionManager::getAction(idOf(i))->setKeySequence(keysOf(i));
        }
        ContextManager::registerContext(&m_panel, QStringLiteral("Panel"), QString());
        changeFocus(m_pChild);
        resolve(m_panelTargets);
        changeFocus(s_pWindow);
        resolve(m_windowTargets);
    }

    ~Commands()
    {
        ContextManager::unregisterContext(&m_panel, QStringLiteral("Panel"));
        for (const auto &[nId, pAction] : m_actions)
            ActionManager::unregisterAction(pAction.get(), idOf(nId));
    }

    static void changeFocus(QWidget *pWidget)
    {
        ActionManager::setContext(ContextManager::getActiveContext(pWidget).widget);
    }
    void intoPanel() const { changeFocus(m_pChild); }
    static void outOfPanel() { changeFocus(s_pWindow); }

    void plainIntoPanel() const { pointAll(m_panelTargets); }
    void plainOutOfPanel() const { pointAll(m_windowTargets); }

private:
    using Targets = std::vector<std::pair<ProxyAction *, QAction *>>;

    void add(int i, QWidget *pContext)
    {
        auto &entry = m_actions.emplace_back(i, std::make_unique<QAction>(QStringLiteral("Command")));
        ActionManager::registerAction(entry.second.get(), idOf(i), pContext, false);
    }

    static void resolve(Targets &targets)
    {
        const auto commands = ActionManager::getActions();
        for (const ContextAction *pCommand : commands) {
            auto *pProxy = static_cast<ProxyAction *>(pCommand->getAction());
            targets.emplace_back(pProxy, pProxy->action());
        }
    }

    static void pointAll(const Targets &targets)
    {
        for (const auto &[pProxy, pAction] : targets)
            pProxy->setAction(pAction);
    }

    QWidget m_panel;
    QWidget *m_pChild = new QWidget(&m_panel);
    std::vector<std::pair<int, std::unique_ptr<QAction>>> m_actions;
    Targets m_panelTargets;
    Targets m_windowTargets;
};

// Each iteration moves the focus once, into the panel and out of it by turns.
void Focus(benchmark::State &state, int nCount, int nShortcuts, bool bRegistry)
{
    const Commands commands(nCount, nShortcuts, 100);
    bool bInto = false;
    for ([[maybe_unused]] auto _ : state) {
        bInto = !bInto;
        if (bRegistry)
            bInto ? commands.intoPanel() : Commands::outOfPanel();
        else
            bInto ? commands.plainIntoPanel() : commands.plainOutOfPanel();
    }
}

void ActiveContext(benchmark::State &state)
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    for (int i = 0; i < 500; ++i) {
        widgets.push_back(std::make_unique<QWidget>());
        ContextManager::registerContext(widgets.back().get(), QStringLiteral("C%1").arg(i), QString());
    }
    QWidget root;
    QWidget *pLeaf = &root;
    for (int i = 1; i < 30; ++i)
        pLeaf = new QWidget(pLeaf);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ContextManager::getActiveContext(pLeaf));
    for (int i = 0; i < 500; ++i)
        ContextManager::unregisterContext(widgets[i].get(), QStringLiteral("C%1").arg(i));
}

constexpr int s_nRegistered = 5000;
constexpr int s_nStored = 500;

/// Keeps shortcuts in the store as long as it lives.
struct Stored
{
    Stored()
    {
        for (int i = 0; i < s_nStored; ++i) {
            const QString strText = keysOf(i).toString(QKeySequence::PortableText);
            ActionManager::getSettings()->setValue(Shortcuts::keyOf(idOf(i * 10)), strText);
        }
    }
    ~Stored() { ActionManager::getSettings()->clear(); }
};

void Register(benchmark::State &state)
{
    const Stored stored;
    for ([[maybe_unused]] auto _ : state) {
        std::vector<QAction *> actions;
        for (int i = 0; i < s_nRegistered; ++i) {
            actions.push_back(new QAction(QStringLiteral("Command")));
            ActionManager::registerAction(actions.back(), idOf(i), s_pWindow, false);
        }
        state.PauseTiming();
        for (int i = s_nRegistered - 1; i >= 0; --i)
            ActionManager::unregisterAction(actions[i], idOf(i));
        qDeleteAll(actions);
        state.ResumeTiming();
    }
}

// What a program without a registry would do: add actions, with their stored shortcuts, to the window.
void RegisterPlain(benchmark::State &state)
{
    const Stored stored;
    const QSettings &settings = *ActionManager::getSettings();
    for ([[maybe_unused]] auto _ : state) {
        std::vector<QAction *> actions;
        for (int i = 0; i < s_nRegistered; ++i) {
            auto *pAction = new QAction(QStringLiteral("Command"));
            actions.push_back(pAction);
            pAction->setObjectName(idOf(i));
            pAction->setShortcut(QKeySequence(settings.value(Shortcuts::keyOf(idOf(i))).toString()));
            s_pWindow->addAction(pAction);
            pAction->setShortcutContext(Qt::ApplicationShortcut);
        }
        state.PauseTiming();
        for (int i = s_nRegistered - 1; i >= 0; --i)
            s_pWindow->removeAction(actions[i]);
        qDeleteAll(actions);
        state.ResumeTiming();
    }
}

const std::vector<Bound> s_bounds = {
    {"Focus/2000", 1e6, {}},
    {"Focus/500", 1.5, "FocusPlain/500"},
    {"Focus/5000", 1.5, "FocusPlain/5000"},
    {"Focus/50000", 1.5, "FocusPlain/50000"},
    {"ActiveContext", 2e4, {}},
    {"Register", 1e8, {}},
    {"Register", 2, "RegisterPlain"},
};

void setUp()
{
    using benchmark::RegisterBenchmark;
    RegisterBenchmark("Focus/2000", Focus, 2000, 300, true)->Unit(benchmark::kMicrosecond);
    for (const int nCount : {500, 5000, 50000}) {
        const std::string count = std::to_string(nCount);
        for (const bool bRegistry : {true, false})
            RegisterBenchmark(
                ((bRegistry ? "Focus/" : "FocusPlain/") + count).c_str(), Focus, nCount, 500, bRegistry)
                ->Unit(benchmark::kMicrosecond);
    }
    RegisterBenchmark("ActiveContext", ActiveContext)->Unit(benchmark::kMicrosecond);
    RegisterBenchmark("Register", Register)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("RegisterPlain", RegisterPlain)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QTemporaryDir dir;
    ExtensionSystem::PluginManager plugins;
    plugins.setSettings(
        std::make_unique<QSettings>(dir.filePath(QStringLiteral("user.ini")), QSettings::IniFormat));
    const auto pWindow = std::make_unique<MainWindow>(nullptr);
    s_pWindow = pWindow.get();
    s_pWindow->show();
    setUp();
    return runBenchmarks(argc, argv, s_bounds);
}
