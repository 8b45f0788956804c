// SPDX-License-Identifier: MIT
#include "imagefiles/lazyicon.h"

#include "imagefiles/pngimage.h"

#include <QDataStream>
#include <QFile>
#include <QIconEngine>
#include <QPainter>

#include <algorithm>

namespace {

// One image of the directory at the head of an .ico file, which names its place in the file.
struct Entry
{
    int nSide;
    qint64 nOffset;
    qint64 nLength;
};

class LazyEngine : public QIconEngine
{
public:
    explicit LazyEngine(const QString &strFile)
        : m_strFile(strFile)
    {
    }

    void paint(QPainter *pPainter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPixmap image = pixmap(rect.size(), mode, state);
        const QRect place(QPoint(), image.size());
        pPainter->drawPixmap(place.translated(rect.center() - place.center()).topLeft(), image);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const int nSide = std::min(size.width(), size.height());
        QPixmap image = load(nSide);
        return image.width() > nSide
            ? image.scaled(nSide, nSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : image;
    }
    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const int nLargest = entries().isEmpty() ? 0 : entries().last().nSide;
        const int nSide = std::min({size.width(), size.height(), nLargest});
        return {nSide, nSide};
    }
    // The X window system reads and sends all of these as soon as there is a window.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (const Entry &entry : entries())
            if (entry.nSide <= 128)
                sizes.append({entry.nSide, entry.nSide});
        return sizes;
    }
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine *clone() const override { return new LazyEngine(*this); }

private:
    const QList<Entry> &entries()
    {
        if (m_entries.isEmpty())
            readDirectory();
        return m_entries;
    }

    // Reserved, type, count; then for each image width, height, colors, reserved, planes, bits, length and
    // offset. A side of 256 is written as 0.
    void readDirectory()
    {
        QFile file(m_strFile);
        if (!file.open(QIODevice::ReadOnly))
            return;
        QDataStream stream(&file);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream.skipRawData(4);
        quint16 nCount = 0;
        stream >> nCount;
        for (int i = 0; i < nCount && stream.status() == QDataStream::Ok; ++i) {
            quint8 nSide = 0;
            quint32 nLength = 0, nOffset = 0;
            stream >> nSide;
            stream.skipRawData(7);
            stream >> nLength >> nOffset;
            m_entries.append({nSide ? nSide : 256, nOffset, nLength});
        }
    }

    // The smallest that is large enough, or the largest.
    QPixmap load(int nSide)
    {
        const auto &list = entries();
        QFile file(m_strFile);
        if (list.isEmpty() || !file.open(QIODevice::ReadOnly))
            return {};
        auto it = std::find_if(list.begin(), list.end(), [=](const Entry &e) { return e.nSide >= nSide; });
        const Entry &entry = it == list.end() ? list.last() : *it;
        file.seek(entry.nOffset);
        return QPixmap::fromImage(imageFromPng(file.read(entry.nLength)));
    }

    const QString m_strFile;
    QList<Entry> m_entries; // from small to large
};

} // namespace

QIcon lazyIcon(const QString &strFile)
{
    return QIcon(new LazyEngine(strFile));
}
