// SPDX-License-Identifier: MIT
#include "stagewriter.h"

#include "stageformat.h"
#include "stagereader.h"

#include <filewriter.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

QJsonValue colorValue(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexRgb) : QStringLiteral("none");
}

QJsonObject elementObject(const StageElement &element, const QDir &folder)
{
    QJsonObject object = element.unknown;
    object[QLatin1String("id")] = element.id;
    object[QLatin1String("type")] = StageFormat::typeName(element.type);
    for (const auto &member : StageFormat::numberMembers)
        object[QLatin1String(member.pKey)] = element.*member.pField;
    for (const auto &member : StageFormat::colorMembers)
        object[QLatin1String(member.pKey)] = colorValue(element.*member.pField);
    if (element.type == StageElement::Type::Text) {
        object[QLatin1String("text")] = element.text;
        object[QLatin1String("fontFamily")] = element.fontFamily;
        object[QLatin1String("fontSize")] = element.fontSize;
        object[QLatin1String("bold")] = element.bold;
        object[QLatin1String("align")] = element.align;
    } else if (element.type == StageElement::Type::Image) {
        object[QLatin1String("source")] = folder.relativeFilePath(element.source);
    }
    return object;
}

QJsonObject sceneObject(const StageScene &scene, const QDir &folder)
{
    QJsonArray elements;
    for (const StageElement &element : scene.elements)
        elements.append(elementObject(element, folder));
    QJsonObject object = scene.unknown;
    object[QLatin1String("name")] = scene.name;
    object[QLatin1String("elements")] = elements;
    return object;
}

QJsonObject stageObject(const StageProject &project)
{
    QJsonObject object = project.unknownStage;
    object[QLatin1String("width")] = project.width;
    object[QLatin1String("height")] = project.height;
    object[QLatin1String("background")] = colorValue(project.background);
    object[QLatin1String("frameRate")] = project.frameRate;
    object[QLatin1String("responsive")] = project.responsive;
    return object;
}

} // namespace

QByteArray StageWriter::toJson(const StageProject &project, const QString &strFolder)
{
    QJsonArray scenes;
    for (const StageScene &scene : project.scenes)
        scenes.append(sceneObject(scene, QDir(strFolder)));
    QJsonObject object = project.unknown;
    object[QLatin1String("format")] = QStringLiteral("kelpa");
    object[QLatin1String("version")] = StageFormat::nVersion;
    object[QLatin1String("stage")] = stageObject(project);
    object[QLatin1String("scenes")] = scenes;
    const QJsonDocument document(object);
    const QByteArray compact = document.toJson(QJsonDocument::Compact);
    const qint64 nSize = compact.size() + StageReader::extentOf(compact).nIndentation;
    return nSize > StageFormat::nMaxFileBytes ? compact : document.toJson();
}

QString StageWriter::writeFile(const StageProject &project, const QString &strFileName)
{
    const QByteArray text = toJson(project, QFileInfo(strFileName).absolutePath());
    const QString strExcess = StageReader::excess(text);
    return strExcess.isEmpty() ? FileWriter::write(strFileName, text) : strExcess;
}
