// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QJsonObject>
#include <QList>
#include <QString>

/// One shape on the stage. Lengths are in stage pixels; angles are in degrees, clockwise around its center.
struct StageElement
{
    enum class Type { Rectangle, Ellipse, Text, Image };

    QString id; ///< unique in the project
    Type type = Type::Rectangle;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    double rotation = 0;
    double opacity = 1;
    QColor fill; ///< invalid: none; for a text, the color of its letters
    QColor stroke; ///< invalid: none
    double strokeWidth = 1;

    QString text;
    QString fontFamily;
    double fontSize = 24;
    bool bold = false;
    QString align = QStringLiteral("left"); ///< or "center", "right"

    QString source; ///< absolute path of an image; the file keeps it relative to the project

    QJsonObject unknown; ///< members that this version does not know, kept for saving

    bool operator==(const StageElement &) const = default;
};

/// One scene; its elements are in order from back to front.
struct StageScene
{
    QString name;
    QList<StageElement> elements;
    QJsonObject unknown;

    bool operator==(const StageScene &) const = default;
};

/// The content of a project file, as plain values.
struct StageProject
{
    int width = 1280;
    int height = 720;
    QColor background = Qt::white;
    int frameRate = 24; ///< per second
    bool responsive = false;
    QList<StageScene> scenes;
    QJsonObject unknown;
    QJsonObject unknownStage;

    bool operator==(const StageProject &) const = default;
};
