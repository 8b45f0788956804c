// SPDX-License-Identifier: MIT
// Loads the module with the browser engine.
#include "ui/webengine_p.h"

#include "ui/webview.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QPluginLoader>
#include <private/qopenglcontext_p.h>

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

QString modulePath()
{
    const QStringList folders = QCoreApplication::libraryPaths();
    const QString strFile = QLatin1String("web/webview");
    for (const QString &strFolder : folders) {
        const QDir dir(strFolder + QLatin1String("/web"));
        const auto files = dir.entryInfoList({QStringLiteral("*webview*")}, QDir::Files);
        for (const QFileInfo &file : files) {
            if (QLibrary::isLibrary(file.fileName()))
                return file.absoluteFilePath();
        }
    }
    return strFile;
}

WebViewFactory *loadModule()
{
    allowRoot();
    shareContexts();
    QPluginLoader loader(modulePath());
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
