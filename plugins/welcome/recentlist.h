// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class IMainMdiArea;
class QListWidget;

/// A plain list of the recent projects, shown if the home page cannot be shown. GUI thread only.
class RecentList : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecentList)

public:
    RecentList(IMainMdiArea *pArea, QWidget *pParent);

private:
    void fill();

    QListWidget *m_pList;
};
