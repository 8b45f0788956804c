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

/// A menu or a menu bar that is filled with commands and sub-menus. ActionManager makes it and knows it by
/// its id until it is deleted. Commands and sub-containers are not owned and may go first; nor is the widget.
/// A null item is ignored, a null "before" appends. GUI thread only.
class CORE_EXPORT ActionContainer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ActionContainer)

public:
    /// Kept for the page that asks for it; no behaviour reads it.
    enum OnAllDisabledBehavior { LeaveAsIs, GreyOut, HideEntry };

    ~ActionContainer() override;

    // Plug-ins build on the order of the virtual functions.
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

    /// Makes a separator, a command of the global context with an id of its own. `ppSeparator` gets the
    /// action behind it, a child of this container; with that, ActionManager::unregisterAction() removes it.
    /// Null without a main window.
    virtual ContextAction *insertSeparator(
        ActionContainer *pBefore = nullptr, QAction **ppSeparator = nullptr);
    virtual ContextAction *insertSeparator(ContextAction *pBefore, QAction **ppSeparator = nullptr);

protected:
    virtual void removeMenu(QMenu *pMenu);
    virtual void removeAction(QAction *pAction);

    /// Shows the entry of this menu exactly if the menu has something enabled and visible to offer, and says
    /// whether it has. Nothing calls it by itself. A menu bar always has.
    virtual bool updateInternal() = 0;

public:
    /// Takes commands and sub-menus out of the widget and empties the sub-containers; separators stay.
    void clear();

    void setOnAllDisabledBehavior(OnAllDisabledBehavior behavior) { m_onAllDisabledBehavior = behavior; }
    [[nodiscard]] OnAllDisabledBehavior onAllDisabledBehavior() const { return m_onAllDisabledBehavior; }

protected:
    explicit ActionContainer(const QString &strId);

private slots:
    // Empty on purpose: a container never changes by itself, a menu keeps the look its maker gave it.
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
