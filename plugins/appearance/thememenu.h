// SPDX-License-Identifier: MIT
#pragma once

#include <QActionGroup>

/// The menu View > Theme: one entry for each installed theme, with a check mark at the one in force. Nothing
/// is added without a menu View. The plug-in owns this, and ActionManager owns the menu. GUI thread only.
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
