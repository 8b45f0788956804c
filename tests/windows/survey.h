// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

/// Looks at a window: are all texts translated, and is there room for them? Texts of the language for tests
/// stand in brackets. Takes a picture if it has a folder for it.
class Survey
{
public:
    void setFolder(const QString &strFolder) { m_strFolder = strFolder; }
    void setName(const QString &strName) { m_strName = strName; }
    void allowAnyText() { m_bAnyText = true; }

    void look(QWidget *pWindow, const QString &strWhat)
    {
        m_strWhat = strWhat;
        QCoreApplication::sendPostedEvents(); // layouts may be waiting
        if (pWindow->isWindow())
            checkText(pWindow, pWindow->windowTitle());
        checkWidget(pWindow);
        const auto children = pWindow->findChildren<QWidget *>();
        for (QWidget *pChild : children) {
            if (pChild->isVisibleTo(pWindow) && pChild->window() == pWindow)
                checkWidget(pChild);
        }
        if (m_strFolder.isEmpty())
            return;
        QDir().mkpath(m_strFolder);
        pWindow->grab().save(QStringLiteral("%1/%2-%3.png").arg(m_strFolder, strWhat, m_strName));
    }

    QStringList takeFaults() { return std::exchange(m_faults, {}); }

private:
    // Names, paths and numbers are the same in every language; standard buttons and the like have Qt's texts.
    static bool isOurs(const QWidget *pWidget, const QString &strText)
    {
        static const QStringList s_names = {"Kelpa Studio", "card", "card*", "Card", "Kelpa Studio*", "core",
            "stage", "appearance", "updates", "welcome"};
        const bool bLetters =
            std::any_of(strText.cbegin(), strText.cend(), [](QChar c) { return c.isLetter(); });
        if (!bLetters || s_names.contains(strText) || strText.contains('/'))
            return false;
        return !qobject_cast<const QDialogButtonBox *>(pWidget->parentWidget())
            && !pWidget->inherits("CloseButton") && !pWidget->objectName().startsWith("qt_")
            && !pWidget->objectName().contains("language", Qt::CaseInsensitive);
    }

    void fault(const QWidget *pWidget, const QString &strFault)
    {
        m_faults.append(
            QString("%1: %2 \"%3\": %4")
                .arg(m_strWhat, pWidget->metaObject()->className(), pWidget->objectName(), strFault));
    }

    void checkText(const QWidget *pWidget, const QString &strText)
    {
        if (!m_bAnyText && isOurs(pWidget, strText) && !(strText.contains('[') && strText.contains("~]")))
            fault(pWidget, "not translated: " + strText);
    }

    void checkTexts(const QWidget *pWidget, const QStringList &texts)
    {
        for (const QString &strText : texts)
            checkText(pWidget, strText);
    }

    void checkRoom(const QWidget *pWidget, const QSize &needed)
    {
        const QWidget *pWindow = pWidget->window();
        if (!pWindow->rect().contains(QRect(pWidget->mapTo(pWindow, QPoint(0, 0)), pWidget->size())))
            fault(pWidget, "is cut off by its window");
        if (pWidget->width() < needed.width() || pWidget->height() < needed.height())
            fault(pWidget,
                QString("needs %1 x %2, has %3 x %4")
                    .arg(needed.width())
                    .arg(needed.height())
                    .arg(pWidget->width())
                    .arg(pWidget->height()));
    }

    void checkWidget(QWidget *pWidget)
    {
        for (const char *pName : {"toolTip", "accessibleName", "statusTip", "title", "placeholderText",
                 "prefix", "suffix", "specialValueText"})
            checkText(pWidget, pWidget->property(pName).toString());
        if (qobject_cast<QGroupBox *>(pWidget) || qobject_cast<QSpinBox *>(pWidget))
            checkRoom(pWidget, pWidget->minimumSizeHint());
        else if (const auto *pLabel = qobject_cast<QLabel *>(pWidget))
            checkLabel(pLabel);
        else if (const auto *pButton = qobject_cast<QAbstractButton *>(pWidget))
            checkButton(pButton);
        else if (const auto *pMenu = qobject_cast<QMenu *>(pWidget))
            checkActions(pMenu);
        else if (const auto *pBar = qobject_cast<QTabBar *>(pWidget))
            checkTabs(pBar);
        else if (const auto *pHeader = qobject_cast<QHeaderView *>(pWidget))
            checkHeader(pHeader);
        else if (const auto *pView = qobject_cast<QAbstractItemView *>(pWidget))
            checkItems(pView);
        else if (auto *pCombo = qobject_cast<QComboBox *>(pWidget))
            checkCombo(pCombo);
    }

