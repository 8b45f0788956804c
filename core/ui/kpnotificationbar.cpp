// SPDX-License-Identifier: MIT
#include "ui/kpnotificationbar.h"

#include "displayscale.h"
#include "iui.h"
#include "ui_kpnotificationbar.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

// Gives screen readers the shown texts as name and description of the alert. As properties of the widget they
// would report a changed name beside each alert, and the message would be read twice.
class KPNotificationBar::Alert : public QAccessibleWidget
{
public:
    explicit Alert(KPNotificationBar *pBar)
        : QAccessibleWidget(pBar, QAccessible::AlertMessage)
        , m_pMessage(pBar->m_pUi->m_pMessageLabel)
        , m_pKind(pBar->m_pUi->m_pIconLabel)
    {
    }

    static QAccessibleInterface *create(const QString &strClass, QObject *pObject)
    {
        const bool bBar = strClass == QLatin1String(staticMetaObject.className());
        return bBar ? new Alert(static_cast<KPNotificationBar *>(pObject)) : nullptr;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_pMessage)
            return m_pMessage->text();
        if (kind == QAccessible::Description && m_pKind)
            return m_pKind->accessibleName();
        return QAccessibleWidget::text(kind);
    }

private:
    QPointer<QLabel> m_pMessage;
    QPointer<QLabel> m_pKind;
};

KPNotificationBar::KPNotificationBar(QWidget *pParent)
    : QFrame(pParent)
    , m_pUi(new Ui::KPNotificationBar)
{
    m_pUi->setupUi(this);
    // Mouse events must not reach the parent: it is the title bar and would drag the window.
    setAttribute(Qt::WA_NoMousePropagation);
    setAutoFillBackground(true);
    connect(m_pUi->m_pCloseButton, &QToolButton::clicked, this, &KPNotificationBar::hide);
    connect(m_pUi->m_pButton, &QPushButton::clicked, this, &KPNotificationBar::buttonClicked);
    connect(qApp, &QApplication::focusChanged, this, &KPNotificationBar::watchFocus);
    // Qt 6.4.2 ignores a factory that is installed already, so each bar may do this.
    QAccessible::installFactory(Alert::create);
}

KPNotificationBar::~KPNotificationBar() = default;

QString KPNotificationBar::text() const
{
    return m_pUi->m_pMessageLabel->text();
}

void KPNotificationBar::show(const QString &text, Type type, const QString &buttonText, bool closable)
{
    m_type = type;
    updateIcons();
    m_pUi->m_pIconLabel->setAccessibleName(type == Warning ? tr("Warning") : tr("Information"));
    m_pUi->m_pMessageLabel->setText(text);
    m_pUi->m_pMessageLabel->setVisible(!text.isEmpty());
    m_pUi->m_pButton->setText(buttonText);
    m_pUi->m_pButton->setVisible(!buttonText.isEmpty());
    m_pUi->m_pCloseButton->setVisible(closable);
    disconnect(this, &KPNotificationBar::buttonClicked, nullptr, nullptr);
    QFrame::show();
    announce();
}

void KPNotificationBar::updateIcons()
{
    const int nIcon = DisplayScale::wholeFactor(DisplayScale::logicalDpi(), 16);
    m_pUi->m_pIconLabel->setPixmap(
        IUi::getPixmap(m_type == Warning ? QStringLiteral("warning") : QStringLiteral("info"), 2, false));
    m_pUi->m_pCloseButton->setIcon(IUi::getIcon(QStringLiteral("close")));
    m_pUi->m_pCloseButton->setIconSize({nIcon, nIcon});
}

void KPNotificationBar::watchFocus(QWidget *pOld, QWidget *pNow)
{
    if (pOld && isAncestorOf(pNow) && !isAncestorOf(pOld))
        m_pFocusBefore = pOld;
}

// Gives the focus back to where it came from; otherwise Qt gives it to the next widget in the window.
void KPNotificationBar::hideEvent(QHideEvent *pEvent)
{
    if (isHidden() && m_pFocusBefore && isAncestorOf(QApplication::focusWidget()))
        m_pFocusBefore->setFocus();
    QFrame::hideEvent(pEvent);
}

// Called for each message, because a bar that is visible already does not appear again. The focus stays.
void KPNotificationBar::announce()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, m_pUi->m_pMessageLabel->text());
#else
    QAccessibleEvent event(this, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&event);
}

void KPNotificationBar::keyPressEvent(QKeyEvent *pEvent)
{
    if (pEvent->matches(QKeySequence::Cancel) && !m_pUi->m_pCloseButton->isHidden())
        hide();
    else
        QFrame::keyPressEvent(pEvent);
}
