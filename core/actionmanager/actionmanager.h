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

/// All commands and menus of the program, by id, and the user's shortcuts. It owns commands and containers,
/// but not the actions registered for commands. The first main window makes it, and it lives until the
/// process ends; while there is none, there are no commands and changes are ignored. GUI thread only.
///
///     auto *pTrim = new QAction(tr("&Trim"), this);
///     connect(pTrim, &QAction::triggered, this, &TrimPlugin::trim);
///     auto *pCommand = ActionManager::registerAction(pTrim, "Edit.Trim", ICore::getMainWindow());
///     ActionManager::getActionContainer("MenuBar.Edit")->insertAction(pCommand);
class CORE_EXPORT ActionManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionManager)

public:
    ActionManager();
    ~ActionManager() override;

    [[nodiscard]] static ActionManager *getInstance();

    /// Stores shortcuts in the user's settings from now on, and moves all commands to the main window, each
    /// of which calls it. Deletes commands without a living action, and the menus of a destroyed window.
    static void initialize();

    /// The store of the shortcuts, in its group "Shortcuts"; not owned. With null nothing is read or stored.
    static void setSettings(QSettings *pSettings);
    [[nodiscard]] static QSettings *getSettings();

    /// Makes `pAction` what the command `strId` triggers in `pContext`, and switches the command to that
    /// context until the next setContext(). The first action for an id and a context stays, even destroyed,
    /// until unregisterAction(). A new command reads its shortcut, and its proxy is added to the main window.
    /// Emits commandListChanged() and commandAdded(). Null, without any effect, for a null action or context,
    /// an empty id and a proxy that leads back to its own command; null also if a listener removed it.
    static ContextAction *registerAction(
        QAction *pAction, const QString &strId, QWidget *pContext, bool bScriptable = false);

    /// Takes the action away from all contexts of the command, and with its last living action the command is
    /// deleted. Whenever the command exists commandListChanged() follows; a null action is ignored. The third
    /// argument is not used.
    static void unregisterAction(QAction *pAction, const QString &strId, const QString &strContext = {});

    /// Null for an unknown id.
    [[nodiscard]] static ContextAction *getAction(const QString &strId);

    /// In ascending order of the ids.
    [[nodiscard]] static QList<ContextAction *> getActions();

    /// Returns the container that has this id already, if any, with its title unchanged; null for an empty
    /// id. A new menu or menu bar has no parent, and the id as its object name.
    static ActionContainer *createMenuContainer(const QString &strId, const QString &strTitle);
    static ActionContainer *createMenuBarContainer(const QString &strId);

    /// Null for an unknown id.
    [[nodiscard]] static ActionContainer *getActionContainer(const QString &strId);

    /// The way through the menus as lists of shortcuts show it, such as "File > New"; empty for null.
    [[nodiscard]] static QString getActionFullText(const ContextAction *pCommand);

    /// Switches every command to its action for this widget, which is that of the active context. A command
    /// without one there, and every command for null, is switched to its action for the main window, if any.
    static void setContext(QWidget *pContext);

    /// Gives every command its stored shortcut; a command without a stored one loses its shortcut.
    static void readFromSettings();

    /// Stores the shortcut of every command, or removes the entry if it has none. Other entries stay.
    static void saveSettings();

    /// Gives every command its default shortcut, without storing it.
    static void resetToDefault();

signals:
    void commandAdded(const QString &strId);
    void commandListChanged();

private:
    std::unique_ptr<ActionManagerPrivate> d;
};
