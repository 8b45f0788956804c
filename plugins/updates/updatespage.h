// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;
class QLineEdit;

/// The page "Updates" of the preferences. It lies in the framework's pool until a dialog takes it over.
class UpdatesPage : public IOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdatesPage)

public:
    UpdatesPage();

    void initValues() override;
    void saveChanges() override;
    void discardChanges() override;

protected:
    void showEvent(QShowEvent *pEvent) override;

private:
    [[nodiscard]] QLineEdit *addAddress(const QString &strLabel, const char *pName);
    void onEdited();

    QCheckBox *m_pAutomatic;
    QLineEdit *m_pFeed;
    QLineEdit *m_pReport;
    QLineEdit *m_pSuggestion;
};
