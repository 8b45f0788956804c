// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiSubWindow>

/// A sub-window that leaves it to its owner whether it closes.
class StageSubWindow : public QMdiSubWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageSubWindow)

public:
    explicit StageSubWindow(QWidget *pParent = nullptr);

signals:
    /// The user wants it closed. The receiver may delete the window later, not within the signal.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *pEvent) override;
};