    // One line that gives way shows the rest as its tool tip.
    void checkLabel(const QLabel *pLabel)
    {
        checkText(pLabel, pLabel->text());
        if (pLabel->text().isEmpty() || pLabel->objectName() == "m_pMessageLabel")
            return;
        if (pLabel->wordWrap())
            checkRoom(pLabel, QSize(0, pLabel->heightForWidth(pLabel->width())));
        else
            checkRoom(pLabel, pLabel->sizeHint());
    }

    void checkButton(const QAbstractButton *pButton)
    {
        const auto *pToolButton = qobject_cast<const QToolButton *>(pButton);
        checkText(pButton, pButton->text());
        if (pToolButton && pToolButton->defaultAction())
            checkTexts(
                pButton, {pToolButton->defaultAction()->toolTip(), pToolButton->defaultAction()->text()});
        const bool bIconOnly = pToolButton && pToolButton->toolButtonStyle() == Qt::ToolButtonIconOnly;
        if (!pButton->text().isEmpty() && !bIconOnly)
            checkRoom(pButton, pButton->minimumSizeHint());
        else if (pButton->text().isEmpty() && pButton->accessibleName().isEmpty()
            && pButton->toolTip().isEmpty() && pButton->isEnabled()
            && !pButton->objectName().startsWith("qt_"))
            fault(pButton, "has neither a text nor a name");
    }

    void checkActions(const QMenu *pMenu)
    {
        const auto actions = pMenu->actions();
        for (const QAction *pAction : actions) {
            if (!pAction->isSeparator() && pAction->isVisible() && !pMenu->objectName().endsWith("Language"))
                checkTexts(pMenu, {pAction->text(), pAction->toolTip(), pAction->statusTip()});
        }
        checkRoom(pMenu, pMenu->sizeHint());
    }

    void checkTabs(const QTabBar *pBar)
    {
        for (int i = 0; i < pBar->count(); ++i) {
            checkTexts(pBar, {pBar->tabText(i), pBar->tabToolTip(i)});
            int nNeeded = pBar->fontMetrics().horizontalAdvance(pBar->tabText(i));
            if (!pBar->tabIcon(i).isNull())
                nNeeded += pBar->iconSize().width();
            for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide})
                nNeeded += pBar->tabButton(i, side) ? pBar->tabButton(i, side)->width() : 0;
            if (pBar->tabRect(i).width() < nNeeded)
                fault(pBar, "cuts off " + pBar->tabText(i));
        }
    }

    void checkHeader(const QHeaderView *pHeader)
    {
        for (int i = 0; i < pHeader->count(); ++i) {
            const QString strText = pHeader->model()->headerData(i, pHeader->orientation()).toString();
            checkText(pHeader, strText);
            if (!pHeader->isSectionHidden(i) && pHeader->sectionSize(i) < pHeader->sectionSizeHint(i))
                fault(pHeader, "cuts off " + strText);
        }
    }

    void checkItems(const QAbstractItemView *pView)
    {
        const QAbstractItemModel *pModel = pView->model();
        for (int nRow = 0; pModel && nRow < pModel->rowCount(); ++nRow) {
            for (int nColumn = 0; nColumn < pModel->columnCount(); ++nColumn) {
                const QModelIndex index = pModel->index(nRow, nColumn);
                checkText(pView, index.data().toString());
                const QRect rect = pView->visualRect(index);
                if (!rect.isEmpty() && rect.width() < pView->sizeHintForIndex(index).width())
                    fault(pView, "cuts off " + index.data().toString());
            }
        }
        if (qobject_cast<const QListView *>(pView) && pView->model()->rowCount() > 0
            && pView->viewport()->width() < pView->sizeHintForColumn(0))
            fault(pView, "cuts its entries off");
    }

    void checkCombo(QComboBox *pCombo)
    {
        checkRoom(pCombo, pCombo->minimumSizeHint());
        QStyleOptionComboBox option;
        option.initFrom(pCombo);
        option.editable = pCombo->isEditable();
        const QRect field = pCombo->style()->subControlRect(
            QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, pCombo);
        for (int i = 0; i < pCombo->count(); ++i) {
            checkText(pCombo, pCombo->itemText(i));
            if (field.width() < pCombo->fontMetrics().horizontalAdvance(pCombo->itemText(i)))
                fault(pCombo, "cuts off " + pCombo->itemText(i));
        }
    }

    QString m_strFolder;
    QString m_strName;
    QString m_strWhat;
    QStringList m_faults;
    bool m_bAnyText = false;
};
