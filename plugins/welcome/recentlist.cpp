// SPDX-License-Identifier: MIT
#include "recentlist.h"

#include <ui/imainmdiarea.h>

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

RecentList::RecentList(IMainMdiArea *pArea, QWidget *pParent)
    : QWidget(pParent)
    , m_pList(new QListWidget(this))
{
    auto *pNote = new QLabel(tr("The home page cannot be shown here: parts of the browser engine are missing "
                                "or fail. Your projects are listed instead."),
        this);
    pNote->setObjectName(QStringLiteral("note"));
    pNote->setWordWrap(true);
    auto *pLabel = new QLabel(tr("&Recent Projects"), this);
    pLabel->setBuddy(m_pList);
    m_pList->setAccessibleName(tr("Recent Projects"));
    auto *pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pNote);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(m_pList);
    setFocusProxy(m_pList);
    connect(pArea, &IMainMdiArea::resetRecentFiles, this, &RecentList::fill);
    // Queued: opening a project clears this list, which must not happen while it emits a signal.
    connect(m_pList, &QListWidget::itemActivated, pArea, [pArea](const QListWidgetItem *pItem) {
        const QString strFile = pItem->data(Qt::UserRole).toString();
        QMetaObject::invokeMethod(
            pArea, [pArea, strFile] { pArea->openFile(strFile); }, Qt::QueuedConnection);
    });
    fill();
}

void RecentList::fill()
{
    m_pList->clear();
    const QStringList files = IMainMdiArea::getRecentFileList();
    for (const QString &strFile : files) {
        auto *pItem = new QListWidgetItem(QDir::toNativeSeparators(strFile), m_pList);
        pItem->setData(Qt::UserRole, strFile);
    }
    m_pList->setCurrentRow(0);
}
