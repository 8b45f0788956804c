// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiSubWindow>

/// A sub-window that does not close by itself; its owner decides and deletes it.
class StageSubWindow : public QMdiSubWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageSubWindow)

public:
    explicit StageSubWindow(QWidget *pParent = nullptr);

signals:
    /// The user wants to close it. The receiver may use deleteLater(), but not delete it within the signal.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *pEvent) override;
};
