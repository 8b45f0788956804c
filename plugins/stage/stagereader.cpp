// SPDX-License-Identifier: MIT
#include "stagereader.h"

#include "stageformat.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QSet>

#include <cmath>
#include <cstring>
#include <limits>

using namespace StageFormat;

namespace {

// A wrong value as it stands in the file, shortened for a message.
QString shown(const QJsonValue &value)
{
    if (value.isArray())
        return QStringLiteral("[...]");
    if (value.isObject())
        return QStringLiteral("{...}");
    const QByteArray text = QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact);
    const QString strText = QString::fromUtf8(text.mid(1, text.size() - 2));
    return strText.size() > 40 ? strText.left(40) + QStringLiteral("...") : strText;
}

// Takes the known members out of each object; the rest is kept as unknown. After the first error it continues
// with valid substitutes, and the caller discards the result.
class Parser
{
    Q_DECLARE_TR_FUNCTIONS(StageReader)

public:
    explicit Parser(const QString &strFolder)
        : m_folder(strFolder)
    {
    }

    StageProject project(QJsonObject object);
    [[nodiscard]] const QString &error() const { return m_strError; }

private:
    bool readHead(QJsonObject &object);
    void readStage(QJsonObject object, StageProject &project);
    StageScene scene(const QJsonValue &value, const QString &strPath);
    StageElement element(const QJsonValue &value, const QString &strPath);
    void readText(QJsonObject &object, const QString &strPath, StageElement &element);
    QString source(QJsonObject &object, const QString &strPath);

    double number(const QJsonValue &value, const QString &strPath, double dMin, double dMax);
    int integer(const QJsonValue &value, const QString &strPath, int nMin, int nMax);
    void readNumber(
        QJsonObject &object, const QString &strPath, const NumberMember &member, StageElement &to);
    QString string(const QJsonValue &value, const QString &strPath, int nMin, int nMax);
    QColor color(const QJsonValue &value, const QString &strPath);
    bool boolean(const QJsonValue &value, const QString &strPath);
    QJsonArray array(const QJsonValue &value, const QString &strPath);
    QJsonObject objectOf(const QJsonValue &value, const QString &strPath);
    template <std::size_t N>
    int choice(const QJsonValue &value, const QString &strPath, const std::array<const char *, N> &names);

    void fail(const QString &strPath, const QString &strReason);
    void failValue(const QString &strPath, const QString &strWanted, const QJsonValue &value);
    [[nodiscard]] bool failed() const { return !m_strError.isEmpty(); }

    const QDir m_folder;
    QString m_strError;
    QSet<QString> m_ids;
};

void Parser::fail(const QString &strPath, const QString &strReason)
{
    if (!failed())
        m_strError = tr("%1: %2").arg(strPath, strReason);
}

void Parser::failValue(const QString &strPath, const QString &strWanted, const QJsonValue &value)
{
    if (value.isUndefined())
        fail(strPath, tr("is missing; it must be %1").arg(strWanted));
    else
        fail(strPath, tr("must be %1, not %2").arg(strWanted, shown(value)));
}

double Parser::number(const QJsonValue &value, const QString &strPath, double dMin, double dMax)
{
    const double dValue = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (dValue >= dMin && dValue <= dMax)
        return dValue;
    failValue(strPath,
        tr("a number from %1 to %2").arg(QString::number(dMin, 'f', 0), QString::number(dMax, 'f', 0)),
        value);
    return dMin;
}

int Parser::integer(const QJsonValue &value, const QString &strPath, int nMin, int nMax)
{
    const double dValue = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (dValue >= nMin && dValue <= nMax && dValue == std::floor(dValue))
        return static_cast<int>(dValue);
    failValue(strPath, tr("a whole number from %1 to %2").arg(nMin).arg(nMax), value);
    return nMin;
}

QString Parser::string(const QJsonValue &value, const QString &strPath, int nMin, int nMax)
{
    const QString strValue = value.toString();
    if (!value.isString() || strValue.size() < nMin || strValue.size() > nMax)
        failValue(strPath, tr("a text of %1 to %2 characters").arg(nMin).arg(nMax), value);
    return strValue;
}

QColor Parser::color(const QJsonValue &value, const QString &strPath)
{
    const QString strValue = value.toString();
    if (strValue == QLatin1String("none"))
        return {};
    QColor result;
    if (strValue.size() == 7 && strValue.startsWith(QLatin1Char('#')))
        result.setNamedColor(strValue);
    if (!result.isValid())
        failValue(strPath, tr("a colour such as \"#0080ff\", or \"none\""), value);
    return result;
}

bool Parser::boolean(const QJsonValue &value, const QString &strPath)
{
    if (!value.isBool())
        failValue(strPath, tr("true or false"), value);
    return value.toBool();
}

