// SPDX-License-Identifier: MIT
#pragma once

#include <irecentfilesmanager.h>
#include <mainwindow.h>
#include <support/coretest.h>

/// A main window that tests reach further into.
class TestWindow : public MainWindow
{
public:
    TestWindow()
        : MainWindow(nullptr)
    {
    }
    using MainWindow::isStyledFrameTitleBar;
    /// Takes the native window away, as putting a web view into it does.
    void destroyNativeWindow() { destroy(); }
};

/// A test whose cases have a program and a main window of their own.
class WindowTest : public QObject
{
    Q_OBJECT

protected slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<TestWindow>();
    }
    void cleanup()
    {
        m_pWindow.reset();
        m_pProgram.reset();
    }

protected:
    void showAndWait()
    {
        m_pWindow->show();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get()));
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<TestWindow> m_pWindow;
};

/// One whose window opens documents that do as they are told.
class DocumentTest : public WindowTest
{
    Q_OBJECT

protected slots:
    void init()
    {
        WindowTest::init();
        m_pFactory = std::make_unique<FakeFactory>();
    }
    void cleanup()
    {
        m_pFactory.reset();
        WindowTest::cleanup();
    }

protected:
    FakeDocument *load(const char *pName)
    {
        m_pWindow->loadFile(m_pProgram->write(pName));
        return m_pFactory->documents.last();
    }
    static QStringList recent() { return IRecentFilesManager::getInstance()->getRecentFiles(); }

    std::unique_ptr<FakeFactory> m_pFactory;
};
