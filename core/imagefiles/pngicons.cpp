// SPDX-License-Identifier: MIT
// Icons out of PNG files, those of Qt's own widgets and of style sheets among them. Qt's engine asks its
// image reader, which first loads the libraries of all image formats: more than ten milliseconds of the
// start.
#define QT_STATICPLUGIN

#include "imagefiles/pngimage.h"

#include <QFile>
#include <QIconEnginePlugin>

#include <private/qicon_p.h>

namespace {

class PngIconEngine : public QPixmapIconEngine
{
public:
    // What Qt's engine does with names such as "open@2x.png", and with a size other than the image's own, is
    // left to it, and so is what cannot be read here.
    void addFile(const QString &strFile, const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image;
        if (QFile file(strFile); !strFile.contains(QLatin1Char('@')) && file.open(QIODevice::ReadOnly))
            image = imageFromPng(file.readAll());
        if (image.isNull() || (size.isValid() && size != image.size()))
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
