// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

#include <array>

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
    std::array<QLineEdit *, 3> m_addresses; ///< in the order of UpdateSettings::Address
};

/// Hands the page to the preferences dialog.
class UpdatesPageFactory : public IOptionPageFactory
{
    Q_OBJECT

public:
    [[nodiscard]] IOptionPage *createPage() override { return new UpdatesPage; }
};
