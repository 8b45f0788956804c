// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QDialog>
#include <QList>

class IOptionPage;

/// Base of the preferences dialog, which the plug-in of the document format supplies. The main window asks
/// its IDocumentFactory for the dialog on first use, and again if that gave null or the dialog was deleted.
/// The main window does not delete it, so whoever makes it gives it a parent. GUI thread only.
class CORE_EXPORT IOptionsDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IOptionsDlg)

public:
    explicit IOptionsDlg(QWidget *pParent);
    ~IOptionsDlg() override;

    /// Shows the dialog with the current settings; the Preferences command calls it.
    virtual void showDialog() = 0;

    /// Adds a page at the end, which becomes a child of the dialog or of a widget in it.
    virtual void addPage(IOptionPage *pPage) = 0;

public slots:
    virtual void onApply() = 0;
    virtual void onCancel() = 0;
    virtual void onOK() = 0;
    virtual void onPageChanged(int nPage) = 0;

public:
    [[nodiscard]] virtual int currentPage() = 0;
    virtual void setCurrentPage(int nPage) = 0;
    [[nodiscard]] virtual bool hasChanges() = 0;

protected:
    /// In the order in which they are shown. The list does not own them: they are children of the dialog.
    QList<IOptionPage *> m_pages;
};
