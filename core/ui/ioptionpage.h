// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QWidget>

/// Base of a page of the preferences dialog, its parent. Its window title names it in the dialog. A page
/// fills its controls by initValues() when it is first shown, and writes or restores them when the dialog
/// says so; each override calls the base last. After a change by the user it calls setChanged() and emits
/// dataChanged().
class CORE_EXPORT IOptionPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IOptionPage)

public:
    explicit IOptionPage(QWidget *pParent = nullptr);
    ~IOptionPage() override;

    /// Whether the page holds edits that are not saved.
    [[nodiscard]] virtual bool isChanged() { return m_bChanged; }

    /// Marks the page as changed, whatever the argument: pages clear the mark only through saveChanges() and
    /// discardChanges(), and existing ones pass either value.
    virtual void setChanged(bool) { m_bChanged = true; }

    virtual void initValues() { m_bConfigInitialized = true; }
    virtual void saveChanges() { m_bChanged = false; }
    virtual void discardChanges() { m_bChanged = false; }

    /// The next showing fills the controls again.
    virtual void setNeedInitConfig2UI() { m_bConfigInitialized = false; }

signals:
    void dataChanged();

protected:
    void showEvent(QShowEvent *pEvent) override;

    bool m_bChanged = false;
    bool m_bConfigInitialized = false;
};

/// Makes a plug-in's page of the preferences dialog. Plug-ins put one into the framework's pool: the dialog
/// asks each of them when it is first opened, in pool order.
class CORE_EXPORT IOptionPageFactory : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IOptionPageFactory)

public:
    explicit IOptionPageFactory(QObject *pParent = nullptr);
    ~IOptionPageFactory() override;

    /// The caller owns the page; null for none.
    [[nodiscard]] virtual IOptionPage *createPage() = 0;
};
