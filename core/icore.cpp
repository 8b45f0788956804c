// SPDX-License-Identifier: MIT
#include "icore.h"

#include "mainwindow.h"

#include <extensionsystem/pluginmanager.h>

#include <QCoreApplication>
#include <QDir>

using ExtensionSystem::PluginManager;

namespace {
ICore *s_pInstance = nullptr;
MainWindow *s_pMainWindow = nullptr;
} // namespace

ICore::ICore(MainWindow *pMainWindow)
{
    s_pInstance = this;
    s_pMainWindow = pMainWindow;
}

ICore::~ICore()
{
    s_pInstance = nullptr;
    s_pMainWindow = nullptr;
    // A contract for plug-ins: it is made once both pointers are cleared, and ends with this object.
    connect(PluginManager::instance(), SIGNAL(initializationDone()), this, SLOT(saveSettings()));
}

ICore *ICore::getInstance()
{
    return s_pInstance;
}

MainWindow *ICore::getMainWindow()
{
    return s_pMainWindow;
}

QWidget *ICore::getMainWidget()
{
    return s_pMainWindow;
}

QSettings *ICore::settings(QSettings::Scope scope)
{
    Q_UNUSED(PluginManager::instance())
    return scope == QSettings::UserScope ? PluginManager::settings() : PluginManager::globalSettings();
}

QString ICore::resourcePath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath());
}

void ICore::saveSettings()
{
    emit s_pInstance->aboutToSaveSettings();
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
        if (QSettings *pSettings = settings(scope))
            pSettings->sync();
    }
    PluginManager::checkSettings();
}
