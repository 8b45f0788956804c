// SPDX-License-Identifier: MIT
#include "stagereader.h"
#include "stagewriter.h"

#include <support/rows.h>

#include <QtTest>

#include <sys/stat.h>

#include <functional>
#include <random>

namespace {

const QString s_folder = "/projects/a";

// A correct project in which a test puts one thing wrong.
const QByteArray s_project = R"({
  "format": "kelpa", "version": 1,
  "stage": {"width": 800, "height": 600, "background": "#102030", "frameRate": 24, "responsive": true},
  "scenes": [{"name": "First", "elements": [
    {"id": "box", "type": "rectangle", "x": 1.5, "y": -2, "width": 30, "height": 40, "rotation": 15,
     "opacity": 0.5, "fill": "#ff0000", "stroke": "none", "strokeWidth": 3},
    {"id": "label", "type": "text", "x": 0, "y": 0, "width": 100, "height": 20, "text": "Grüße"},
    {"id": "picture", "type": "image", "x": 0, "y": 0, "width": 10, "height": 10, "source": "images/p.svg"}
  ]}]
})";

QByteArray with(const QByteArray &old, const QByteArray &replacement)
{
    QByteArray text = s_project;
    return text.replace(old, replacement);
}

QByteArray manyElements(int nCount)
{
    QByteArray elements;
    for (int i = 0; i < nCount; ++i)
        elements += ",{\"id\":\"e" + QByteArray::number(i)
            + "\",\"type\":\"ellipse\",\"x\":0,\"y\":0,\"width\":1,\"height\":1}";
    return R"({"format":"kelpa","version":1,"stage":{"width":8,"height":6,"background":"none","frameRate":1,)"
           R"("responsive":false},"scenes":[{"name":"","elements":[)"
        + elements.mid(1) + "]}]}";
}

} // namespace

class tst_StageReader : public QObject
{
    Q_OBJECT

private slots:
    void faults_data()
    {
        const auto row = columns<QByteArray, QString>("text", "message");
        row("an empty file", "", "line 1, column 1: not valid JSON (illegal value)");
        row("a list instead of an object", "[]", "line 1: the file must hold an object");
        row("text that is not UTF-8", "{\"format\": \"\xff\xfe\"}", "line 1, column 13: not valid JSON");
        row("the end of the file is missing", s_project.chopped(3), "line 9, column 5: not valid JSON");
        row("lists nested too deeply", QByteArray(2'000'001, '['), "more than 2000000 values");
        row("deeper than the parser goes", QByteArray(5000, '['), "not valid JSON");
        row("more values than memory should hold", "[" + QByteArray("[0],").repeated(2'000'000) + "0]",
            "more than 2000000 values");
        row("scenes that are no list", with("[{\"name\"", "{\"a\":[{\"name\"").replace("]}]\n}", "]}]}\n}"),
            "scenes: must be a list, not {...}");
        row("no scene", s_project.left(s_project.indexOf("[{\"name\"")) + "[]}",
            "scenes: must hold 1 to 1000 scenes, not 0");
        row("more elements than allowed", manyElements(20'001),
            "scenes[0].elements: a project may hold 20000 elements at most");

        struct
        {
            const char *pOld, *pNew, *pMessage;
        } const changes[] = {
            {R"("Grüße")", R"("Grüße" x)", "line 7, column 98: not valid JSON"},
            {"1.5", "NaN", "line 5, column 45: not valid JSON"},
            {R"("kelpa")", R"("other")", R"(format: must be "kelpa", not "other")"},
            {R"("version": 1)", R"("version": 0)", "version: must be a whole number from 1"},
            {R"("version": 1)", R"("version": 2)",
                "version: the project was written by a newer program "
                "(format version 2; this program reads up to 1)"},
            {R"("stage")", R"("Stage")", "stage: is missing; it must be an object"},
            {"true", "1", "stage.responsive: must be true or false, not 1"},
            {"#102030", "navy",
                "stage.background: must be a colour such as \"#0080ff\", or \"none\", not \"navy\""},
            {R"({"id": "label")", R"(7, {"id": "label")", "scenes[0].elements[1]: must be an object, not 7"},
            {R"("box")", "\"\"", "elements[0].id: must be a text of 1 to 256 characters"},
            {R"("source")", R"("src")", "elements[2].source: is missing"},
            {R"("label")", R"("box")", R"(scenes[0].elements[1].id: "box" is used by another element)"},
            {R"("rectangle")", R"("star")",
                R"(elements[0].type: must be one of "rectangle", "ellipse", "text", "image", not "star")"},
            {R"("width": 100)", R"("width": "wide")",
                R"(elements[1].width: must be a number from 0 to 1000000, not "wide")"},
            {"images/p.svg", "http://x/p.svg", "elements[2].source: must be the path of a file"},
        };
        for (const auto &[pOld, pNew, pMessage] : changes) {
            QVERIFY2(s_project.contains(pOld), pOld);
            QTest::addRow("%s instead of %s", pNew, pOld) << with(pOld, pNew) << QString(pMessage);
        }
    }
    void faults()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        const auto result = StageReader::fromJson(text, s_folder);
        QVERIFY(!result.project);
        QVERIFY2(result.error.contains(message), qPrintable(result.error.left(300)));
    }

