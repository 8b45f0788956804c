// SPDX-License-Identifier: MIT
// bench_documents [COUNT]: opens and closes many projects in the main window; first one after the other with
// the real editor, then all at once without tabs, because Qt lays out all tabs for each new one. The time for
// each project must not grow with their number.
#include "stagefactory.h"

#include <document/editormanager.h>
#include <document/ieditor.h>
#include <extensionsystem/pluginmanager.h>
#include <mainwindow.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

const QByteArray s_project = R"({"format": "kelpa", "version": 1,
 "stage": {"width": 400, "height": 300, "background": "#ffffff", "frameRate": 24, "responsive": false},
 "scenes": [{"name": "One", "elements": [
   {"id": "a", "type": "rectangle", "x": 20, "y": 20, "width": 60, "height": 60, "fill": "#ff0000"}]}]})";

// Makes documents of the stage, with editors that show nothing unless `bShows` is true.
class Factory : public StageFactory
{
public:
    using StageFactory::StageFactory;
    IEditor *createEditor() override { return bShows ? StageFactory::createEditor() : new IEditor; }

    bool bShows = true;
};

double s_fSlack = 1;

template <typename Step>
double msOf(const Step &step)
{
    const std::clock_t start = std::clock(); // processor time: disk and other programs do not matter
    step();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

// The median is used because other programs on the machine disturb single steps.
double median(std::vector<double>::const_iterator begin, std::vector<double>::const_iterator end)
{
    std::vector<double> values(begin, end);
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

bool report(const char *pWhat, const std::vector<double> &ms, double fLimit)
{
    const auto nQuarter = static_cast<long>(ms.size() / 4);
    const double fFirst = median(ms.begin(), ms.begin() + nQuarter);
    const double fLast = median(ms.end() - nQuarter, ms.end());
    const bool bGood = s_fSlack == 0 || fLast / fFirst <= fLimit * s_fSlack;
    std::printf("%s %s: %.2f ms each in the first quarter, %.2f ms in the last: %.2f times, bound %.1f\n",
        bGood ? "ok  " : "FAIL", pWhat, fFirst, fLast, fLast / fFirst, fLimit);
    return bGood;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    s_fSlack = qEnvironmentVariable("KELPA_BENCH_SLACK", QStringLiteral("1")).toDouble();
    const int nCount = qMax(40, QCoreApplication::arguments().value(1, QStringLiteral("1000")).toInt());
    const QTemporaryDir dir;
    ExtensionSystem::PluginManager plugins;
    plugins.setSettings(
        std::make_unique<QSettings>(dir.filePath(QStringLiteral("user.ini")), QSettings::IniFormat));
    QStringList files;
    for (int i = 0; i < nCount; ++i) {
        files.append(dir.filePath(QStringLiteral("%1.kelpa").arg(i)));
        QFile file(files.last());
        if (!file.open(QIODevice::WriteOnly) || file.write(s_project) != s_project.size())
            return 1;
    }
    Factory factory(nullptr);
    ExtensionSystem::PluginManager::addObject(&factory);
    MainWindow window(nullptr);
    window.resize(900, 700);
    window.show();

    const auto open = [&](const QString &strFile) { window.loadFile(strFile); };
    const auto close = [&] { window.fileClose(); };
    std::vector<double> pairs, opening, closing;
    for (const QString &strFile : std::as_const(files))
        pairs.push_back(msOf([&] { open(strFile); }) + msOf(close));
    factory.bShows = false;
    for (const QString &strFile : std::as_const(files))
        opening.push_back(msOf([&] { open(strFile); }));
    const bool bAll = EditorManager::getEditors().size() == nCount;
    while (!EditorManager::getEditors().isEmpty())
        closing.push_back(msOf(close));
    std::reverse(closing.begin(), closing.end()); // now in the order of how many were open
    ExtensionSystem::PluginManager::removeObject(&factory);

    const bool bPairs = report("open and close, one after the other", pairs, 1.3);
    const bool bOpening = report("open, all others staying open", opening, 3);
    const bool bClosing = report("close, all others still open", closing, 3);
    return bAll && bPairs && bOpening && bClosing ? 0 : 1;
}
