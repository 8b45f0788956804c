// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

#include <array>

class QCheckBox;
class QLineEdit;

/// The page "Updates" of the preferences: automatic checks and the three addresses.
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

/// Creates the page for the preferences dialog, which finds this factory in the object pool.
class UpdatesPageFactory : public IOptionPageFactory
{
    Q_OBJECT

public:
    [[nodiscard]] IOptionPage *createPage() override { return new UpdatesPage; }
};
