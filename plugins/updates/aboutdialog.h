// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTreeWidget;

/// What runs here: the versions of the program and of Qt, and every plug-in that was found, with its state
/// and what went wrong with it. GUI thread only.
class AboutDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutDialog)

public:
    explicit AboutDialog(QWidget *pParent);

    /// All of it as plain text.
    [[nodiscard]] QString text() const;

private:
    void fillPlugins();

    QTreeWidget *m_pPlugins;
};
