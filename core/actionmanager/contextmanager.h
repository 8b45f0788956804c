// SPDX-License-Identifier: MIT
#pragma once

#include <actionmanager/context.h>
#include <core_global.h>

#include <QHash>
#include <QList>
#include <QObject>

/// The registered contexts, in order of registration. The first main window makes it, and it lives until the
/// process ends; while there is none, there are no contexts and changes are ignored. What lies in no
/// registered context belongs to the global one, which is the main window's and is not listed. Widgets are
/// not watched: unregister a context before its widget is destroyed. GUI thread only.
class CORE_EXPORT ContextManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContextManager)

public:
    ContextManager();
    ~ContextManager() override;

    [[nodiscard]] static ContextManager *getInstance();

    /// Returns the record in the list. If the widget is registered with this id already, that record stays,
    /// with its name. A null widget or an empty id is not registered, and the result is an empty record.
    static Context registerContext(Context &context);
    static Context registerContext(QWidget *pWidget, const QString &strId, const QString &strName);
    static void unregisterContext(QWidget *pWidget, const QString &strId);

    [[nodiscard]] static QList<Context> getContexts();

    /// The main window with the id and the name "Global"; the widget is null without a main window.
    [[nodiscard]] static Context getGlobalContext();

    /// Compares only the id.
    [[nodiscard]] static bool isGlobalContext(const Context &context);

    /// The context of the nearest widget that has one, from `pWidget` up through its parents; of several on
    /// one widget the first registered. The global context if there is none, and for null.
    [[nodiscard]] static Context getActiveContext(QWidget *pWidget);

    /// Of the first context registered on exactly this widget; empty without one.
    [[nodiscard]] static QString getContextId(QWidget *pWidget);
    [[nodiscard]] static QString getContextName(QWidget *pWidget);

    /// Of the first context registered with this id; empty or null without one.
    [[nodiscard]] static QString getContextName(const QString &strId);
    [[nodiscard]] static QWidget *getContextWidget(const QString &strId);

private:
    [[nodiscard]] static Context firstOf(QWidget *pWidget);
    [[nodiscard]] static Context firstOf(const QString &strId);
    [[nodiscard]] qsizetype indexOf(QWidget *pWidget, const QString &strId) const;

    QList<Context> m_contexts;
    /// The index in m_contexts of the first record of each widget.
    QHash<QWidget *, qsizetype> m_firstIndex;
};
