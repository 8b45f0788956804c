// SPDX-License-Identifier: MIT
#include "actionmanager/contextmanager.h"

#include "icore.h"
#include "mainwindow.h"

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
    return {ICore::getMainWindow(), s_globalContext, s_globalContext};
}

bool ContextManager::isGlobalContext(const Context &context)
{
    return context.id == s_globalContext;
}

Context ContextManager::getActiveContext(QWidget *pWidget)
{
    for (QWidget *p = s_pInstance ? pWidget : nullptr; p; p = p->parentWidget()) {
        if (const Context *pContext = s_pInstance->firstOf(p))
            return *pContext;
    }
    return getGlobalContext();
}

QString ContextManager::getContextId(QWidget *pWidget)
{
    const Context *pContext = s_pInstance ? s_pInstance->firstOf(pWidget) : nullptr;
    return pContext ? pContext->id : QString();
}

QString ContextManager::getContextName(QWidget *pWidget)
{
    const Context *pContext = s_pInstance ? s_pInstance->firstOf(pWidget) : nullptr;
    return pContext ? pContext->name : QString();
}

QString ContextManager::getContextName(const QString &strId)
{
    const Context *pContext = s_pInstance ? s_pInstance->firstOf(strId) : nullptr;
    return pContext ? pContext->name : QString();
}

QWidget *ContextManager::getContextWidget(const QString &strId)
{
    const Context *pContext = s_pInstance ? s_pInstance->firstOf(strId) : nullptr;
    return pContext ? pContext->widget : nullptr;
}

const Context *ContextManager::firstOf(QWidget *pWidget) const
{
    const qsizetype nIndex = m_firstIndex.value(pWidget, -1);
    return nIndex < 0 ? nullptr : &m_contexts.at(nIndex);
}

const Context *ContextManager::firstOf(const QString &strId) const
{
    const auto it = std::find_if(
        m_contexts.begin(), m_contexts.end(), [&](const Context &context) { return context.id == strId; });
    return it == m_contexts.end() ? nullptr : &*it;
}

qsizetype ContextManager::indexOf(QWidget *pWidget, const QString &strId) const
{
    const auto it = std::find_if(m_contexts.begin(), m_contexts.end(),
        [&](const Context &context) { return context.widget == pWidget && context.id == strId; });
    return it == m_contexts.end() ? -1 : it - m_contexts.begin();
}
