// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QColor>
#include <QJsonObject>
#include <QUrl>
#include <QWidget>

/// What a page in a WebView may do beside showing what the web offers.
enum class WebAccess {
    Web, ///< only http and https; links open in the desktop's browser
    OwnPages ///< only the program's resources ("qrc:") and web sockets of this machine: nothing leaves it
};

/// A view of a web page, made by WebViewLoader with the browser engine behind it or without, and owned by its
/// parent. Nothing is kept between views, no page reads local files or runs plug-ins, and only http and https
/// links are opened, in the desktop's browser. GUI thread only.
class CORE_EXPORT WebView : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WebView)

public:
    explicit WebView(QWidget *pParent);
    ~WebView() override;

    /// Loads the page; loadFinished() follows from the event loop, also if the URL is refused.
    virtual void load(const QUrl &url) = 0;

    /// Shows this HTML text, which has no address of its own; loadFinished() follows.
    virtual void setHtml(const QString &strHtml) = 0;

    /// Scales the page; 1 is its size at 96 DPI.
    virtual void setZoomFactor(double fFactor) = 0;

    /// Sets `window.pageData` for the scripts of each page before the first of them runs. A page that is
    /// loaded already gets the new data and then the event "pagedata" on its window.
    virtual void setPageData(const QJsonObject &pageData) = 0;

    /// The color to show until the page paints.
    virtual void setBackground(const QColor &color) = 0;

signals:
    /// `ok` is false also if a page was loaded and its process ended. A page that only tried to go to an
    /// address that it must not open stays, and nothing is emitted.
    void loadFinished(bool ok);

    /// The page gave itself a title.
    void titleChanged(const QString &strTitle);

    /// The page, or some part of it, asked for `url`, which is fetched only if `bAllowed` is true.
    void requested(const QUrl &url, bool bAllowed);

protected:
    /// Hands http and https links to the desktop; all others are ignored.
    static void openOutside(const QUrl &url);
};

/// The interface of the module with the browser engine, which is a Qt plug-in.
class WebViewFactory
{
public:
    virtual ~WebViewFactory() = default;

    /// Makes a view that `pParent` owns; null if the engine does not start.
    [[nodiscard]] virtual WebView *create(WebAccess access, QWidget *pParent) = 0;
};

Q_DECLARE_INTERFACE(WebViewFactory, "com.ORVEN.Kelpa.WebViewFactory")
