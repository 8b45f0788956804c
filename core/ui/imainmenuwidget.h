// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QPoint>
#include <QWidget>

class IconLabel;
class KPNotificationBar;
class MainWindow;
class QMenuBar;
class QStyleOptionTitleBar;
class QStylePainter;
class QVBoxLayout;
class TitleText;

/// The top strip of the frameless main window: a row with icon, menus, title and buttons, and the
/// notification bar below. The free part of the row drags the window. Owned by the window; GUI thread only.
///
/// The title to show is this widget's own window title. The menu bar covers the strip on which the style
/// paints it, so it is painted again in the free part of the row. The top-level window gets the same title.
class CORE_EXPORT IMainMenuWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IMainMenuWidget)

public:
    IMainMenuWidget(MainWindow *pParent, const QString &strTitle, const QIcon &icon);

    /// Takes ownership of the menu bar and puts icon and buttons into its corners. Call it only once.
    void setMenuBar(QMenuBar *pMenuBar);

    [[nodiscard]] KPNotificationBar *getNotificationBar() const { return m_pNotificationBar; }

    /// Whether the point, in widget coordinates, is on the free part of the menu bar, which drags the window.
    [[nodiscard]] virtual bool isTitleBarArea(int x, int y) const;

public slots:
    void updateWindowFilePath(const QString &fileName);
    void updateModified(bool bIsModified);

    /// Gives the button "maximizeButton" icon and tool tip for what a click would do.
    void updateMaximized(bool bIsMaximized);

    /// These four act on the top-level window instead of this widget.
    void showMinimized() { window()->showMinimized(); }
    void showMaximized() { window()->showMaximized(); }
    void showNormal() { window()->showNormal(); }
    bool close() { return window()->close(); }

    /// Loads the icons again for the present display scale and fits the row to them.
    void onDPIChanged();

protected:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;
    void paintEvent(QPaintEvent *pEvent) override;
    void mousePressEvent(QMouseEvent *pEvent) override;
    void mouseMoveEvent(QMouseEvent *pEvent) override;
    void mouseReleaseEvent(QMouseEvent *pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *pEvent) override;
    void contextMenuEvent(QContextMenuEvent *pEvent) override;

private:
    void createButtons();
    void createShortcuts();
    void dressButton(const char *pName, const QString &strToolTip, const QString &strIcon);
    void openFirstMenu();
    void openWindowMenu(const QPoint &globalPosition, bool bByKeyboard);
    bool passMouseEvent(QMouseEvent *pEvent);
    void drawTitle(QStylePainter &painter, const QStyleOptionTitleBar &option) const;
    [[nodiscard]] int menuTitleHeight() const;
    [[nodiscard]] QStyleOptionTitleBar titleBarOption() const;

    QVBoxLayout *m_pLayout;
    QMenuBar *m_pMenuBar = nullptr;
    KPNotificationBar *m_pNotificationBar;
    IconLabel *m_pIconLabel = nullptr;
    TitleText *m_pTitleText = nullptr;
    QPoint m_pressPosition;
    QPoint m_windowPosition;
    int m_nRestoredWidth = 0; // valid with m_bRestoredByDrag
    bool m_bRestoredByDrag = false;
    bool m_bDragging = false;
};
