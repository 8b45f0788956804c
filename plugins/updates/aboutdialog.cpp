// SPDX-License-Identifier: MIT
#include "aboutdialog.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <displayscale.h>
#include <extensionsystem/pluginmanager.h>
#include <iui.h>

using ExtensionSystem::PluginDescription;
using ExtensionSystem::PluginError;
using ExtensionSystem::PluginManager;
using ExtensionSystem::PluginState;

namespace {

constexpr struct
{
    PluginState state;
    const char *pText;
} s_states[] = {
    {PluginState::Found, QT_TRANSLATE_NOOP("AboutDialog", "Found")},
    {PluginState::LeftOut, QT_TRANSLATE_NOOP("AboutDialog", "Left out")},
    {PluginState::Failed, QT_TRANSLATE_NOOP("AboutDialog", "Failed")},
    {PluginState::Constructed, QT_TRANSLATE_NOOP("AboutDialog", "Loaded")},
    {PluginState::Initialized, QT_TRANSLATE_NOOP("AboutDialog", "Initialized")},
    {PluginState::Running, QT_TRANSLATE_NOOP("AboutDialog", "Running")},
    {PluginState::Stopped, QT_TRANSLATE_NOOP("AboutDialog", "Stopped")},
};

QString stateText(PluginState state)
{
    for (const auto &entry : s_states) {
        if (entry.state == state)
            return AboutDialog::tr(entry.pText);
    }
    return {};
}

// The reason for the plug-in's state and its errors, each text once.
QStringList errorsOf(const QString &strName, const QString &strReason)
{
    QStringList result;
    if (!strReason.isEmpty())
        result.append(strReason);
    const auto errors = PluginManager::errors();
    for (const PluginError &error : errors) {
        if (error.plugin == strName && !result.contains(error.message))
            result.append(error.message);
    }
    return result;
}

QString versionsText()
{
    return AboutDialog::tr("Version %1").arg(QCoreApplication::applicationVersion()) + QLatin1Char('\n')
        + AboutDialog::tr("Qt %1 (built with %2)")
              .arg(QLatin1String(qVersion()), QStringLiteral(QT_VERSION_STR))
        + QLatin1Char('\n') + QSysInfo::prettyProductName() + QLatin1String(", ")
        + QSysInfo::currentCpuArchitecture();
}

} // namespace

AboutDialog::AboutDialog(QWidget *pParent)
    : QDialog(pParent)
    , m_pPlugins(new QTreeWidget(this))
{
    const int nDPI = DisplayScale::logicalDpi(this);
    setWindowTitle(tr("About %1").arg(IUi::getTitle()));
    setWindowIcon(IUi::getIcon());
    auto *pIcon = new QLabel(this);
    const int nIcon = DisplayScale::proportional(nDPI, 48);
    pIcon->setPixmap(IUi::getIcon(QStringLiteral("icon"), 5).pixmap(nIcon, nIcon));
    auto *pVersions = new QLabel(QStringLiteral("Kelpa Studio\n") + versionsText(), this);
    pVersions->setTextFormat(Qt::PlainText);
    pVersions->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *pHead = new QHBoxLayout;
    pHead->addWidget(pIcon);
    pHead->addWidget(pVersions, 1);

    auto *pButtons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto *pCopy = pButtons->addButton(tr("Copy"), QDialogButtonBox::ActionRole);
    connect(pCopy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(text()); });
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    pButtons->button(QDialogButtonBox::Close)->setDefault(true);

    auto *pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pHead);
    pLayout->addWidget(m_pPlugins);
    pLayout->addWidget(pButtons);
    fillPlugins();
    resize(DisplayScale::proportional(nDPI, 640), DisplayScale::proportional(nDPI, 400));
}

void AboutDialog::fillPlugins()
{
    m_pPlugins->setAccessibleName(tr("Plug-ins"));
    m_pPlugins->setRootIsDecorated(false);
    m_pPlugins->setUniformRowHeights(false);
    m_pPlugins->setWordWrap(true);
    m_pPlugins->setHeaderLabels({tr("Plug-in"), tr("Version"), tr("State"), tr("Error")});
    const auto plugins = PluginManager::plugins();
    QStringList names;
    for (const PluginDescription &plugin : plugins) {
        names.append(plugin.spec.name);
        const QString strErrors = errorsOf(plugin.spec.name, plugin.reason).join(QLatin1Char('\n'));
        auto *pItem = new QTreeWidgetItem(m_pPlugins,
            {plugin.spec.name, ExtensionSystem::versionText(plugin.spec.version), stateText(plugin.state),
                strErrors});
        pItem->setToolTip(0, plugin.spec.file);
        pItem->setToolTip(3, strErrors);
    }
    const auto errors = PluginManager::errors();
    // A plug-in whose metadata could not be read has errors, but is missing in the list above.
    for (const PluginError &error : errors) {
        if (!names.contains(error.plugin))
            new QTreeWidgetItem(m_pPlugins,
                {error.plugin.isEmpty() ? error.file : error.plugin, QString(),
                    stateText(PluginState::Failed), error.message});
    }
    for (int i = 0; i < 3; ++i)
        m_pPlugins->resizeColumnToContents(i);
}

QString AboutDialog::text() const
{
    QString strResult = QStringLiteral("Kelpa Studio\n") + versionsText() + QLatin1Char('\n');
    for (int i = 0; i < m_pPlugins->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *pItem = m_pPlugins->topLevelItem(i);
        QStringList columns;
        for (int nColumn = 0; nColumn < pItem->columnCount(); ++nColumn)
            columns.append(pItem->text(nColumn));
        strResult += columns.join(QLatin1String("\t")).trimmed() + QLatin1Char('\n');
    }
    return strResult;
}