QJsonArray Parser::array(const QJsonValue &value, const QString &strPath)
{
    if (!value.isArray())
        failValue(strPath, tr("a list"), value);
    return value.toArray();
}

QJsonObject Parser::objectOf(const QJsonValue &value, const QString &strPath)
{
    if (!value.isObject())
        failValue(strPath, tr("an object"), value);
    return value.toObject();
}

template <std::size_t N>
int Parser::choice(const QJsonValue &value, const QString &strPath, const std::array<const char *, N> &names)
{
    QStringList wanted;
    for (std::size_t i = 0; i < N; ++i) {
        if (value.isString() && value.toString() == QLatin1String(names[i]))
            return static_cast<int>(i);
        wanted.append(QLatin1Char('"') + QLatin1String(names[i]) + QLatin1Char('"'));
    }
    failValue(strPath, tr("one of %1").arg(wanted.join(QStringLiteral(", "))), value);
    return 0;
}

bool Parser::readHead(QJsonObject &object)
{
    const QJsonValue format = object.take(QLatin1String("format"));
    if (format.toString() != QLatin1String("kelpa"))
        failValue(QStringLiteral("format"), QStringLiteral("\"kelpa\""), format);
    const QJsonValue version = object.take(QLatin1String("version"));
    const int nFound = integer(version, QStringLiteral("version"), 1, std::numeric_limits<int>::max());
    if (nFound > nVersion) {
        fail(QStringLiteral("version"),
            tr("the project was written by a newer program (format version %1; this program reads up to %2)")
                .arg(nFound)
                .arg(nVersion));
    }
    return !failed();
}

StageProject Parser::project(QJsonObject object)
{
    StageProject result;
    if (!readHead(object))
        return result;
    const QString strStage = QStringLiteral("stage");
    readStage(objectOf(object.take(strStage), strStage), result);
    const QString strScenes = QStringLiteral("scenes");
    const QJsonArray scenes = array(object.take(strScenes), strScenes);
    if (scenes.isEmpty() || scenes.size() > nMaxScenes)
        fail(strScenes, tr("must hold 1 to %1 scenes, not %2").arg(nMaxScenes).arg(scenes.size()));
    for (int i = 0; i < static_cast<int>(scenes.size()) && !failed(); ++i)
        result.scenes.append(scene(scenes.at(i), QStringLiteral("scenes[%1]").arg(i)));
    result.unknown = object;
    return result;
}

void Parser::readStage(QJsonObject object, StageProject &project)
{
    project.width =
        integer(object.take(QLatin1String("width")), QStringLiteral("stage.width"), 1, nMaxStageSize);
    project.height =
        integer(object.take(QLatin1String("height")), QStringLiteral("stage.height"), 1, nMaxStageSize);
    project.frameRate =
        integer(object.take(QLatin1String("frameRate")), QStringLiteral("stage.frameRate"), 1, nMaxFrameRate);
    project.responsive =
        boolean(object.take(QLatin1String("responsive")), QStringLiteral("stage.responsive"));
    project.background = color(object.take(QLatin1String("background")), QStringLiteral("stage.background"));
    project.unknownStage = object;
}

StageScene Parser::scene(const QJsonValue &value, const QString &strPath)
{
    StageScene result;
    QJsonObject object = objectOf(value, strPath);
    result.name =
        string(object.take(QLatin1String("name")), strPath + QStringLiteral(".name"), 0, nMaxNameLength);
    const QString strElements = strPath + QStringLiteral(".elements");
    const QJsonArray elements = array(object.take(QLatin1String("elements")), strElements);
    if (m_ids.size() + elements.size() > nMaxElements)
        fail(strElements, tr("a project may hold %1 elements at most").arg(nMaxElements));
    for (int i = 0; i < static_cast<int>(elements.size()) && !failed(); ++i)
        result.elements.append(element(elements.at(i), QStringLiteral("%1[%2]").arg(strElements).arg(i)));
    result.unknown = object;
    return result;
}

StageElement Parser::element(const QJsonValue &value, const QString &strPath)
{
    StageElement result;
    QJsonObject object = objectOf(value, strPath);
    result.id = string(object.take(QLatin1String("id")), strPath + QStringLiteral(".id"), 1, nMaxNameLength);
    if (m_ids.contains(result.id))
        fail(strPath + QStringLiteral(".id"), tr("\"%1\" is used by another element").arg(result.id));
    m_ids.insert(result.id);
    result.type = static_cast<StageElement::Type>(
        choice(object.take(QLatin1String("type")), strPath + QStringLiteral(".type"), typeNames));
    for (const NumberMember &member : numberMembers)
        readNumber(object, strPath, member, result);
    for (const ColorMember &member : colorMembers) {
        const QJsonValue found = object.take(QLatin1String(member.pKey));
        if (!found.isUndefined())
            result.*member.pField =
                color(found, QStringLiteral("%1.%2").arg(strPath, QLatin1String(member.pKey)));
    }
    if (result.type == StageElement::Type::Text)
        readText(object, strPath, result);
    else if (result.type == StageElement::Type::Image)
        result.source = source(object, strPath);
    result.unknown = object;
    return result;
}

