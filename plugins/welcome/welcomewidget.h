// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class IMainMdiArea;
class WebView;

/// Covers the area of documents with the home page. The browser engine is loaded after the first painting of
/// this widget; it shows its background until the page paints. If the page fails, it is loaded once more; if
/// it fails again, a RecentList takes its place. Child of the area; the plug-in deletes it. GUI thread only.
class WelcomeWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomeWidget)

public:
    /// Starts hidden. The main window shows it while there is no editor.
    explicit WelcomeWidget(IMainMdiArea *pArea);

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

protected:
    void paintEvent(QPaintEvent *pEvent) override;
    void showEvent(QShowEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;

private:
    void createView();
    void updatePage();
    void updateLater();
    void onLoaded(bool bOk);
    void recover();
    void showList();
    void takeFocus();

    IMainMdiArea *m_pArea;
    WebView *m_pView = nullptr; ///< null before the first painting, and after the page failed twice
    QWidget *m_pContent = nullptr; ///< the view or the list
    bool m_bPainted = false;
    bool m_bUpdating = false;
    bool m_bRecovering = false;
    bool m_bRetried = false;
};
