// SPDX-License-Identifier: MIT
#pragma once

#include <ui/webview.h>

class QWebEngineView;

/// A view with the browser engine behind it, and a profile of its own that keeps nothing.
class EngineView : public WebView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EngineView)

public:
    EngineView(WebAccess access, QWidget *pParent);
    ~EngineView() override;

    void load(const QUrl &url) override;
    void setHtml(const QString &strHtml) override;
    void setZoomFactor(double fFactor) override;
    void setPageData(const QJsonObject &pageData) override;
    void setBackground(const QColor &color) override;

private:
    void beginLoading();
    void onLoaded(bool bOk);
    void announcePageData();

    QWebEngineView *m_pView;
    QString m_strPageData; ///< the script that sets it
    double m_fZoom = 1;
    bool m_bLoading = false;
    bool m_bLoaded = false;
    bool m_bDataCameLate = false;
};

class EngineFactory : public QObject, public WebViewFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ORVEN.Kelpa.WebViewFactory")
    Q_DISABLE_COPY_MOVE(EngineFactory)
    Q_INTERFACES(WebViewFactory)

public:
    /// Chooses how all views draw: with OpenGL, or without when the program has no valid context to share.
    EngineFactory();

    [[nodiscard]] WebView *create(WebAccess access, QWidget *pParent) override;
};
