// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QMdiArea>
#include <QPointer>
#include <QStringList>

/// The main window's central widget: every open document is a tabbed sub-window, and without any the welcome
/// widget is shown in their place. It puts the bridge of the welcome page on the web channel, which calls the
/// slots here. Owned by the main window; GUI thread only.
class CORE_EXPORT IMainMdiArea : public QMdiArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IMainMdiArea)

public:
    explicit IMainMdiArea(QWidget *pParent);
    ~IMainMdiArea() override;

    /// Not owned. Null until a plug-in has set one, and again when that is deleted.
    [[nodiscard]] QWidget *getWelcomeWidget() const { return m_pWelcomeWidget; }
    void setWelcomeWidget(QWidget *pWidget) { m_pWelcomeWidget = pWidget; }

signals:
    /// Tells the welcome page to fetch the list of recent projects again.
    void resetRecentFiles();

public slots:
    /// Opens the folder of the project on the desktop. If the file does not exist, asks whether to remove it
    /// from the list of recent projects.
    void showInExplorer(const QString &strFileName);

    /// Takes the path out of the list of recent projects, the menu and the page; ignores an unknown one.
    void removeFile(const QString &strFile);
    static QStringList getRecentFileList();

    /// Triggers the command with the id `cmd`, even if it is disabled, and without toggling a checkable one.
    /// An unknown id does nothing.
    static void callbackTunnelAsync(const QString &cmd);

    /// Answers "WelcomeScreen.getLocale" with the language id and "WelcomeScreen.getBuildNumber" with the
    /// version, any other query with an empty text. `str` is reserved for later queries.
    static QString callbackAsyncfromJS(const QString &cmd, const QString &str);

    /// Opens the link in the desktop's browser if it begins with "http://" or "https://" in lower case; any
    /// other text is only shown to the user.
    void openURL(const QString &strURL);

    /// Opens a project here and hands any other file to the desktop; a missing one is told in a box. A
    /// relative name is resolved against the program's folder.
    void openFile(const QString &strFile);

private:
    QPointer<QWidget> m_pWelcomeWidget;
};
