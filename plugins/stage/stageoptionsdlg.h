// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionsdlg.h>

class QDialogButtonBox;
class QListWidget;
class QStackedWidget;

/// The preferences dialog: a list of pages, its own and those of other plug-ins. Changes are written only by
/// Apply and OK. It is a child of the main window, which keeps it for the next time. GUI thread only.
class StageOptionsDlg : public IOptionsDlg
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageOptionsDlg)

public:
    explicit StageOptionsDlg(QWidget *pParent);
    ~StageOptionsDlg() override;

    void showDialog() override;
    void addPage(IOptionPage *pPage) override;
    void onApply() override;
    void onCancel() override;
    void onOK() override;
    void onPageChanged(int nPage) override;
    [[nodiscard]] int currentPage() override;
    void setCurrentPage(int nPage) override;
    [[nodiscard]] bool hasChanges() override;

    void reject() override;

private:
    void addPages();
    void updateButtons();
    void endTyping();

    QListWidget *m_pList;
    QStackedWidget *m_pStack;
    QDialogButtonBox *m_pButtons = nullptr;
};
