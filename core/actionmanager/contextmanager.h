// SPDX-License-Identifier: MIT
#pragma once

#include <actionmanager/context.h>
#include <core_global.h>

#include <QHash>
#include <QList>
#include <QObject>

/// The registered contexts, in order of registration. The first main window makes it, and it lives until the
/// process ends; without it there are no contexts and changes are ignored. What lies in no registered context
/// belongs to the global one, which is the main window's and is not listed. Widgets are not watched:
/// unregister a context before its widget dies. GUI thread only.
class CORE_EXPORT ContextManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContextManager)

public:
    ContextManager();
    ~ContextManager() override;

    [[nodiscard]] static ContextManager *getInstance();

    /// Gives the listed record. One with this widget and id that is there already stays as it is, with its
    /// name; a null widget or an empty id is not listed and gives an empty record.
    static Context registerContext(Context &context);
    static Context registerContext(QWidget *pWidget, const QString &strId, const QString &strName);
    static void unregisterContext(QWidget *pWidget, const QString &strId);

    [[nodiscard]] static QList<Context> getContexts();

    /// The main window with the id and the name "Global"; its widget is null without a main window.
    [[nodiscard]] static Context getGlobalContext();

    /// Only the id counts.
    [[nodiscard]] static bool isGlobalContext(const Context &context);

    /// The context of the innermost widget that has one, from `pWidget` up; of several on one widget the one
    /// registered first. Otherwise the global one, also for null.
    [[nodiscard]] static Context getActiveContext(QWidget *pWidget);

    /// Of the first context on exactly this widget; empty without one.
    [[nodiscard]] static QString getContextId(QWidget *pWidget);
    [[nodiscard]] static QString getContextName(QWidget *pWidget);

    /// Of the first context with this id; empty or null without one.
    [[nodiscard]] static QString getContextName(const QString &strId);
    [[nodiscard]] static QWidget *getContextWidget(const QString &strId);

private:
    [[nodiscard]] static Context firstOf(QWidget *pWidget);
    [[nodiscard]] static Context firstOf(const QString &strId);
    [[nodiscard]] qsizetype indexOf(QWidget *pWidget, const QString &strId) const;

    QList<Context> m_contexts;
    /// Where the first record of each widget lies in the list.
    QHash<QWidget *, qsizetype> m_firstIndex;
};
