// SPDX-License-Identifier: MIT
#include "ui/elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <QtMath>

namespace {

QString oneLine(QString strText)
{
    for (const QChar lineEnd : {QChar(u'\n'), QChar(u'\r'), QChar(0x2028), QChar(0x2029)})
        strText.replace(lineEnd, QLatin1Char(' '));
    return strText;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *pParent)
    : QLabel(pParent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeFor(const QString &strLine) const
{
    const QMargins margins = contentsMargins();
    return QSize(qCeil(QFontMetricsF(font()).horizontalAdvance(strLine)), fontMetrics().height())
        + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize ElidedLabel::sizeHint() const
{
    return sizeFor(oneLine(text()));
}

QSize ElidedLabel::minimumSizeHint() const
{
    return sizeFor(QStringLiteral("\u2026"));
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(oneLine(text()), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent *pEvent)
{
    if (pEvent->type() != QEvent::ToolTip || shownText() == oneLine(text()))
        return QLabel::event(pEvent);
    // A tool tip shows text that looks like HTML as HTML, and the text of this label is plain.
    const QString strTip = QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped());
    QToolTip::showText(static_cast<QHelpEvent *>(pEvent)->globalPos(), strTip, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    const QString strText = shownText();
    const int nAlign = int(QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::AlignAbsolute);
    // The text is drawn in its own direction: an untranslated one may stand in a right-to-left window.
    const int nDirection = strText.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), nAlign | nDirection | Qt::TextSingleLine, palette(),
        isEnabled(), strText, foregroundRole());
}
