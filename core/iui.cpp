// SPDX-License-Identifier: MIT
#include "iui.h"

#include "displayscale.h"
#include "icore.h"
#include "imagefiles/pngimage.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QScreen>

#include <array>

template class ISingleton<IUi>;

namespace {

constexpr std::array<const char *, 7> s_sizeSuffixes = {"", "_12", "_16", "_24", "_32", "_48", "_64"};

QString imagePath(const QString &strName, int nMode, bool bDisabled, const QString &strFolder)
{
    const bool bKnown = nMode > 0 && nMode < static_cast<int>(s_sizeSuffixes.size());
    const char *pDouble = DisplayScale::usesDoubleSizeImages(DisplayScale::logicalDpi()) ? "_2x" : "";
    const QString strFile = QStringLiteral("%1%2%3%4.png")
                                .arg(strName, QLatin1String(s_sizeSuffixes[bKnown ? nMode : 0]),
                                    QLatin1String(bDisabled ? "_d" : ""), QLatin1String(pDouble));
    return QDir(strFolder).absoluteFilePath(strFile);
}

// A word wider than the screen, such as a long path, gets places to break at.
QString breakable(const QString &strText)
{
    constexpr int nLongestWord = 60;
    QString strResult;
    int nWord = 0;
    for (const QChar c : strText) {
        strResult += c;
        nWord = c.isSpace() ? 0 : nWord + 1;
        if (nWord >= nLongestWord && !c.isHighSurrogate()) {
            strResult += QChar(0x200B);
            nWord = 0;
        }
    }
    return strResult;
}

// What the text takes in one line; a label that wraps says less.
int naturalWidth(QLabel *pLabel)
{
    const bool bWraps = pLabel->wordWrap();
    pLabel->setWordWrap(false);
    const int nWidth = pLabel->sizeHint().width();
    pLabel->setWordWrap(bWraps);
    return nWidth;
}

// A message box never gets wider than this, whatever its labels need. Beside them are the icon and margins.
int mostWidth(const QLabel *pLabel)
{
    const int nScreen = pLabel->screen() ? pLabel->screen()->availableSize().width() : 960;
    const int nBox = nScreen > 1024 ? qMin(nScreen - 480, 1000) : nScreen;
    return qMin(nScreen * 2 / 3, nBox - DisplayScale::proportional(DisplayScale::logicalDpi(pLabel), 110));
}

void widenLabel(QLabel *pLabel)
{
    const int nCap = mostWidth(pLabel);
    const int nWidth = naturalWidth(pLabel);
    if (nWidth > nCap) {
        if (pLabel->textFormat() == Qt::PlainText)
            pLabel->setText(breakable(pLabel->text()));
        pLabel->setWordWrap(true);
    }
    pLabel->setMinimumWidth(qMin(nWidth, nCap));
}

// At high scales the box would otherwise clip its own buttons and texts.
void widenContents(QMessageBox *pBox)
{
    const auto buttons = pBox->buttons();
    for (QAbstractButton *pButton : buttons) {
        if (pButton->sizeHint().width() > pButton->minimumWidth())
            pButton->setMinimumWidth(pButton->sizeHint().width());
    }
    const auto labels = pBox->findChildren<QLabel *>();
    for (QLabel *pLabel : labels) {
        // The box passes its own format on to the first text only.
        if (pLabel->objectName() == QLatin1String("qt_msgbox_informativelabel"))
            pLabel->setTextFormat(pBox->textFormat());
        if (!pLabel->text().isEmpty())
            widenLabel(pLabel);
    }
}

// An icon only ever shrinks its pixmaps; between the sizes there are, the image is enlarged here.
QPixmap messageIcon(const QString &strName, int nDPI)
{
    const int nSide = DisplayScale::proportional(nDPI, 32);
    const QIcon icon = IUi::getIcon(strName, 0, QStringLiteral(":/designer/images/"));
    const QPixmap pixmap = icon.pixmap(QSize(nSide, nSide), 1.0, QIcon::Normal, QIcon::Off);
    if (pixmap.isNull())
        return pixmap;
    return pixmap.scaled(nSide, nSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QMessageBox::StandardButton runBox(QWidget *pParent, const QString &strIcon, const QString &strTitle,
    const QString &strText, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton,
    const QString &strInformative = {})
{
    return IUi::run(pParent, strIcon, strTitle, [&](QMessageBox *pBox) {
        pBox->setTextFormat(Qt::PlainText);
        pBox->setText(strText);
        pBox->setInformativeText(strInformative);
        pBox->setStandardButtons(buttons);
        pBox->setDefaultButton(defaultButton);
    });
}

} // namespace

QIcon IUi::getIcon(const QString &strName, int nMode, const QString &strFolder)
{
    QIcon icon;
    icon.addPixmap(getPixmap(strName, nMode, false, strFolder), QIcon::Normal, QIcon::Off);
    icon.addPixmap(getPixmap(strName, nMode, true, strFolder), QIcon::Disabled, QIcon::Off);
    return icon;
}

QPixmap IUi::getPixmap(const QString &strName, int nMode, bool bDisabled, const QString &strFolder)
{
    const QString strPath = imagePath(strName, nMode, bDisabled, strFolder);
    QPixmap &pixmap = getInstance()->m_pixmaps[strPath];
    if (QFile file(strPath); pixmap.isNull() && file.open(QIODevice::ReadOnly))
        pixmap = QPixmap::fromImage(imageFromPng(file.readAll()));
    return pixmap;
}

void IUi::clearIconCache()
{
    getInstance()->m_pixmaps.clear();
}

QMessageBox::StandardButton IUi::run(QWidget *pParent, const QString &strIcon, const QString &strTitle,
    const std::function<void(QMessageBox *)> &fill)
{
    // Not on the stack: its parent may die while it runs.
    const QPointer<QMessageBox> pBox = new QMessageBox(pParent ? pParent : ICore::getMainWidget());
    fill(pBox);
    pBox->setWindowTitle(strTitle);
    pBox->setIconPixmap(messageIcon(strIcon, DisplayScale::logicalDpi(pBox->parentWidget())));
    widenContents(pBox);
    const bool bAnswered = pBox->exec() != -1 && pBox && pBox->clickedButton();
    const auto answer = bAnswered ? pBox->standardButton(pBox->clickedButton()) : QMessageBox::Cancel;
    delete pBox;
    return answer;
}

QMessageBox::StandardButton IUi::information(QWidget *pParent, const QString &strTitle,
    const QString &strText, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton,
    const QString &strInformative)
{
    return runBox(
        pParent, QStringLiteral("information_32"), strTitle, strText, buttons, defaultButton, strInformative);
}

QMessageBox::StandardButton IUi::question(QWidget *pParent, const QString &strTitle, const QString &strText,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    return runBox(pParent, QStringLiteral("question_32"), strTitle, strText, buttons, defaultButton);
}

QMessageBox::StandardButton IUi::warning(QWidget *pParent, const QString &strTitle, const QString &strText,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    return runBox(pParent, QStringLiteral("warning_32"), strTitle, strText, buttons, defaultButton);
}
