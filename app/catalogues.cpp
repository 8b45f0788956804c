// SPDX-License-Identifier: MIT
#include "catalogues.h"

#include <extensionsystem/pluginmanager.h>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <memory>

namespace {

// Reads the setting itself: the language manager belongs to the core, a plug-in that is not loaded yet.
QLocale chosenLocale()
{
    const QSettings *pSettings = ExtensionSystem::PluginManager::settings();
    const QString strId =
        pSettings ? pSettings->value(QStringLiteral("Kelpa/Language")).toString() : QString();
    return QLocale(strId.isEmpty() ? QStringLiteral("en_US") : strId);
}

// Returns false, with nothing installed, if `load` finds no catalog.
template <typename Load>
bool install(Load load)
{
    auto pTranslator = std::make_unique<QTranslator>();
    if (!load(*pTranslator))
        return false;
    pTranslator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(pTranslator.release());
}

bool installQt(const QLocale &locale, const QString &strFolder)
{
    return install([&](QTranslator &translator) {
        return translator.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), strFolder);
    });
}

} // namespace

// Qt searches the catalog that was installed last first, so our texts win, and Qt's own fill the gaps.
void installCatalogues()
{
    const QLocale locale = chosenLocale();
    const QString strFolder = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    if (!installQt(locale, strFolder))
        installQt(locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install([&](QTranslator &translator) {
        return translator.load(QStringLiteral("app_%1.qm").arg(locale.name()), strFolder);
    });
    // A program that only prints its help has no QGuiApplication. In Qt 6.4.2 setLayoutDirection() would then
    // crash on a change, because it calls QGuiApplicationPrivate::self without a check for null.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(locale.textDirection());
}
