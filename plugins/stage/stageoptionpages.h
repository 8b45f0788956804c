// SPDX-License-Identifier: MIT
// The preferences pages that every installation has. They read and write the settings of the core.
#pragma once

#include <ui/ioptionpage.h>

class QCheckBox;
class QComboBox;
class QListWidget;
class QSpinBox;

/// Base of the stage's own pages. It marks a page as changed when the user edits it, not when it is filled.
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
    /// Sets the controls to the values of the settings.
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

    /// Also restarts or stops the backup timers of the open projects.
    void saveChanges() override;

private:
    void fill() override;

    QCheckBox *m_pEnable;
    QSpinBox *m_pInterval;
    bool m_bIntervalChanged = false; ///< by the user, since fill()
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