    void eachLimitIsTheLastValueThatIsRead_data()
    {
        const auto row =
            columns<QByteArray, QByteArray, QByteArray, QString>("old", "last", "beyond", "where");
        const QByteArray name(256, 'n');
        const QByteArray text(100'000, 't');
        const QByteArray path(4096, 'p');
        row("stage's width", "800", "16384", "16385",
            "stage.width: must be a whole number from 1 to 16384, not 16385");
        row("stage's height", "600", "1", "0", "stage.height: must be a whole number");
        row("part of a pixel", "600", "7", "7.5", "stage.height: must be a whole number");
        row("frames", "24", "240", "241", "stage.frameRate: must be a whole number from 1 to 240");
        row("name of a scene", "First", name, name + 'n', "scenes[0].name: must be a text of 0 to 256");
        row("name of an element", "box", name, name + 'n', "[0].id: must be a text of 1 to 256");
        row("place to the right", "1.5", "1e6", "1000000.1",
            "[0].x: must be a number from -1000000 to 1000000");
        row("place to the left", "-2", "-1e6", "-1000000.1", "[0].y: must be a number from -1000000");
        row("width", ": 30", ": 0", ": -0.1", "[0].width: must be a number from 0 to 1000000");
        row("height", ": 40", ": 1e6", ": 1000001", "[0].height: must be a number");
        row("turns", ": 15", ": 36000", ": 36001", "[0].rotation: must be");
        row("turns back", ": 15", ": -36000", ": -36001", "[0].rotation: must be");
        row("opacity", "0.5", "1", "1.5", "[0].opacity: must be a number from 0 to 1, not 1.5");
        row("stroke", "\"strokeWidth\": 3", "\"strokeWidth\": 1000", "\"strokeWidth\": 1001",
            "[0].strokeWidth");
        row("text", "Grüße", text, text + 't', "[1].text: must be a text of 0 to 100000");
        row("letters", "\"y\": 0", "\"y\": 0, \"fontSize\": 1", "\"y\": 0, \"fontSize\": 0.9",
            "[1].fontSize");
        row("path", "images/p.svg", path, path + 'p', "[2].source: must be a text of 1 to 4096");
    }
    void eachLimitIsTheLastValueThatIsRead()
    {
        QFETCH(QByteArray, old);
        QFETCH(QByteArray, last);
        QFETCH(QByteArray, beyond);
        QFETCH(QString, where);
        const auto read = StageReader::fromJson(with(old, last), s_folder);
        QVERIFY2(read.project, qPrintable(read.error.left(300)));
        const QByteArray written = StageWriter::toJson(*read.project, s_folder);
        QCOMPARE(*StageReader::fromJson(written, s_folder).project, *read.project);
        const auto refused = StageReader::fromJson(with(old, beyond), s_folder);
        QVERIFY2(!refused.project && refused.error.contains(where), qPrintable(refused.error.left(300)));
    }

    // Counted without parsing; the bytes of the indentation may be a few more than there are.
    void valuesAndIndentationAreCounted()
    {
        std::mt19937 random(1);
        const std::function<QJsonValue(int)> any = [&](int nDepth) -> QJsonValue {
            const int nKind = int(random() % (nDepth > 5 ? 3 : 5));
            QJsonArray list;
            QJsonObject object;
            for (int i = int(random() % 5); nKind > 2 && i > 0; --i) {
                list.append(any(nDepth + 1));
                object[QString("\"%1,[").arg(i)] = any(nDepth + 1);
            }
            return nKind == 0 ? QJsonValue(7)
                : nKind < 3   ? "a\\\"],{"
                : nKind == 3  ? QJsonValue(list)
                              : object;
        };
        const std::function<int(const QJsonValue &)> count = [&](const QJsonValue &value) {
            int nCount =
                value.isArray() && value.toArray().isEmpty() ? 2 : 1; // an empty list counts as one value
            nCount += value.isObject() && value.toObject().isEmpty() ? 1 : 0;
            for (const QJsonValue &inner : value.toArray())
                nCount += count(inner);
            for (const QJsonValue &inner : value.toObject())
                nCount += count(inner);
            return nCount;
        };
        for (int i = 0; i < 300; ++i) {
            const QJsonDocument document(QJsonArray {any(0), any(0)});
            const QByteArray compact = document.toJson(QJsonDocument::Compact);
            const auto extent = StageReader::extentOf(compact);
            QCOMPARE(extent.nValues, count(document.array()));
            const auto nMore = extent.nIndentation + compact.size() - document.toJson().size();
            QVERIFY2(nMore >= 0 && nMore < extent.nValues * 40, qPrintable(QString::number(nMore)));
        }
    }

    void asManyElementsAsAllowedAreRead()
    {
        const auto result = StageReader::fromJson(manyElements(20'000), s_folder);
        QVERIFY2(result.project, qPrintable(result.error));
        QCOMPARE(result.project->scenes.first().elements.size(), 20'000);
    }

    void membersArriveInTheirPlaces()
    {
        const auto result = StageReader::fromJson(s_project, s_folder);
        QVERIFY2(result.project, qPrintable(result.error));
        QCOMPARE(QSize(result.project->width, result.project->height), QSize(800, 600));
        QCOMPARE(result.project->background, QColor(0x10, 0x20, 0x30));
        const auto &elements = result.project->scenes.first().elements;
        QCOMPARE(QRectF(elements.at(0).x, elements.at(0).y, elements.at(0).width, elements.at(0).height),
            QRectF(1.5, -2, 30, 40));
        QVERIFY(!elements.at(0).stroke.isValid());
        QCOMPARE(elements.at(1).text, "Grüße");
        QCOMPARE(elements.at(2).source, "/projects/a/images/p.svg");
    }

    void savingKeepsEverythingEvenWhatIsUnknown()
    {
        QByteArray text = with("\"version\": 1,", "\"version\": 1, \"palette\": [1, {\"deep\": null}],");
        text.replace("\"responsive\": true", "\"responsive\": true, \"grid\": {\"size\": 8}");
        text.replace("\"name\": \"First\"", "\"name\": \"First\", \"length\": 9007199254740993");
        text.replace("\"opacity\": 0.5", "\"opacity\": 0.1, \"text\": \"not for boxes\", \"shadow\": 0.1");
        const auto first = StageReader::fromJson(text, s_folder);
        QVERIFY2(first.project, qPrintable(first.error));
        const QByteArray written = StageWriter::toJson(*first.project, s_folder);
        QCOMPARE(*StageReader::fromJson(written, s_folder).project, *first.project);

        // Nothing that was in the file is missing or different in the file written.
        const QJsonObject before = QJsonDocument::fromJson(text).object();
        const QJsonObject after = QJsonDocument::fromJson(written).object();
        QCOMPARE(after[u"palette"], before[u"palette"]);
        QCOMPARE(after[u"stage"], before[u"stage"]);
        const QJsonObject sceneBefore = before[u"scenes"][0].toObject();
        const QJsonObject sceneAfter = after[u"scenes"][0].toObject();
        QCOMPARE(sceneAfter[u"length"].toInteger(), 9007199254740993);
        for (int i = 0; i < 3; ++i) {
            const QJsonObject element = sceneBefore[u"elements"][i].toObject();
            for (auto it = element.begin(); it != element.end(); ++it)
                QCOMPARE(sceneAfter[u"elements"][i].toObject().value(it.key()), it.value());
        }
    }

    // Every level of indentation costs four bytes a line.
    void whatWasReadCanBeSavedAndReadAgain()
    {
        const QTemporaryDir folder;
        const QByteArray deep =
            QByteArray(500, '[') + QByteArray("1,").repeated(100'000) + '1' + QByteArray(500, ']');
        auto project = *StageReader::fromJson(
            with("\"version\": 1,", "\"version\": 1, \"deep\": " + deep + ','), s_folder)
                            .project;
        const QString strFile = folder.filePath("a.kelpa");
        QCOMPARE(StageWriter::writeFile(project, strFile), QString());
        QVERIFY(StageReader::readFile(strFile).project);

        QJsonArray values;
        for (int i = 0; i <= 2'000'000; ++i)
            values.append(i);
        project.unknown["many"] = values;
        QCOMPARE(StageWriter::writeFile(project, strFile), "the file holds more than 2000000 values");
        project.unknown["many"] = QString(64 * 1024 * 1024, 'x');
        QVERIFY(StageWriter::writeFile(project, strFile).startsWith("the file is larger than 64"));
        QVERIFY(StageReader::readFile(strFile).project);
    }

    void imagesFollowAProjectThatIsSavedElsewhere()
    {
        const auto project = *StageReader::fromJson(s_project, s_folder).project;
        const QByteArray moved = StageWriter::toJson(project, "/projects/b/c");
        QVERIFY(moved.contains("\"source\": \"../../a/images/p.svg\""));
        QCOMPARE(*StageReader::fromJson(moved, "/projects/b/c").project, project);
    }

    void whatIsNoReadableFileIsRefusedAtOnce()
    {
        QTemporaryDir folder;
        const auto error = [&](const char *pName) {
            return StageReader::readFile(folder.filePath(QLatin1String(pName))).error;
        };
        QCOMPARE(error("missing.kelpa"), "the file does not exist");
        QVERIFY(QDir(folder.path()).mkdir("folder.kelpa"));
        QCOMPARE(error("folder.kelpa"), "this is not a regular file");
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath("pipe.kelpa")).constData(), 0600), 0);
        QCOMPARE(error("pipe.kelpa"), "this is not a regular file");
        QVERIFY(QFile::link("/dev/zero", folder.filePath("zero.kelpa")));
        QCOMPARE(error("zero.kelpa"), "this is not a regular file");
        QFile huge(folder.filePath("huge.kelpa"));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(64LL * 1024 * 1024 + 1));
        QVERIFY(error("huge.kelpa").startsWith("the file is larger than 64"));
    }

    void everyExampleOpensWithAllItsImages()
    {
        const QDir folder(QStringLiteral(KELPA_EXAMPLES));
        const QFileInfoList files = folder.entryInfoList({"*.kelpa"}, QDir::Files);
        QVERIFY(files.size() >= 3);
        for (const QFileInfo &file : files) {
            const auto result = StageReader::readFile(file.filePath());
            QVERIFY2(result.project, qPrintable(file.fileName() + QLatin1Char(' ') + result.error));
            for (const StageScene &scene : result.project->scenes) {
                for (const StageElement &element : scene.elements)
                    QVERIFY2(element.source.isEmpty() || QFile::exists(element.source),
                        qPrintable(element.source));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_StageReader)
#include "tst_stagereader.moc"
