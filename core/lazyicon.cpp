// SPDX-License-Identifier: MIT
#include "lazyicon.h"

#include <QIconEngine>
#include <QPainter>

namespace {

class LazyEngine : public QIconEngine
{
public:
    explicit LazyEngine(const QString &strFile)
        : m_strFile(strFile)
    {
    }

    void paint(QPainter *pPainter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(pPainter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1.0, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine *clone() const override { return new LazyEngine(*this); }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull())
            m_icon = QIcon(m_strFile);
        return m_icon;
    }

    const QString m_strFile;
    QIcon m_icon;
};

} // namespace

QIcon lazyIcon(const QString &strFile)
{
    return QIcon(new LazyEngine(strFile));
}
