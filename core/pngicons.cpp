// SPDX-License-Identifier: MIT
// Icons out of PNG files, those of Qt's own widgets and of style sheets among them. Qt's engine asks its
// image reader, which first loads the libraries of all image formats: more than ten milliseconds of the
// start.
#define QT_STATICPLUGIN

#include "pngimage.h"

#include <QFile>
#include <QIconEnginePlugin>

#include <private/qicon_p.h>

namespace {

class PngIconEngine : public QPixmapIconEngine
{
public:
    void addFile(const QString &strFile, const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QFile file(strFile);
        const QImage image = file.open(QIODevice::ReadOnly) ? imageFromPng(file.readAll()) : QImage();
        if (image.isNull())
            QPixmapIconEngine::addFile(strFile, size, mode, state);
        else
            addPixmap(QPixmap::fromImage(image), mode, state);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new PngIconEngine(*this); }
};

} // namespace

class PngIcons : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "pngicons.json")

public:
    [[nodiscard]] QIconEngine *create(const QString & /*strFile*/) override { return new PngIconEngine; }
};

Q_IMPORT_PLUGIN(PngIcons)

#include "pngicons.moc"
