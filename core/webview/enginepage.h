// SPDX-License-Identifier: MIT
#pragma once

#include <ui/webview.h>

#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

/// Stops every request, of whatever part of a page, that the access does not cover. The profile owns it.
class RequestFilter : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RequestFilter)

public:
    RequestFilter(WebAccess access, QObject *pParent);
    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

    [[nodiscard]] static bool allows(WebAccess access, const QUrl &url);

signals:
    void requested(const QUrl &url, bool bAllowed);

private:
    const WebAccess m_access;
};

/// A page that stays where the program sent it: links lead outside, scripts open neither windows nor boxes,
/// no page asks for files, and redirects keep to the rules of all downloads.
class EnginePage : public QWebEnginePage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EnginePage)

public:
    EnginePage(WebAccess access, QWebEngineProfile *pProfile, QObject *pParent);

    /// Whether the page last wanted to go where it must not, and so is where it was.
    [[nodiscard]] bool isHeldBack() const { return m_bHeldBack; }

signals:
    /// The user followed a link.
    void linkActivated(const QUrl &url);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool bMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(
        FileSelectionMode mode, const QStringList &oldFiles, const QStringList &mimeTypes) override;
    void javaScriptAlert(const QUrl &origin, const QString &strText) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &strText) override;
    bool javaScriptPrompt(
        const QUrl &origin, const QString &strText, const QString &strDefault, QString *pResult) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &strText, int nLine,
        const QString &strSource) override;

private:
    [[nodiscard]] bool acceptAddress(const QUrl &url, NavigationType type, bool bMainFrame);
    [[nodiscard]] bool acceptRedirect(const QUrl &url);

    const WebAccess m_access;
    QUrl m_current; ///< last accepted in the main frame
    int m_nRedirects = 0;
    bool m_bHeldBack = false;
};
