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

// The engine ends the program of a root user unless its sandbox is off (see https://crbug.com/638180).
void allowRoot()
{
#ifdef Q_OS_UNIX
    constexpr char pFlags[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    const QByteArray flags = qgetenv(pFlags);
    if (::geteuid() == 0 && !flags.contains("--no-sandbox"))
        qputenv(pFlags, (flags + " --no-sandbox").trimmed());
#endif
}

// Without a graphics card OpenGL is emulated, which is far slower than the engine's drawing without OpenGL. A
// card that is not found here costs only speed.
bool hasGraphicsCard()
{
#ifdef Q_OS_LINUX
    return QFile::exists(QStringLiteral("/dev/dri")) || QFile::exists(QStringLiteral("/dev/nvidiactl"))
        || QFile::exists(QStringLiteral("/dev/dxg"));
#else
    return true;
#endif
}

// The engine draws into contexts that share with a global one. With Qt::AA_ShareOpenGLContexts the
// application makes that at every start; made here, it costs nothing until a page is shown. An invalid
// context tells the module to draw without OpenGL; without any, Qt WebEngine 6.4.2 warns.
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

// The places that were searched, if the part is in none of them, otherwise an empty text. If the environment
// variable is set, the engine looks only where it says.
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

// Looks for the files without which the engine ends the program. A bundle of macOS keeps them elsewhere.
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
