// SPDX-License-Identifier: MIT
#include "stageitem.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionGraphicsItem>

namespace {

constexpr int nMaxImageSide = 4096;

// Loads the image at twice its size on the stage, so that it stays sharp up to a zoom of 2. Null if it fails.
QImage loadImage(const StageElement &element)
{
    if (!QFileInfo(element.source).isFile())
        return {};
    QImageReader reader(element.source);
    const QSize size = reader.size();
    if (size.isEmpty())
        return {};
    const QSizeF wanted = QSizeF(element.width, element.height) * 2;
    const QSize bound = wanted.toSize().expandedTo({1, 1}).boundedTo({nMaxImageSide, nMaxImageSide});
    reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

Qt::Alignment alignment(const QString &strAlign)
{
    if (strAlign == QLatin1String("center"))
        return Qt::AlignHCenter;
    return strAlign == QLatin1String("right") ? Qt::AlignRight : Qt::AlignLeft;
}

} // namespace

StageItem::StageItem(const StageElement &element)
    : m_element(element)
{
    setFlags(ItemIsSelectable | ItemIsMovable);
    setPlace(element.x, element.y);
    setTransformOriginPoint(rect().center());
    setRotation(element.rotation);
    setOpacity(element.opacity);
    if (element.type == StageElement::Type::Image)
        m_image = loadImage(element);
}

void StageItem::setPlace(double x, double y)
{
    m_element.x = x;
    m_element.y = y;
    setPos(x, y);
}

QRectF StageItem::boundingRect() const
{
    const double dMargin = m_element.strokeWidth / 2 + 1;
    return rect().adjusted(-dMargin, -dMargin, dMargin, dMargin);
}

QPainterPath StageItem::shape() const
{
    QPainterPath path;
    if (m_element.type == StageElement::Type::Ellipse)
        path.addEllipse(rect());
    else
        path.addRect(rect());
    return path;
}

void StageItem::paint(QPainter *pPainter, const QStyleOptionGraphicsItem *pOption, QWidget *)
{
    pPainter->setRenderHint(QPainter::Antialiasing);
    pPainter->setRenderHint(QPainter::SmoothPixmapTransform);
    pPainter->setBrush(m_element.fill.isValid() ? QBrush(m_element.fill) : QBrush(Qt::NoBrush));
    const bool bStroke = m_element.stroke.isValid() && m_element.strokeWidth > 0;
    pPainter->setPen(bStroke ? QPen(m_element.stroke, m_element.strokeWidth) : QPen(Qt::NoPen));
    switch (m_element.type) {
    case StageElement::Type::Rectangle:
        pPainter->drawRect(rect());
        break;
    case StageElement::Type::Ellipse:
        pPainter->drawEllipse(rect());
        break;
    case StageElement::Type::Text:
        paintText(pPainter);
        break;
    case StageElement::Type::Image:
        paintImage(pPainter);
        break;
    }
    if (!(pOption->state & QStyle::State_Selected))
        return;
    QPen pen(pOption->palette.color(QPalette::Highlight), 2);
    pen.setCosmetic(true);
    pPainter->setPen(pen);
    pPainter->setBrush(Qt::NoBrush);
    pPainter->drawRect(rect());
}

void StageItem::paintText(QPainter *pPainter) const
{
    QFont font = pPainter->font();
    if (!m_element.fontFamily.isEmpty())
        font.setFamily(m_element.fontFamily);
    font.setPixelSize(qMax(1, qRound(m_element.fontSize)));
    font.setBold(m_element.bold);
    pPainter->setFont(font);
    pPainter->setPen(m_element.fill.isValid() ? m_element.fill : QColor(Qt::black));
    // Text on the stage keeps its direction when the program's windows run from right to left.
    pPainter->setLayoutDirection(Qt::LeftToRight);
    pPainter->drawText(rect(), Qt::TextWordWrap | alignment(m_element.align), m_element.text);
}

// Paints a crossed frame in place of an image that could not be loaded.
void StageItem::paintImage(QPainter *pPainter) const
{
    if (!m_image.isNull()) {
        pPainter->drawImage(rect(), m_image);
        return;
    }
    pPainter->setPen(QPen(Qt::gray, 0));
    pPainter->drawRect(rect());
    pPainter->drawLine(rect().topLeft(), rect().bottomRight());
    pPainter->drawLine(rect().topRight(), rect().bottomLeft());
}
