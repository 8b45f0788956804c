// SPDX-License-Identifier: MIT
// Loads the module with the browser engine.
#include "ui/webengine_p.h"

#include "ui/webview.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QPluginLoader>
#include <private/qopenglcontext_p.h>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

Q_LOGGING_CATEGORY(lcWeb, "kelpa.core.web")

// The engine's own sandbox needs a user that is not root, and a program that asks for nothing else.
void allowRoot()
{
#ifdef Q_OS_UNIX
    constexpr char pFlags[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    const QByteArray flags = qgetenv(pFlags);
    if (::geteuid() == 0 && !flags.contains("--no-sandbox"))
        qputenv(pFlags, (flags + " --no-sandbox").trimmed());
#endif
}

// Without a graphics card OpenGL is emulated, and slower by far than the engine when it draws by itself. What
// is overlooked here costs only time.
bool hasGraphicsCard()
{
#ifdef Q_OS_LINUX
    return QFile::exists(QStringLiteral("/dev/dri")) || QFile::exists(QStringLiteral("/dev/nvidiactl"))
        || QFile::exists(QStringLiteral("/dev/dxg"));
#else
    return true;
#endif
}

// The engine draws into contexts that share with this one. It is normally made before the application
// object, at every start; made here, only who needs the engine pays for it. One that is
// not valid tells the module to do without; the engine misses it when there is none.
void shareContexts()
{
    if (qt_gl_global_share_context())
        return;
    auto *pContext = new QOpenGLContext;
    if (!hasGraphicsCard() || !pContext->create())
        qCDebug(lcWeb, "There is no OpenGL context to share");
    qt_gl_set_global_share_context(pContext);
    qAddPostRoutine([] {
        delete qt_gl_global_share_context();
        qt_gl_set_global_share_context(nullptr);
    });
}

#if defined(Q_OS_WIN) && defined(QT_DEBUG)
const QString s_helper = QStringLiteral("/QtWebEngineProcessd.exe");
#elif defined(Q_OS_WIN)
const QString s_helper = QStringLiteral("/QtWebEngineProcess.exe");
#else
const QString s_helper = QStringLiteral("/QtWebEngineProcess");
#endif
const QString s_data = QStringLiteral("/qtwebengine_resources.pak");

// The places where a part is not, if it is nowhere. The engine looks only where the environment tells it to,
// if that does.
QString missing(
    const char *pVariable, const QString &strInNamed, QStringList places, bool (QFileInfo::*isUsable)() const)
{
    if (const QString strNamed = qEnvironmentVariable(pVariable); !strNamed.isEmpty())
        places = {strNamed + strInNamed};
    const bool bFound = std::any_of(places.cbegin(), places.cend(), [&](const QString &strFile) {
        const QFileInfo file(strFile);
        return file.isFile() && (file.*isUsable)();
    });
    return bFound ? QString() : places.join(QLatin1String(", "));
}

// Of what the engine would end the whole program for. In the bundles of macOS it lies elsewhere.
QString missingPart()
{
#ifdef Q_OS_MACOS
    return {};
#else
    const QString strProgram = QCoreApplication::applicationDirPath();
    const QString strHelpers = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath);
    const QString strData = QLibraryInfo::path(QLibraryInfo::DataPath) + QLatin1String("/resources");
    const QString strMissing = missing("QTWEBENGINEPROCESS_PATH", {},
        {strHelpers + s_helper, strProgram + s_helper}, &QFileInfo::isExecutable);
    return !strMissing.isEmpty() ? strMissing
                                 : missing("QTWEBENGINE_RESOURCES_PATH", s_data,
                                     {strData + s_data, strProgram + s_data}, &QFileInfo::isReadable);
#endif
}

WebViewFactory *loadModule()
{
    if (const QString strMissing = missingPart(); !strMissing.isEmpty()) {
        qCWarning(lcWeb, "Web pages cannot be shown: there is no %s", qUtf8Printable(strMissing));
        return nullptr;
    }
    allowRoot();
    shareContexts();
    QPluginLoader loader(QStringLiteral("web/webview"));
    auto *pFactory = qobject_cast<WebViewFactory *>(loader.instance());
    if (!pFactory)
        qCWarning(lcWeb, "Web pages cannot be shown: %s", qUtf8Printable(loader.errorString()));
    return pFactory;
}

} // namespace

WebViewFactory *webEngineFactory()
{
    static WebViewFactory *s_pFactory = loadModule();
    return s_pFactory;
}
