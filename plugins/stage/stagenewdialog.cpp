// SPDX-License-Identifier: MIT
#include "stagenewdialog.h"

#include "stagedocument.h"
#include "stageformat.h"

#include <displayscale.h>
#include <iui.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>

namespace {

const QString s_suffix = QStringLiteral(".kelpa");

// A path in the user's documents folder where no file exists, and which no open project has.
QString freePath(const QString &strName)
{
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (!folder.exists())
        folder = QDir::home();
    QString strPath = folder.absoluteFilePath(strName + s_suffix);
    for (int i = 2; QFileInfo::exists(strPath) || StageDocument::isOpenElsewhere(strPath, nullptr); ++i)
        strPath =
            folder.absoluteFilePath(QStringLiteral("%1-%2%3").arg(strName, QString::number(i), s_suffix));
    return strPath;
}

} // namespace

StageNewDialog::StageNewDialog(QWidget *pParent)
    : ICreateDocumentDlg(pParent)
{
    setWindowTitle(tr("New Project"));
    auto *pLayout = new QFormLayout(this);
    addPathRow(pLayout);
    m_pWidth = addNumberRow(pLayout, tr("&Width (pixels):"), StageFormat::nMaxStageSize, 1280);
    m_pHeight = addNumberRow(pLayout, tr("&Height (pixels):"), StageFormat::nMaxStageSize, 720);
    m_pFrameRate = addNumberRow(pLayout, tr("&Frames per second:"), StageFormat::nMaxFrameRate, 24);
    m_pResponsive = new QCheckBox(tr("&Responsive: follow the width of the page"), this);
    m_pResponsive->setAccessibleName(tr("Responsive"));
    pLayout->addRow(m_pResponsive);
    m_pProblem = new QLabel(this);
    m_pProblem->setObjectName(QStringLiteral("problem"));
    m_pProblem->setAccessibleName(tr("What is missing"));
    m_pProblem->setWordWrap(true);
    pLayout->addRow(m_pProblem);

    auto *pButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_pOk = pButtons->button(QDialogButtonBox::Ok);
    connect(pButtons, &QDialogButtonBox::accepted, this, &StageNewDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &StageNewDialog::reject);
    pLayout->addRow(pButtons);
    validate();
}

void StageNewDialog::addPathRow(QFormLayout *pLayout)
{
    auto *pLabel = new QLabel(tr("&Project file:"), this);
    m_pPath = new QLineEdit(this);
    m_pPath->setObjectName(QStringLiteral("path"));
    m_pPath->setAccessibleName(tr("Project file"));
    m_pPath->setMinimumWidth(DisplayScale::proportional(DisplayScale::logicalDpi(this), 360));
    m_pPath->setText(QDir::toNativeSeparators(freePath(tr("untitled"))));
    pLabel->setBuddy(m_pPath);
    auto *pBrowse = new QPushButton(tr("&Browse..."), this);
    pBrowse->setAccessibleName(tr("Browse for the project file"));
    pBrowse->setAutoDefault(false);
    auto *pRow = new QHBoxLayout;
    pRow->addWidget(m_pPath);
    pRow->addWidget(pBrowse);
    pLayout->addRow(pLabel, pRow);
    connect(m_pPath, &QLineEdit::textChanged, this, &StageNewDialog::validate);
    connect(pBrowse, &QPushButton::clicked, this, &StageNewDialog::browse);
}

QSpinBox *StageNewDialog::addNumberRow(QFormLayout *pLayout, const QString &strLabel, int nMax, int nValue)
{
    auto *pBox = new QSpinBox(this);
    pBox->setRange(1, nMax);
    pBox->setValue(nValue);
    auto *pLabel = new QLabel(strLabel, this);
    pLabel->setBuddy(pBox);
    pBox->setAccessibleName(QString(strLabel).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    pLayout->addRow(pLabel, pBox);
    return pBox;
}

// The file dialog does not ask about replacing a file, because accept() does, also for a typed name.
void StageNewDialog::browse()
{
    const QString strPath = QFileDialog::getSaveFileName(this, tr("New Project"), getFilePath(),
        tr("Kelpa projects (*%1)").arg(s_suffix), nullptr, QFileDialog::DontConfirmOverwrite);
    if (!strPath.isEmpty())
        m_pPath->setText(QDir::toNativeSeparators(strPath));
}

QString StageNewDialog::problem()
{
    const QString strTyped = QDir::fromNativeSeparators(m_pPath->text().trimmed());
    if (strTyped.isEmpty() || strTyped.endsWith(QLatin1Char('/')))
        return tr("Enter the name of the project file.");
    if (!QDir::isAbsolutePath(strTyped))
        return tr("Enter the whole path of the project file, with its folder.");
    const QFileInfo file(getFilePath());
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir())
        return tr("The folder %1 does not exist.").arg(QDir::toNativeSeparators(folder.filePath()));
    if (!folder.isWritable())
        return tr("The folder %1 cannot be written to.").arg(QDir::toNativeSeparators(folder.filePath()));
    if (file.exists() && !file.isFile())
        return tr("%1 is not a file.").arg(QDir::toNativeSeparators(file.filePath()));
    if (StageDocument::isOpenElsewhere(file.filePath(), nullptr))
        return tr("%1 is open. Close it first.").arg(QDir::toNativeSeparators(file.filePath()));
    return {};
}

void StageNewDialog::validate()
{
    const QString strProblem = problem();
    m_pProblem->setText(strProblem);
    if (m_pOk)
        m_pOk->setEnabled(strProblem.isEmpty());
}

void StageNewDialog::accept()
{
    validate();
    if (!m_pOk->isEnabled())
        return;
    const QString strPath = getFilePath();
    if (QFileInfo::exists(strPath)
        && IUi::question(this, IUi::getTitle(),
               tr("%1 exists. Replace it?").arg(QDir::toNativeSeparators(strPath)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
        return;
    ICreateDocumentDlg::accept();
}

QString StageNewDialog::getFilePath()
{
    QString strPath = QDir::cleanPath(QDir::fromNativeSeparators(m_pPath->text().trimmed()));
    if (!strPath.isEmpty() && !strPath.endsWith(s_suffix, Qt::CaseInsensitive))
        strPath += s_suffix;
    return strPath;
}

int StageNewDialog::getFirstValue()
{
    return m_pWidth->value();
}

int StageNewDialog::getSecondValue()
{
    return m_pHeight->value();
}

int StageNewDialog::getThirdValue()
{
    return m_pFrameRate->value();
}

bool StageNewDialog::getFlag()
{
    return m_pResponsive->isChecked();
}
