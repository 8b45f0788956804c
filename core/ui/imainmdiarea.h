// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QMdiArea>
#include <QPointer>
#include <QStringList>

/// The main window's central widget: every open document is a tabbed sub-window, and without any the welcome
/// widget is shown in their place. It puts the welcome page's bridge on the web channel, where what the page
/// asks for ends up in the slots here. Owned by the main window; GUI thread only.
class CORE_EXPORT IMainMdiArea : public QMdiArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IMainMdiArea)

public:
    explicit IMainMdiArea(QWidget *pParent);
    ~IMainMdiArea() override;

    /// Null until another plug-in supplies one, and after it is gone. Not owned.
    [[nodiscard]] QWidget *getWelcomeWidget() const { return m_pWelcomeWidget; }
    void setWelcomeWidget(QWidget *pWidget) { m_pWelcomeWidget = pWidget; }

signals:
    /// The list of recent projects is to be fetched again.
    void resetRecentFiles();

public slots:
    /// Opens the folder of the project on the desktop. Asks whether a project that is gone shall leave the
    /// list.
    void showInExplorer(const QString &strFileName);

    /// Takes the path out of the list of recent projects, and out of menu and page.
    void removeFile(const QString &strFile);
    static QStringList getRecentFileList();

    /// Triggers the command, also one that is disabled; a checkable one does not toggle. An unknown id does
    /// nothing.
    static void callbackTunnelAsync(const QString &cmd);

    /// "WelcomeScreen.getLocale" and "WelcomeScreen.getBuildNumber" have an answer, all else an empty one.
    /// `str` is for later queries.
    static QString callbackAsyncfromJS(const QString &cmd, const QString &str);

    /// Opens links that start with "http://" or "https://", written so, in the desktop's browser; any other
    /// is only shown to the user.
    void openURL(const QString &strURL);

    /// Opens a project here and any other file with what the desktop has for it. A relative name counts from
    /// the program's folder.
    void openFile(const QString &strFile);

private:
    QPointer<QWidget> m_pWelcomeWidget;
};
