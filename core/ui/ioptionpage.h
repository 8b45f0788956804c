// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QWidget>

/// Base of a page of the preferences dialog, which owns it and lists it by its window title. A page fills its
/// controls in initValues() when it is first shown, and stores or restores them when the dialog calls
/// saveChanges() or discardChanges(); each override calls the base last, which keeps the marks. After an edit
/// by the user the page calls setChanged() and emits dataChanged(). GUI thread only.
class CORE_EXPORT IOptionPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IOptionPage)

public:
    explicit IOptionPage(QWidget *pParent = nullptr);
    ~IOptionPage() override;

    /// Whether the page holds edits that are not saved.
    [[nodiscard]] virtual bool isChanged() { return m_bChanged; }

    /// Marks the page as changed whatever the argument, because existing pages pass either value. Only
    /// saveChanges() and discardChanges() clear the mark.
    virtual void setChanged(bool) { m_bChanged = true; }

    virtual void initValues() { m_bConfigInitialized = true; }
    virtual void saveChanges() { m_bChanged = false; }
    virtual void discardChanges() { m_bChanged = false; }

    /// Makes the page fill its controls again when it is next shown.
    virtual void setNeedInitConfig2UI() { m_bConfigInitialized = false; }

signals:
    void dataChanged();

protected:
    void showEvent(QShowEvent *pEvent) override;

    bool m_bChanged = false;
    bool m_bConfigInitialized = false;
};

/// Makes a plug-in's page of the preferences dialog. The plug-in owns the factory and keeps it in the
/// framework's pool; the dialog asks the factories there, in pool order, when it is first opened.
///
///     IOptionPage *MyFactory::createPage() { return new MyPage; }
///     PluginManager::addObject(&m_factory); // in initialize(); removeObject() in aboutToShutdown()
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
