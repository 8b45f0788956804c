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

// The framework has no part in the choice, and the core, which has, is not loaded yet.
QLocale chosenLocale()
{
    const QSettings *pSettings = ExtensionSystem::PluginManager::settings();
    const QString strId =
        pSettings ? pSettings->value(QStringLiteral("Kelpa/Language")).toString() : QString();
    return QLocale(strId.isEmpty() ? QStringLiteral("en_US") : strId);
}

// False, and nothing is installed, when nothing could be loaded.
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

// The last one installed is asked first, so that ours can fill what Qt's leaves out.
void installCatalogues()
{
    const QLocale locale = chosenLocale();
    const QString strFolder = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    if (!installQt(locale, strFolder))
        installQt(locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install([&](QTranslator &translator) {
        return translator.load(QStringLiteral("app_%1.qm").arg(locale.name()), strFolder);
    });
    // What only prints its help has nothing to lay out, and Qt would tell an object that is not there.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(locale.textDirection());
}
