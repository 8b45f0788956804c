// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QFrame>
#include <QPointer>

#include <memory>

namespace Ui {
class KPNotificationBar;
}

/// One line under the menus that tells the user something without a dialog. The title bar owns it; GUI thread
/// only. It stays until the user closes it or its owner hides it. Screen readers are told of each message by
/// an alert; one that also reads alerts as they appear may read the first message of a hidden bar twice.
class CORE_EXPORT KPNotificationBar : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPNotificationBar)

public:
    // With a type of its own, so that plug-ins may pass other values: they look like Info.
    enum Type : int {
        Info = 0,
        Warning = 1,
    };

    explicit KPNotificationBar(QWidget *pParent);
    ~KPNotificationBar() override;

    /// Shows a plain text. An empty `buttonText` leaves the button away; without `closable` only hide() ends
    /// it. Whoever was connected to buttonClicked() no longer is: connect after this call.
    void show(const QString &text, Type type, const QString &buttonText, bool closable);

    /// Loads the icons again, for the scale that the display has now.
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
    QPointer<QWidget> m_pFocusBefore; // where it came from into the bar
    const std::unique_ptr<Ui::KPNotificationBar> m_pUi;
};
