// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;
class QLineEdit;

/// The page "Updates" of the preferences.
class UpdatesPage : public IOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdatesPage)

public:
    UpdatesPage();

    void initValues() override;
    void saveChanges() override;
    void discardChanges() override;

private:
    [[nodiscard]] QLineEdit *addAddress(const QString &strLabel, const char *pName);
    void onEdited();

    QCheckBox *m_pAutomatic;
    QLineEdit *m_pFeed;
    QLineEdit *m_pReport;
    QLineEdit *m_pSuggestion;
};

/// Hands the page to the preferences dialog.
class UpdatesPageFactory : public IOptionPageFactory
{
    Q_OBJECT

public:
    [[nodiscard]] IOptionPage *createPage() override { return new UpdatesPage; }
};
