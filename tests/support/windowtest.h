// SPDX-License-Identifier: MIT
#pragma once

#include <mainwindow.h>
#include <support/coretest.h>

/// A test whose cases have a program and a main window of their own.
class WindowTest : public QObject
{
    Q_OBJECT

protected slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
    }
    void cleanup()
    {
        m_pWindow.reset();
        m_pProgram.reset();
    }

protected:
    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
};
