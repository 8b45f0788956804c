// SPDX-License-Identifier: MIT
#include <support/rows.h>

#include <QColor>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <cmath>

namespace {

constexpr double s_fText = 4.5;
constexpr double s_fControl = 3;

struct Pairs
{
    const char *pFront;
    double fLeast;
    QList<const char *> backs;
};

// What the sheets put on what. Decorative lines and what is disabled need no contrast.
const Pairs s_pairs[] = {
    {"text", s_fText,
        {"window", "chrome", "base", "alternate", "raised", "hover", "selected", "toolTip", "progress",
            "progressBase"}},
    {"muted", s_fText, {"window", "chrome"}},
    {"onAccent", s_fText, {"accent", "accentHover"}},
    {"onSelection", s_fText, {"selection"}},
    {"onSelected", s_fText, {"selected"}},
    {"control", s_fControl, {"window", "base", "chrome", "toolTip", "selected", "hover"}},
    {"handle", s_fControl, {"window"}},
    {"glyph", s_fControl, {"window", "base", "chrome", "raised", "hover", "selected"}},
    {"accent", s_fControl, {"window", "base", "chrome", "raised", "selected", "hover"}},
    {"progress", s_fControl, {"progressBase"}},
    {"selection", s_fControl, {"base"}},
    {"text", s_fControl, {"selection"}},
    {"disabled", s_fControl, {"window"}},
};

// Where icons stand: in bars, menus, lists and message boxes, and on buttons in every state.
const QList<const char *> s_grounds = {"window", "chrome", "base", "raised", "hover", "selected", "danger"};

double channel(double fValue)
{
    return fValue <= 0.03928 ? fValue / 12.92 : std::pow((fValue + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF())
        + 0.0722 * channel(colour.blueF());
}

// As the guidelines for web content define it.
double contrast(const QColor &first, const QColor &second)
{
    const auto [fLow, fHigh] = std::minmax({luminance(first), luminance(second)});
    return (fHigh + 0.05) / (fLow + 0.05);
}

QByteArray read(const QString &strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject palette(const QString &strTheme)
{
    return QJsonDocument::fromJson(read(KELPA_PALETTES "/" + strTheme + ".json")).object();
}

// Which of the grounds a colour does not stand out from, and how much it does.
QStringList faults(
    const QColor &front, const QList<const char *> &backs, double fLeast, const QJsonObject &colours)
{
    QStringList found;
    for (const char *pBack : backs) {
        const double fContrast = contrast(front, QColor(colours[pBack].toString()));
        if (!(fContrast >= fLeast))
            found.append(QString("%1 on %2: %3").arg(front.name(), pBack).arg(fContrast));
    }
    return found;
}

QStringList matches(const char *pExpression, const QString &strText)
{
    QStringList found;
    for (const auto &match : QRegularExpression(QLatin1String(pExpression)).globalMatch(strText))
        found.append(match.captured());
    return found;
}

} // namespace

class tst_Palette : public QObject
{
    Q_OBJECT

private slots:
    void arithmetic()
    {
        QCOMPARE(qRound(contrast(Qt::black, Qt::white) * 100), 2100);
        QCOMPARE(qRound(contrast(QColor(0x777777), Qt::white) * 100), 448);
    }

    void textAndControlsCanBeRead()
    {
        for (const QJsonObject &colours : m_palettes) {
            for (const auto &[pFront, fLeast, backs] : s_pairs)
                QCOMPARE(faults(QColor(colours[pFront].toString()), backs, fLeast, colours), QStringList());
        }
    }

    // They are the same in both themes. White is only inside of another colour; the two signs of the program
    // and its documents bring a ground of their own.
    void iconsCanBeRead()
    {
        QSet<QString> icons;
        for (const char *pFolder : {KELPA_ICONS, KELPA_STAGE_ICONS}) {
            const auto files = QDir(pFolder).entryInfoList({"*.svg"});
            for (const QFileInfo &file : files) {
                const QStringList found = matches("#[0-9a-fA-F]{6}", read(file.filePath()));
                if (!file.baseName().contains("icon"))
                    icons.unite({found.cbegin(), found.cend()});
            }
        }
        icons.remove("#ffffff");
        QVERIFY(icons.size() >= 4);
        for (const QString &strIcon : std::as_const(icons)) {
            for (const QJsonObject &colours : m_palettes)
                QCOMPARE(faults(QColor(strIcon), s_grounds, s_fControl, colours), QStringList());
        }
    }

    // Its strokes run across the pixels.
    void theCloseCrossIsNotTooThin()
    {
        QVERIFY(QLibrary(KELPA_APPEARANCE_PLUGIN).load());
        const QImage cross(":/core/images/close_16.png");
        QVERIFY(!cross.isNull());
        for (const QJsonObject &colours : m_palettes) {
            for (const char *pBack : {"chrome", "hover", "danger"}) {
                const QColor back(colours[pBack].toString());
                QImage shown(cross.size(), QImage::Format_RGB32);
                shown.fill(back);
                QPainter(&shown).drawImage(0, 0, cross);
                int nSeen = 0;
                for (int i = 0; i < shown.width() * shown.height(); ++i)
                    nSeen +=
                        contrast(shown.pixelColor(i % shown.width(), i / shown.width()), back) >= s_fControl;
                QVERIFY2(nSeen >= 16, qPrintable(QString("%1: %2").arg(pBack).arg(nSeen)));
            }
        }
    }

    void sheets_data()
    {
        const auto row = columns<QString, QString>("theme", "file");
        row("dark", "dark", "app_dark.qss");
        row("platform part of dark", "dark", "win_app_dark.qss");
        row("light", "light", "app_light.qss");
    }

    // No colour of their own, sizes that follow the density or the font, and images that are there.
    void sheets()
    {
        QFETCH(QString, theme);
        QFETCH(QString, file);
        const QString strSheet = QString::fromUtf8(read(KELPA_STYLES "/" + file));
        QVERIFY(!strSheet.isEmpty());
        QStringList known;
        const QJsonObject colours = palette(theme);
        for (const QJsonValue &colour : colours)
            known.append(colour.toString());
        for (const QString &strColour : matches("#[0-9a-fA-F]{3,8}\\b", strSheet))
            QVERIFY2(known.contains(strColour), qPrintable(strColour));
        QCOMPARE(matches("rgba?\\s*\\(|@|[{]\\d", strSheet), QStringList());
        QCOMPARE(matches("(?<![\\d$-])-?\\d+(px|pt)", strSheet), QStringList());
        QCOMPARE(strSheet.contains("$"), theme == "dark" && !matches("\\$-?\\d+px\\$", strSheet).isEmpty());
        QVERIFY(QLibrary(KELPA_APPEARANCE_PLUGIN).load());
        for (const QString &strImage : matches("(?<=url\\()[^)]*", strSheet))
            QVERIFY2(QFile::exists(strImage), qPrintable(strImage));
    }

private:
    const QJsonObject m_palettes[2] = {palette("dark"), palette("light")};
};

QTEST_GUILESS_MAIN(tst_Palette)
#include "tst_palette.moc"
