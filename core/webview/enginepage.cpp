// SPDX-License-Identifier: MIT
#include "enginepage.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <updater/updatetexts.h>

namespace {

Q_LOGGING_CATEGORY(lcWeb, "kelpa.core.web")

using Attribute = QWebEngineSettings::WebAttribute;

constexpr struct
{
    Attribute attribute;
    bool bOn;
} s_attributes[] = {
    {Attribute::PluginsEnabled, false},
    {Attribute::PdfViewerEnabled, false},
    {Attribute::LocalContentCanAccessFileUrls, false},
    {Attribute::JavascriptCanOpenWindows, false},
    {Attribute::JavascriptCanAccessClipboard, false},
    {Attribute::FullScreenSupportEnabled, false},
    {Attribute::ScreenCaptureEnabled, false},
    {Attribute::NavigateOnDropEnabled, false},
    {Attribute::AllowRunningInsecureContent, false},
    {Attribute::FocusOnNavigationEnabled, false},
};

/// Stands for a window that a link wants: what it would have loaded goes the way of links.
class LinkCatcher : public QWebEnginePage
{
public:
    explicit LinkCatcher(EnginePage *pOwner)
        : QWebEnginePage(pOwner->profile(), pOwner)
        , m_pOwner(pOwner)
    {
    }

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool bMainFrame) override
    {
        Q_UNUSED(type)
        Q_UNUSED(bMainFrame)
        emit m_pOwner->linkActivated(url);
        deleteLater();
        return false;
    }

private:
    EnginePage *const m_pOwner;
};

} // namespace

RequestFilter::RequestFilter(WebAccess access, QObject *pParent)
    : QWebEngineUrlRequestInterceptor(pParent)
    , m_access(access)
{
}

// Text handed over by the program comes as a data URL.
bool RequestFilter::allows(WebAccess access, const QUrl &url)
{
    static const QStringList s_web {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("data"),
        QStringLiteral("blob"), QStringLiteral("about")};
    if (access == WebAccess::Web)
        return s_web.contains(url.scheme());
    return url.scheme() == QLatin1String("qrc")
        || (url.scheme() == QLatin1String("ws") && url.host() == QLatin1String("127.0.0.1"));
}

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    const bool bAllowed = allows(m_access, info.requestUrl());
    if (!bAllowed)
        info.block(true);
    emit requested(info.requestUrl(), bAllowed);
}

EnginePage::EnginePage(WebAccess access, QWebEngineProfile *pProfile, QObject *pParent)
    : QWebEnginePage(pProfile, pParent)
    , m_access(access)
{
    for (const auto &setting : s_attributes)
        settings()->setAttribute(setting.attribute, setting.bOn);
    settings()->setAttribute(Attribute::LocalContentCanAccessRemoteUrls, access == WebAccess::OwnPages);
}

bool EnginePage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool bMainFrame)
{
    const bool bAccepted = acceptAddress(url, type, bMainFrame);
    if (bMainFrame)
        m_bHeldBack = !bAccepted;
    return bAccepted;
}

bool EnginePage::acceptAddress(const QUrl &url, NavigationType type, bool bMainFrame)
{
    if (type == NavigationTypeLinkClicked && url.adjusted(QUrl::RemoveFragment) != m_current) {
        emit linkActivated(url);
        return false;
    }
    if (!RequestFilter::allows(m_access, url))
        return false;
    if (!bMainFrame)
        return true;
    if (type == NavigationTypeRedirect && !acceptRedirect(url))
        return false;
    if (type != NavigationTypeRedirect)
        m_nRedirects = 0;
    m_current = url.adjusted(QUrl::RemoveFragment);
    return true;
}

bool EnginePage::acceptRedirect(const QUrl &url)
{
    const QString strObjection = UpdateTexts::redirectObjection(m_current, url, m_nRedirects++);
    if (!strObjection.isEmpty())
        qCWarning(lcWeb, "%s: %s", qUtf8Printable(m_current.toDisplayString()), qUtf8Printable(strObjection));
    return strObjection.isEmpty();
}

QWebEnginePage *EnginePage::createWindow(WebWindowType)
{
    return new LinkCatcher(this);
}

QStringList EnginePage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

void EnginePage::javaScriptAlert(const QUrl &, const QString &) { }

bool EnginePage::javaScriptConfirm(const QUrl &, const QString &)
{
    return false;
}

bool EnginePage::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *)
{
    return false;
}

void EnginePage::javaScriptConsoleMessage(
    JavaScriptConsoleMessageLevel, const QString &strText, int nLine, const QString &strSource)
{
    // The engine names addresses that fail, and what follows the "?" may be a secret.
    static const QRegularExpression s_query(QStringLiteral("\\?[^\\s'\"]+"));
    const QString strShown = QString(strText).replace(s_query, QStringLiteral("?..."));
    qCDebug(lcWeb, "%s:%d: %s", qUtf8Printable(strSource), nLine, qUtf8Printable(strShown));
}
