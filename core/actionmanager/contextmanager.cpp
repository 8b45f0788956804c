// SPDX-License-Identifier: MIT
#include "actionmanager/contextmanager.h"

#include "icore.h"

#include <QWidget>

#include <algorithm>

namespace {

ContextManager *s_pInstance = nullptr;
const QString s_globalContext = QStringLiteral("Global");

} // namespace

ContextManager::ContextManager()
{
    if (!s_pInstance)
        s_pInstance = this;
}

ContextManager::~ContextManager()
{
    if (s_pInstance == this)
        s_pInstance = nullptr;
}

ContextManager *ContextManager::getInstance()
{
    return s_pInstance;
}

Context ContextManager::registerContext(Context &context)
{
    if (!s_pInstance || !context.widget || context.id.isEmpty())
        return {};
    QList<Context> &contexts = s_pInstance->m_contexts;
    const qsizetype nIndex = s_pInstance->indexOf(context.widget, context.id);
    if (nIndex >= 0)
        return contexts.at(nIndex);
    if (!s_pInstance->m_firstIndex.contains(context.widget))
        s_pInstance->m_firstIndex.insert(context.widget, contexts.size());
    contexts.append(context);
    return context;
}

Context ContextManager::registerContext(QWidget *pWidget, const QString &strId, const QString &strName)
{
    Context context {pWidget, strId, strName};
    return registerContext(context);
}

void ContextManager::unregisterContext(QWidget *pWidget, const QString &strId)
{
    const qsizetype nIndex = s_pInstance ? s_pInstance->indexOf(pWidget, strId) : -1;
    if (nIndex < 0)
        return;
    const QList<Context> &contexts = s_pInstance->m_contexts;
    s_pInstance->m_contexts.removeAt(nIndex);
    s_pInstance->m_firstIndex.clear();
    for (qsizetype i = contexts.size() - 1; i >= 0; --i)
        s_pInstance->m_firstIndex.insert(contexts.at(i).widget, i);
}

QList<Context> ContextManager::getContexts()
{
    return s_pInstance ? s_pInstance->m_contexts : QList<Context>();
}

Context ContextManager::getGlobalContext()
{
    return {ICore::getMainWidget(), s_globalContext, s_globalContext};
}

bool ContextManager::isGlobalContext(const Context &context)
{
    return context.id == s_globalContext;
}

Context ContextManager::getActiveContext(QWidget *pWidget)
{
    for (QWidget *p = pWidget; p; p = p->parentWidget()) {
        if (const Context context = firstOf(p); context.widget)
            return context;
    }
    return getGlobalContext();
}

QString ContextManager::getContextId(QWidget *pWidget)
{
    return firstOf(pWidget).id;
}

QString ContextManager::getContextName(QWidget *pWidget)
{
    return firstOf(pWidget).name;
}

QString ContextManager::getContextName(const QString &strId)
{
    return firstOf(strId).name;
}

QWidget *ContextManager::getContextWidget(const QString &strId)
{
    return firstOf(strId).widget;
}

Context ContextManager::firstOf(QWidget *pWidget)
{
    const qsizetype nIndex = s_pInstance ? s_pInstance->m_firstIndex.value(pWidget, -1) : -1;
    return nIndex < 0 ? Context() : s_pInstance->m_contexts.at(nIndex);
}

Context ContextManager::firstOf(const QString &strId)
{
    const auto contexts = getContexts();
    const auto it = std::find_if(
        contexts.begin(), contexts.end(), [&](const Context &context) { return context.id == strId; });
    return it == contexts.end() ? Context() : *it;
}

qsizetype ContextManager::indexOf(QWidget *pWidget, const QString &strId) const
{
    const auto it = std::find_if(m_contexts.begin(), m_contexts.end(),
        [&](const Context &context) { return context.widget == pWidget && context.id == strId; });
    return it == m_contexts.end() ? -1 : it - m_contexts.begin();
}
