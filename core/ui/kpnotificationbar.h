// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QFrame>
#include <QPointer>

#include <memory>

namespace Ui {
class KPNotificationBar;
}

/// One line under the menus that tells the user something without a dialog, until the user closes it or its
/// owner hides it. The title bar owns it; GUI thread only. Screen readers are told of each message by an
/// alert; one that also reads alerts as they appear may read the first message of a hidden bar twice.
///
///     MainWindow *pWindow = ICore::getMainWindow();
///     pWindow->showNotification(tr("The server is gone."), KPNotificationBar::Warning, tr("Connect"), true);
///     connect(pWindow->getNotificationBar(), &KPNotificationBar::buttonClicked, this, &MyPlugin::retry);
class CORE_EXPORT KPNotificationBar : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPNotificationBar)

public:
    // The fixed underlying type makes any int a valid value; those without a name look like Info.
    enum Type : int {
        Info = 0,
        Warning = 1,
    };

    explicit KPNotificationBar(QWidget *pParent);
    ~KPNotificationBar() override;

    /// Shows `text` as plain text. Without `buttonText` there is no button; if `closable` is false, only
    /// hide() ends the message. Disconnects everything from buttonClicked(): connect after this call.
    void show(const QString &text, Type type, const QString &buttonText, bool closable);

    /// Loads the icons again for the present display scale.
    void updateIcons();

    /// The message that was shown last.
    [[nodiscard]] QString text() const;

signals:
    void buttonClicked();

protected:
    void keyPressEvent(QKeyEvent *pEvent) override;
    void hideEvent(QHideEvent *pEvent) override;

private:
    class Alert;

    void announce();
    void watchFocus(QWidget *pOld, QWidget *pNow);

    Type m_type = Info;
    QPointer<QWidget> m_pFocusBefore; // had the focus before it came into the bar
    const std::unique_ptr<Ui::KPNotificationBar> m_pUi;
};
