// SPDX-License-Identifier: MIT
#pragma once

#include "support/coretest.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <actionmanager/contextmanager.h>
#include <actionmanager/proxyaction.h>
#include <mainwindow.h>

#include <memory>

/// A program with a main window, whose own commands are taken away.
struct Program : TestProgram
{
    Program()
    {
        for (ContextAction *pCommand : ActionManager::getActions()) {
            QAction *pAction = static_cast<ProxyAction *>(pCommand->getAction())->action();
            ActionManager::unregisterAction(pAction, pCommand->getId());
        }
    }

    std::unique_ptr<MainWindow> pWindow = std::make_unique<MainWindow>(nullptr);

    MainWindow *window() const { return pWindow.get(); }
    static QSettings &settings() { return *ExtensionSystem::PluginManager::settings(); }
};

/// An action registered for a command, until it goes.
struct Registered
{
    QString strId;
    QAction action;
    int nFired = 0;
    QPointer<ContextAction> pCommand;

    Registered(const QString &id, QWidget *pContext, const QString &strText = {})
        : strId(id)
        , action(strText.isEmpty() ? id : strText)
    {
        QObject::connect(&action, &QAction::triggered, &action, [this] { ++nFired; });
        pCommand = ActionManager::registerAction(&action, strId, pContext, false);
    }
    ~Registered() { ActionManager::unregisterAction(&action, strId); }

    ProxyAction *proxy() const { return static_cast<ProxyAction *>(pCommand->getAction()); }
};

inline QKeySequence keys(const char *pText)
{
    return QKeySequence(QString::fromUtf8(pText), QKeySequence::PortableText);
}
