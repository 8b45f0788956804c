// SPDX-License-Identifier: MIT
#pragma once

#include <ui/icreatedocumentdlg.h>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// Asks for the file of a new project and for its stage: width, height, frames per second, responsive; these
/// are the values of StageDocument::createContent(). OK is enabled only if the file can be created.
class StageNewDialog : public ICreateDocumentDlg
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageNewDialog)

public:
    explicit StageNewDialog(QWidget *pParent);

    /// The path as typed, cleaned, with the suffix ".kelpa" added if it is missing; absolute once accepted.
    [[nodiscard]] QString getFilePath() override;
    [[nodiscard]] int getFirstValue() override;
    [[nodiscard]] int getSecondValue() override;
    [[nodiscard]] int getThirdValue() override;
    [[nodiscard]] bool getFlag() override;

    /// Asks the user first if the file exists; stays open if the user does not want to replace it.
    void accept() override;

private:
    void addPathRow(QFormLayout *pLayout);
    QSpinBox *addNumberRow(QFormLayout *pLayout, const QString &strLabel, int nMax, int nValue);
    void browse();
    void validate();
    [[nodiscard]] QString problem();

    QLineEdit *m_pPath = nullptr;
    QSpinBox *m_pWidth = nullptr;
    QSpinBox *m_pHeight = nullptr;
    QSpinBox *m_pFrameRate = nullptr;
    QCheckBox *m_pResponsive = nullptr;
    QLabel *m_pProblem = nullptr;
    QPushButton *m_pOk = nullptr;
};
