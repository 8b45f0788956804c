// SPDX-License-Identifier: MIT
#pragma once

#include <support/windowtest.h>

#include <irecentfilesmanager.h>
#include <recentlist.h>
#include <ui/imainmdiarea.h>
#include <ui/webview.h>
#include <welcomewidget.h>

/// A test whose cases have a home page in a main window of their own.
class WelcomeTest : public WindowTest
{
    Q_OBJECT

protected slots:
    void init()
    {
        WindowTest::init();
        m_pFactory = std::make_unique<FakeFactory>();
        m_pWidget = new WelcomeWidget(m_pWindow->getMdiArea());
        m_pWindow->setWelcomeWidget(m_pWidget);
    }
    void cleanup()
    {
        m_pFactory.reset();
        WindowTest::cleanup();
    }

protected:
    static void addRecent(const QString &strFile) { IRecentFilesManager::getInstance()->addFile(strFile); }

    std::unique_ptr<FakeFactory> m_pFactory;
    QPointer<WelcomeWidget> m_pWidget;
};
