// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class IMainMdiArea;
class QWebChannel;

/// What the welcome page can reach of the program: the slots of this object, which is "kpwelcome" on the web
/// channel. docs/security.md tells who may call them; add no slot that these must not call. It is a child of
/// the area, which answers most calls, and takes itself off the channel when it dies. GUI thread only.
class CORE_EXPORT KPHTMLExposingWelcome : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPHTMLExposingWelcome)

public:
    explicit KPHTMLExposingWelcome(IMainMdiArea *pMdiArea);
    ~KPHTMLExposingWelcome() override;

signals:
    /// Tells the page to fetch the list of recent projects again.
    void resetRecentFiles();

public slots:
    /// These do the same as the slots of IMainMdiArea with their names.
    void showInExplorer(const QString &strFileName);
    void removeFile(const QString &strFile);
    static QStringList getRecentFileList();
    static void callbackTunnelAsync(const QString &cmd);
    static QString callbackAsyncfromJS(const QString &cmd, const QString &str);
    void openURL(const QString &strURL);
    void openFile(const QString &strFile);

    /// Addresses of the product's pages by name: "homepage", "community", "demo", "youtube", "facebook".
    static QVariantMap getResourceUrls();

private:
    QPointer<IMainMdiArea> m_pMdiArea;
    QPointer<QWebChannel> m_pChannel;
};
