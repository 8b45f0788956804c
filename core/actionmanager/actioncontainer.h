// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>
#include <QPointer>

class ContextAction;
class QAction;
class QMenu;
class QMenuBar;

/// A menu or a menu bar that is filled with commands and sub-menus. ActionManager makes it, knows it by its
/// id, and at last deletes it with its menu or menu bar. Commands and sub-containers are not owned and may go
/// first. An item that is there already moves, null is ignored, a null "before" appends. GUI thread only.
class CORE_EXPORT ActionContainer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionContainer)

public:
    /// Stored and returned, but without effect: entries stay as they are whatever is set.
    enum OnAllDisabledBehavior { LeaveAsIs, GreyOut, HideEntry };

    ~ActionContainer() override;

    // Keep the order of the virtual functions: plug-ins that are compiled already call them by their place.
    virtual void setMenu(QMenu *pMenu);
    virtual void setMenuBar(QMenuBar *pMenuBar);
    /// Null for a menu bar.
    [[nodiscard]] virtual QMenu *getMenu() const;
    /// Null for a menu.
    [[nodiscard]] virtual QMenuBar *getMenuBar() const;

protected:
    virtual void insertAction(QAction *pBefore, QAction *pAction);

public:
    virtual void insertAction(ContextAction *pAction, ContextAction *pBefore = nullptr);

protected:
    virtual void insertMenu(QAction *pBefore, QMenu *pMenu);

public:
    virtual void insertMenu(ActionContainer *pMenu, ActionContainer *pBefore = nullptr);
    virtual void insertMenu(ActionContainer *pMenu, ContextAction *pBefore);

    /// Makes a separator: a command for the main window with an id of its own. If `ppSeparator` is not null,
    /// it gets the action behind it, which this container owns; ActionManager::unregisterAction() with that
    /// action removes the separator. Null without a main window.
    virtual ContextAction *insertSeparator(
        ActionContainer *pBefore = nullptr, QAction **ppSeparator = nullptr);
    virtual ContextAction *insertSeparator(ContextAction *pBefore, QAction **ppSeparator = nullptr);

protected:
    virtual void removeMenu(QMenu *pMenu);
    virtual void removeAction(QAction *pAction);

    /// Shows the entry of this menu if the menu has an enabled and visible action to offer, else hides it,
    /// and returns whether it has one. The program never calls it by itself. A menu bar always returns true.
    virtual bool updateInternal() = 0;

public:
    /// Takes commands and sub-menus out of the widget, and empties sub-containers as well; separators stay.
    void clear();

    void setOnAllDisabledBehavior(OnAllDisabledBehavior behavior) { m_onAllDisabledBehavior = behavior; }
    [[nodiscard]] OnAllDisabledBehavior onAllDisabledBehavior() const { return m_onAllDisabledBehavior; }

protected:
    explicit ActionContainer(const QString &strId);

private slots:
    // Empty on purpose: a container never changes by itself; its menu keeps the look that its maker gave it.
    void scheduleUpdate() { }
    void itemDestroyed() { }

private:
    void update() { }
    void insertMenuBefore(ActionContainer *pMenu, QAction *pBefore);
    ContextAction *insertSeparatorBefore(QAction *pBefore, QAction **ppSeparator);

    QList<QPointer<QObject>> m_items;
    OnAllDisabledBehavior m_onAllDisabledBehavior = LeaveAsIs;
};

class CORE_EXPORT MenuActionContainer : public ActionContainer
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MenuActionContainer)

public:
    explicit MenuActionContainer(const QString &strId);

    using ActionContainer::insertAction;
    using ActionContainer::insertMenu;

    void setMenu(QMenu *pMenu) override;
    [[nodiscard]] QMenu *getMenu() const override;

protected:
    bool updateInternal() override;
    void insertAction(QAction *pBefore, QAction *pAction) override;
    void insertMenu(QAction *pBefore, QMenu *pMenu) override;
    void removeMenu(QMenu *pMenu) override;
    void removeAction(QAction *pAction) override;

private:
    QPointer<QMenu> m_pMenu;
};

class CORE_EXPORT MenuBarActionContainer : public ActionContainer
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MenuBarActionContainer)

public:
    explicit MenuBarActionContainer(const QString &strId);

    using ActionContainer::insertAction;
    using ActionContainer::insertMenu;

    void setMenuBar(QMenuBar *pMenuBar) override;
    [[nodiscard]] QMenuBar *getMenuBar() const override;

protected:
    bool updateInternal() override;
    void insertAction(QAction *pBefore, QAction *pAction) override;
    void insertMenu(QAction *pBefore, QMenu *pMenu) override;
    void removeMenu(QMenu *pMenu) override;
    void removeAction(QAction *pAction) override;

private:
    QPointer<QMenuBar> m_pMenuBar;
};
