// SPDX-License-Identifier: MIT
// Renders the icons of one module from SVG and writes the resource collection that holds them.
//
//     rendericons --output DIR --prefix /core/images --sizes 12,16 save=save.svg --ico app_icon=icon.svg
//
// gives save.png (32 pixels), save_12.png and save_16.png, each with "_d" (disabled), "_2x" (double size) and
// "_d_2x", further app_icon.ico, and DIR/icons.qrc. No display is needed.
#include <QBuffer>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamWriter>

#include <cstdio>

namespace {

constexpr int s_nPlainSize = 32;
constexpr double s_dDisabledOpacity = 0.4;
const QList<int> s_icoSizes = {16, 24, 32, 48, 64, 128, 256};

// Ends the program at the first error, because an incomplete set of icons is of no use.
[[noreturn]] void fail(const QString &strFile, const QString &strReason)
{
    std::fprintf(stderr, "rendericons: %s: %s\n", qPrintable(strFile), qPrintable(strReason));
    std::exit(1);
}

struct Source
{
    QString strName;
    QString strFile;
};

Source toSource(const QString &strArgument)
{
    const auto nEquals = strArgument.indexOf(QLatin1Char('='));
    if (nEquals <= 0)
        fail(strArgument, QStringLiteral("not of the form name=file.svg"));
    return {strArgument.left(nEquals), strArgument.mid(nEquals + 1)};
}

QImage render(QSvgRenderer &renderer, int nSize)
{
    QImage image(nSize, nSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, nSize, nSize));
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QImage disabled(QImage image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *pLine = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int nGrey = qGray(pLine[x]);
            pLine[x] = qRgba(nGrey, nGrey, nGrey, qRound(qAlpha(pLine[x]) * s_dDisabledOpacity));
        }
    }
    return image;
}

QByteArray toPng(const QImage &image)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

// The images written so far. The collection lists them in that order, so that two runs give the same file.
class Collection
{
public:
    Collection(const QString &strFolder, const QString &strPrefix)
        : m_folder(strFolder)
        , m_strPrefix(strPrefix)
    {
        if (!m_folder.mkpath(QStringLiteral(".")))
            fail(strFolder, QStringLiteral("cannot make the folder"));
    }

    void add(const QString &strName, const QByteArray &data)
    {
        write(strName, data);
        m_names.append(strName);
    }

    void writeQrc()
    {
        QByteArray data;
        QXmlStreamWriter xml(&data);
        xml.setAutoFormatting(true);
        xml.writeStartElement(QStringLiteral("RCC"));
        xml.writeStartElement(QStringLiteral("qresource"));
        xml.writeAttribute(QStringLiteral("prefix"), m_strPrefix);
        for (const QString &strName : std::as_const(m_names))
            xml.writeTextElement(QStringLiteral("file"), strName);
        xml.writeEndElement();
        xml.writeEndElement();
        write(QStringLiteral("icons.qrc"), data);
    }

private:
    void write(const QString &strName, const QByteArray &data) const
    {
        QFile file(m_folder.filePath(strName));
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.flush())
            fail(file.fileName(), file.errorString());
    }

    QDir m_folder;
    QString m_strPrefix;
    QStringList m_names;
};

void addPngs(Collection &collection, QSvgRenderer &renderer, const QString &strStem, int nSize)
{
    for (const int nFactor : {1, 2}) {
        const QImage image = render(renderer, nSize * nFactor);
        const QString strScale = nFactor == 2 ? QStringLiteral("_2x") : QString();
        collection.add(strStem + strScale + QStringLiteral(".png"), toPng(image));
        collection.add(
            strStem + QStringLiteral("_d") + strScale + QStringLiteral(".png"), toPng(disabled(image)));
    }
}

// An .ico file is a directory followed by PNG images; a side of 256 pixels is 0 in its bytes there.
QByteArray toIco(QSvgRenderer &renderer)
{
    QByteArray directory;
    QByteArray images;
    QDataStream stream(&directory, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(s_icoSizes.size());
    const auto nHeader = 6 + 16 * s_icoSizes.size();
    for (const int nSize : s_icoSizes) {
        const QByteArray png = toPng(render(renderer, nSize));
        stream << quint8(nSize) << quint8(nSize) << quint8(0) << quint8(0) << quint16(1) << quint16(32)
               << quint32(png.size()) << quint32(nHeader + images.size());
        images += png;
    }
    return directory + images;
}

void load(QSvgRenderer &renderer, const Source &source)
{
    if (!QFile::exists(source.strFile))
        fail(source.strFile, QStringLiteral("no such file"));
    if (!renderer.load(source.strFile))
        fail(source.strFile, QStringLiteral("not a valid SVG"));
}

QList<int> toSizes(const QString &strSizes)
{
    QList<int> sizes;
    const auto parts = strSizes.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &strPart : parts) {
        sizes.append(strPart.toInt());
        if (sizes.last() < 1 || sizes.last() > 1024)
            fail(strPart, QStringLiteral("not a size in pixels"));
    }
    return sizes;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);

    QCommandLineParser parser;
    const QCommandLineOption output(QStringLiteral("output"), QString(), QStringLiteral("folder"));
    const QCommandLineOption prefix(QStringLiteral("prefix"), QString(), QStringLiteral("path"));
    const QCommandLineOption sizes(QStringLiteral("sizes"), QString(), QStringLiteral("list"));
    const QCommandLineOption ico(QStringLiteral("ico"), QString(), QStringLiteral("name=svg"));
    parser.addOptions({output, prefix, sizes, ico});
    parser.process(application);

    Collection collection(parser.value(output), parser.value(prefix));
    const QList<int> suffixSizes = toSizes(parser.value(sizes));
    QSvgRenderer renderer;
    const auto icons = parser.positionalArguments();
    for (const QString &strIcon : icons) {
        const Source source = toSource(strIcon);
        load(renderer, source);
        addPngs(collection, renderer, source.strName, s_nPlainSize);
        for (const int nSize : suffixSizes)
            addPngs(collection, renderer, QStringLiteral("%1_%2").arg(source.strName).arg(nSize), nSize);
    }
    const auto icos = parser.values(ico);
    for (const QString &strIco : icos) {
        const Source source = toSource(strIco);
        load(renderer, source);
        collection.add(source.strName + QStringLiteral(".ico"), toIco(renderer));
    }
    collection.writeQrc();
    return 0;
}
