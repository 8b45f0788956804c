// SPDX-License-Identifier: MIT
#pragma once

#include <QActionGroup>

/// The menu View > Theme: one entry per installed theme, the one in force checked. Without a menu View there
/// is none. Its maker owns it, the main window the menu. GUI thread only.
class ThemeMenu : public QActionGroup
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThemeMenu)

public:
    ThemeMenu();

private:
    void choose(QAction *pAction);

    QAction *m_pCurrent = nullptr;
};
