// SPDX-License-Identifier: MIT
#pragma once

#include <ui/icreatedocumentdlg.h>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// Asks for the file and the stage of a new project: width, height, frames per second, responsive. OK is
/// enabled only for a file that can be made.
class StageNewDialog : public ICreateDocumentDlg
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageNewDialog)

public:
    explicit StageNewDialog(QWidget *pParent);

    /// Absolute, with the suffix.
    [[nodiscard]] QString getFilePath() override;
    [[nodiscard]] int getFirstValue() override;
    [[nodiscard]] int getSecondValue() override;
    [[nodiscard]] int getThirdValue() override;
    [[nodiscard]] bool getFlag() override;

    /// Asks before an existing file is replaced.
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
