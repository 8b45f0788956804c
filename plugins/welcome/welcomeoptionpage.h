// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;

/// Whether the home page is wanted, in the user's settings and in the preferences dialog.
class WelcomeOptionPage : public IOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomeOptionPage)

public:
    WelcomeOptionPage();

    [[nodiscard]] static bool isPageWanted();

    void initValues() override;
    void saveChanges() override;
    void discardChanges() override;

private:
    QCheckBox *m_pShow;
};

/// In the pool while it lives.
class WelcomeOptionPageFactory : public IOptionPageFactory
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomeOptionPageFactory)

public:
    WelcomeOptionPageFactory();
    ~WelcomeOptionPageFactory() override;

    [[nodiscard]] IOptionPage *createPage() override;
};
