// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>

#include <memory>

class ActionContainer;
class ActionManagerPrivate;
class ContextAction;
class QAction;
class QSettings;
class QWidget;

/// The commands and the menus of the program, by id, and the user's shortcuts. Commands and containers belong
/// to it; the actions registered for commands do not. The first main window makes it, and it lives until the
/// process ends; without it there are no commands and changes are ignored. GUI thread only.
class CORE_EXPORT ActionManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionManager)

public:
    ActionManager();
    ~ActionManager() override;

    [[nodiscard]] static ActionManager *getInstance();

    /// Takes the user's store for the shortcuts. Every main window calls it: what a former one left behind
    /// goes (its menus, and commands without a living action), all other commands move to the new one.
    static void initialize();

    /// The store of the shortcuts, group "Shortcuts"; not owned.
    static void setSettings(QSettings *pSettings);
    [[nodiscard]] static QSettings *getSettings();

    /// Makes the action the one that the command `strId` triggers in `pContext`, and switches the command
    /// there until the next setContext(). The first action for an id and a context stays. A command that is
    /// new reads its shortcut and gives its proxy to the main window. Then follow commandListChanged() and
    /// commandAdded(). Null, and nothing happens, for a null action or context, an empty id, and a proxy that
    /// would lead back to its own command. Null as well if a listener took the command away.
    static ContextAction *registerAction(
        QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable = false);

    /// Takes the action away from all contexts of the command, and with the last action the command goes. For
    /// a command that exists commandListChanged() follows; a null action is ignored. The third argument is
    /// not used.
    static void unregisterAction(QAction *pAction, const QString &strId, const QString &strContext = {});

    /// Null for an unknown id.
    [[nodiscard]] static ContextAction *getAction(const QString &strId);

    /// In ascending order of the ids.
    [[nodiscard]] static QList<ContextAction *> getActions();

    /// A menu that has this id already is returned as it is, with its title. The menu, or the menu bar, has
    /// no parent and the id as object name.
    static ActionContainer *createMenuContainer(const QString &strId, const QString &strTitle);
    static ActionContainer *createMenuBarContainer(const QString &strId);

    /// Null for an unknown id.
    [[nodiscard]] static ActionContainer *getActionContainer(const QString &strId);

    /// The way through the menus as lists of shortcuts show it, such as "File > New".
    [[nodiscard]] static QString getActionFullText(const ContextAction *pCommand);

    /// Switches every command to its action of this widget, which is that of the active context. One without
    /// such an action, and for null every command, goes to that of the main window.
    static void setContext(QWidget *pContext);

    /// Gives every command the stored shortcut; one without a stored shortcut loses its own.
    static void readFromSettings();

    /// Stores the shortcut of every command, and removes the key of one without. Keys of unknown ids stay.
    static void saveSettings();

    /// Gives every command its default; nothing is stored.
    static void resetToDefault();

signals:
    void commandAdded(const QString &strId);
    void commandListChanged();

private:
    std::unique_ptr<ActionManagerPrivate> d;
};
