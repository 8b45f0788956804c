// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QColor>
#include <QJsonObject>
#include <QUrl>
#include <QWidget>

/// What a page in a WebView may do beside showing what the web offers.
enum class WebAccess {
    Web, ///< http and https only; links leave for the desktop's browser
    OwnPages ///< only the program's resources ("qrc:") and web sockets of this machine: nothing leaves it
};

/// A view of a web page: made by WebViewLoader, with the browser engine behind it or without. Nothing is kept
/// between views, no page reads local files or runs plug-ins, and only http and https links are opened, in
/// the desktop's browser. GUI thread only.
class CORE_EXPORT WebView : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WebView)

public:
    explicit WebView(QWidget *pParent);
    ~WebView() override;

    /// loadFinished() follows, also when the URL is refused.
    virtual void load(const QUrl &url) = 0;

    /// Shows this text; it has no address of its own. loadFinished() follows.
    virtual void setHtml(const QString &strHtml) = 0;

    /// 1 is the size at 96 DPI.
    virtual void setZoomFactor(double fFactor) = 0;

    /// What scripts of a page find in `window.pageData`, before the first of them runs. A page that is there
    /// already gets the event "pagedata" on its window.
    virtual void setPageData(const QJsonObject &pageData) = 0;

    /// Until the page paints.
    virtual void setBackground(const QColor &color) = 0;

signals:
    /// False also when a page that was there is gone, because the process that showed it ended; not when it
    /// wanted to go where it must not.
    void loadFinished(bool ok);

    /// The page gave itself a title.
    void titleChanged(const QString &strTitle);

    /// The page, or some part of it, asked for this; not allowed is not fetched.
    void requested(const QUrl &url, bool bAllowed);

protected:
    /// Hands http and https links to the desktop; all others are ignored.
    static void openOutside(const QUrl &url);
};

/// What the module with the engine offers; found through the plug-in mechanism of Qt.
class WebViewFactory
{
public:
    virtual ~WebViewFactory() = default;

    /// Null when the engine does not come up.
    [[nodiscard]] virtual WebView *create(WebAccess access, QWidget *pParent) = 0;
};

Q_DECLARE_INTERFACE(WebViewFactory, "com.ORVEN.Kelpa.WebViewFactory")
