// SPDX-License-Identifier: MIT
#include "imagefiles/pngimage.h"

#ifdef KELPA_PNG

#include <QImageReader>

#include <png.h>

// Qt's readers leave images alone that would take more memory than this.
static bool fitsMemory(const png_image &header)
{
    const qint64 nMost = qint64(QImageReader::allocationLimit()) * 1024 * 1024;
    return nMost == 0 || qint64(header.width) * header.height * 4 <= nMost;
}

QImage imageFromPng(const QByteArray &bytes)
{
    png_image header {};
    header.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&header, bytes.constData(), static_cast<size_t>(bytes.size())))
        return {};
    // The bytes of a pixel stand in the machine's order, as those of QImage do.
    header.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // as Qt takes them, and not as linear
    header.format = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    QImage image;
    if (fitsMemory(header))
        image =
            QImage(static_cast<int>(header.width), static_cast<int>(header.height), QImage::Format_ARGB32);
    if (image.isNull()
        || !png_image_finish_read(
            &header, nullptr, image.bits(), static_cast<png_int_32>(image.bytesPerLine()), nullptr)) {
        png_image_free(&header);
        return {};
    }
    return image;
}

#else

QImage imageFromPng(const QByteArray &bytes)
{
    return QImage::fromData(bytes, "PNG");
}

#endif
