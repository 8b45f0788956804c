// SPDX-License-Identifier: MIT
#pragma once

#include <ui/webview.h>

class QTextBrowser;

/// The view without a browser engine. It shows the HTML it is given and fetches nothing: load() fails.
class PlainWebView : public WebView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlainWebView)

public:
    explicit PlainWebView(QWidget *pParent);

    void load(const QUrl &url) override;
    void setHtml(const QString &strHtml) override;
    void setZoomFactor(double) override { } // the program's fonts already follow the display scale
    void setPageData(const QJsonObject &) override { } // no script runs here
    void setBackground(const QColor &color) override;

private:
    void finishLater(bool bOk);

    QTextBrowser *m_pBrowser;
};
