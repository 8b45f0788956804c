// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QMdiArea>
#include <QPointer>

/// The main window's central widget: every open document is a tabbed sub-window, and without any the welcome
/// widget is shown in their place. Owned by the main window; GUI thread only.
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

public slots:
    /// Takes the path out of the list of recent projects, and out of menu and page.
    void removeFile(const QString &strFile);

signals:
    /// The list of recent projects is to be fetched again.
    void resetRecentFiles();

private:
    QPointer<QWidget> m_pWelcomeWidget;
};
