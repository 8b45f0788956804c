// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTreeWidget;

/// Shows the versions of the program and of Qt, the system, and every plug-in that was found, with its state
/// and its errors. GUI thread only.
class AboutDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutDialog)

public:
    explicit AboutDialog(QWidget *pParent);

    /// Everything that the dialog shows, as plain text for the clipboard.
    [[nodiscard]] QString text() const;

private:
    void fillPlugins();

    QTreeWidget *m_pPlugins;
};
