// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class IMainMdiArea;
class WebView;

/// Covers the area of documents with the home page. The browser engine is loaded when this widget has been
/// painted for the first time; until then, and until the page paints, it shows its background. A page that
/// fails is loaded once more, then the recent projects are listed without it. Child of the area; the plug-in
/// deletes it. GUI thread only.
class WelcomeWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WelcomeWidget)

public:
    /// Hidden: the main window shows it when there is no editor.
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
    WebView *m_pView = nullptr; ///< until it failed twice
    QWidget *m_pContent = nullptr; ///< the view or the list
    bool m_bPainted = false;
    bool m_bUpdating = false;
    bool m_bRecovering = false;
    bool m_bRetried = false;
};
