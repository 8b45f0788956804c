// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QDialog>
#include <QList>

class IOptionPage;

/// Base of the preferences dialog, which the plug-in of the document format supplies. The main window asks
/// the factory for it on first use and keeps what it gets; it asks again when that was null, or is gone. It
/// does not delete it: whoever makes the dialog gives it a parent.
class CORE_EXPORT IOptionsDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IOptionsDlg)

public:
    explicit IOptionsDlg(QWidget *pParent);
    ~IOptionsDlg() override;

    /// Shows the dialog with the current settings; the Preferences command calls it.
    virtual void showDialog() = 0;

    /// Adds a page at the end; it is the dialog's from then on, as a child of it or of a widget in it.
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
    /// Not owned by the list: the pages go with the dialog. In the order they are shown.
    QList<IOptionPage *> m_pages;
};
