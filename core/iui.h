// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>
#include <isingleton.h>

#include <QHash>
#include <QIcon>
#include <QMap>
#include <QMessageBox>
#include <QPixmap>

#include <functional>

class IUi;
extern template class CORE_EXPORT ISingleton<IUi>;

/// Icons at the scale of the display and the message boxes of the program. All operations work on the class
/// and through getInstance() alike; GUI thread only, except getInstance().
class CORE_EXPORT IUi : public ISingleton<IUi>
{
public:
    /// The program's name, which is the title of every box.
    [[nodiscard]] static QString getTitle() { return QStringLiteral("Kelpa Studio"); }

    /// The image `strName` of `strFolder` with its disabled variant. `nMode` 1 to 6 asks for 12, 16, 24, 32,
    /// 48 or 64 pixels at 100 percent, any other value for the image without a size in its name. Files that
    /// do not exist leave that part of the icon empty.
    [[nodiscard]] static QIcon getIcon(const QString &strName = QStringLiteral("icon"), int nMode = 0,
        const QString &strFolder = QStringLiteral(":/core/images/"));

    /// Image of one file name part each, from the cache or loaded into it. A missing file gives a null
    /// pixmap and is looked for again next time.
    [[nodiscard]] static QPixmap getPixmap(const QString &strName, int nMode, bool bDisabled,
        const QString &strFolder = QStringLiteral(":/core/images/"));

    /// The next look-ups load from file again, at the scale the display has then.
    static void clearIconCache();

    /// Modal boxes; a null parent means the main window. They return the button that was clicked, or Cancel
    /// when the box was closed without one or died with its parent. `strInformative` stands in a second,
    /// lighter text.
    static QMessageBox::StandardButton information(QWidget *pParent, const QString &strTitle,
        const QString &strText, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
        QMessageBox::StandardButton defaultButton = QMessageBox::Ok, const QString &strInformative = {});
    static QMessageBox::StandardButton question(QWidget *pParent, const QString &strTitle,
        const QString &strText, QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No,
        QMessageBox::StandardButton defaultButton = QMessageBox::Yes);
    static QMessageBox::StandardButton warning(QWidget *pParent, const QString &strTitle,
        const QString &strText, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
        QMessageBox::StandardButton defaultButton = QMessageBox::Ok);

    /// Runs a box that `fill` fills and that then looks and answers as the others. `strIcon` is the image's
    /// name with its size, such as "question_32".
    static QMessageBox::StandardButton run(QWidget *pParent, const QString &strIcon, const QString &strTitle,
        const std::function<void(QMessageBox *)> &fill);

private:
    friend class ISingleton<IUi>;
    IUi() = default;

    QMap<QString, QPixmap> m_pixmaps;
};
