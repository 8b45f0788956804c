// SPDX-License-Identifier: MIT
// The pages that every installation has. They read and write the settings of the core.
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;
class QComboBox;
class QListWidget;
class QSpinBox;

/// What the stage's own pages share: a change by the user marks the page, filling the controls does not.
class StageOptionPage : public IOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageOptionPage)

public:
    explicit StageOptionPage(const QString &strTitle);

    void initValues() override;
    void discardChanges() override;
    void saveChanges() override;

protected:
    /// Puts what the settings hold into the controls.
    virtual void fill() = 0;
    void markChanged();

private:
    bool m_bFilling = false;
};

class GeneralOptionPage : public StageOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GeneralOptionPage)

public:
    GeneralOptionPage();
    void saveChanges() override;

private:
    void fill() override;

    QComboBox *m_pLanguage;
};

class BackupOptionPage : public StageOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BackupOptionPage)

public:
    BackupOptionPage();

    /// Open projects follow at once: their wait starts anew or ends.
    void saveChanges() override;

private:
    void fill() override;

    QCheckBox *m_pEnable;
    QSpinBox *m_pInterval;
    bool m_bIntervalChanged = false; ///< since it was filled
};

class EditingOptionPage : public StageOptionPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EditingOptionPage)

public:
    EditingOptionPage();
    void saveChanges() override;

private:
    void fill() override;
    void fillBreakpoints(bool bReset);
    QListWidget *createList(QLayout *pPlace, const QString &strTitle, const QString &strName);

    QCheckBox *m_pPasteSvg;
    QListWidget *m_pHorizontal;
    QListWidget *m_pVertical;
};
