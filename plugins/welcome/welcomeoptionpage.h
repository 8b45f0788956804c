// SPDX-License-Identifier: MIT
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;

/// The page of the preferences dialog that switches the home page on and off, with the setting behind it.
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

/// Creates the page. The constructor puts the factory into the object pool, the destructor takes it out.
class WelcomeOptionPageFactory : public IOptionPageFactory
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomeOptionPageFactory)

public:
    WelcomeOptionPageFactory();
    ~WelcomeOptionPageFactory() override;

    [[nodiscard]] IOptionPage *createPage() override;
};