void Parser::readNumber(
    QJsonObject &object, const QString &strPath, const NumberMember &member, StageElement &to)
{
    const QLatin1String key(member.pKey);
    const QJsonValue value = object.take(key);
    if (member.bRequired || !value.isUndefined())
        to.*member.pField =
            number(value, QStringLiteral("%1.%2").arg(strPath, key), member.dMin, member.dMax);
}

void Parser::readText(QJsonObject &object, const QString &strPath, StageElement &element)
{
    element.text =
        string(object.take(QLatin1String("text")), strPath + QStringLiteral(".text"), 0, nMaxTextLength);
    readNumber(object, strPath, fontSizeMember, element);
    const QJsonValue family = object.take(QLatin1String("fontFamily"));
    if (!family.isUndefined())
        element.fontFamily = string(family, strPath + QStringLiteral(".fontFamily"), 0, nMaxNameLength);
    const QJsonValue bold = object.take(QLatin1String("bold"));
    if (!bold.isUndefined())
        element.bold = boolean(bold, strPath + QStringLiteral(".bold"));
    const QJsonValue align = object.take(QLatin1String("align"));
    if (!align.isUndefined())
        element.align = QLatin1String(alignNames[static_cast<std::size_t>(
            choice(align, strPath + QStringLiteral(".align"), alignNames))]);
}

QString Parser::source(QJsonObject &object, const QString &strPath)
{
    const QString strKey = strPath + QStringLiteral(".source");
    const QJsonValue value = object.take(QLatin1String("source"));
    const QString strSource = string(value, strKey, 1, nMaxPathLength);
    if (strSource.contains(QLatin1String("://")) || strSource.contains(QChar(0)))
        failValue(strKey, tr("the path of a file"), value);
    return QDir::cleanPath(m_folder.absoluteFilePath(strSource));
}

QString placeOf(const QByteArray &text, int nOffset)
{
    const QByteArray before = text.left(qMax(0, nOffset));
    const auto nLineStart = before.lastIndexOf('\n') + 1;
    return Parser::tr("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(before.mid(nLineStart)).size() + 1);
}

StageReader::Result failure(const QString &strReason)
{
    return {std::nullopt, strReason};
}

} // namespace

StageReader::Extent StageReader::extentOf(const QByteArray &text)
{
    Extent extent;
    qint64 nLevel = 0;
    bool bInString = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (bInString && c == '\\') {
            ++i;
        } else if (c == '"') {
            bInString = !bInString;
        } else if (!bInString && std::strchr(",[{]}", c)) {
            const bool bCloses = c == ']' || c == '}';
            nLevel += c == ',' ? 0 : (bCloses ? -1 : 1);
            extent.nValues += bCloses ? 0 : 1;
            extent.nIndentation += 2 + 4 * nLevel; // 2: a new line, and the blank that may follow a colon
        }
    }
    return extent;
}

// The values are counted before parsing, since a parsed value takes many times its size in the file.
QString StageReader::excess(const QByteArray &text)
{
    if (text.size() > nMaxFileBytes)
        return Parser::tr("the file is larger than %1").arg(QLocale().formattedDataSize(nMaxFileBytes));
    if (extentOf(text).nValues > nMaxValues)
        return Parser::tr("the file holds more than %1 values").arg(nMaxValues);
    return {};
}

StageReader::Result StageReader::fromJson(const QByteArray &text, const QString &strFolder)
{
    const QString strExcess = excess(text);
    if (!strExcess.isEmpty())
        return failure(strExcess);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (document.isNull())
        return failure(
            Parser::tr("%1: not valid JSON (%2)").arg(placeOf(text, error.offset), error.errorString()));
    if (!document.isObject())
        return failure(Parser::tr("line 1: the file must hold an object"));
    Parser parser(strFolder);
    StageProject project = parser.project(document.object());
    if (!parser.error().isEmpty())
        return failure(parser.error());
    return {std::move(project), QString()};
}

StageReader::Result StageReader::readFile(const QString &strFileName)
{
    const QFileInfo info(strFileName);
    if (!info.exists())
        return failure(Parser::tr("the file does not exist"));
    if (!info.isFile())
        return failure(Parser::tr("this is not a regular file"));
    QFile file(strFileName);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    // Reads one byte more than allowed: excess() then notices a file that is longer than its reported size.
    const QByteArray text = file.read(nMaxFileBytes + 1);
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString());
    return fromJson(text, info.absolutePath());
}
