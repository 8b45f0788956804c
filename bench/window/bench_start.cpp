// SPDX-License-Identifier: MIT
// bench_start PROGRAM [RUNS]: compares the time from exec to the mapped main window, and the resident memory
// then, of the program with the plug-ins core and stage and of a bare main window of the same size. Also
// prints the time with all plug-ins. Needs an X display with a window manager.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <poll.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr double s_fMostTime = 2.0; // times the bare window's
constexpr double s_fMostMemory = 1.6;
constexpr int s_nTimeoutMs = 60000;

// Reports each window that is mapped on the display.
class MapWatch
{
public:
    MapWatch()
        : m_pConnection(xcb_connect(nullptr, nullptr))
    {
        const uint32_t nEvents = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_pConnection)).data->root;
        xcb_change_window_attributes(m_pConnection, root, XCB_CW_EVENT_MASK, &nEvents);
        xcb_flush(m_pConnection);
    }
    ~MapWatch() { xcb_disconnect(m_pConnection); }
    Q_DISABLE_COPY_MOVE(MapWatch)

    // Drops what earlier programs have caused: a window may be replaced, and mapped again, after its start.
    void forget()
    {
        while (void *pEvent = xcb_poll_for_event(m_pConnection))
            std::free(pEvent);
    }

    // The size of the next window wider than 200 pixels, which no helper window is; empty if none comes.
    QSize waitForWindow()
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < s_nTimeoutMs) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> pEvent(
                xcb_poll_for_event(m_pConnection), &std::free);
            if (!pEvent)
                waitForInput();
            else if ((pEvent->response_type & 0x7f) == XCB_MAP_NOTIFY)
                if (const QSize size = sizeOf(pEvent.get()); size.width() > 200)
                    return size;
        }
        return {};
    }

private:
    void waitForInput()
    {
        pollfd entry {xcb_get_file_descriptor(m_pConnection), POLLIN, 0};
        poll(&entry, 1, 100);
    }
    QSize sizeOf(const xcb_generic_event_t *pEvent)
    {
        const auto window = reinterpret_cast<const xcb_map_notify_event_t *>(pEvent)->window;
        const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> pReply(
            xcb_get_geometry_reply(m_pConnection, xcb_get_geometry(m_pConnection, window), nullptr),
            &std::free);
        return pReply ? QSize(pReply->width, pReply->height) : QSize();
    }

    xcb_connection_t *const m_pConnection;
};

QByteArray processFile(const QProcess &process, const char *pName)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process.processId()).arg(QLatin1String(pName)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double residentMiB(const QProcess &process)
{
    static const QRegularExpression s_line(QStringLiteral("VmRSS:\\s*(\\d+) kB"));
    return s_line.match(QString::fromLatin1(processFile(process, "status"))).captured(1).toDouble() / 1024;
}

// Waits until the processor time stands still: then it has painted and done what it had put off.
void waitUntilIdle(const QProcess &process)
{
    const auto processorTime = [&] { return processFile(process, "stat").split(' ').mid(13, 2); };
    QByteArrayList before;
    for (QByteArrayList now = processorTime(); now != before; now = processorTime()) {
        before = now;
        QThread::msleep(200);
    }
}

struct Start
{
    double fMs = 0;
    double fMiB = 0;
    QSize size;
    bool bWebEngine = false;
    bool bImageFormats = false; // any plug-in for image formats is loaded
};

Start start(MapWatch &display, const QString &strProgram, const QStringList &arguments)
{
    Start result;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    display.forget();
    QElapsedTimer timer;
    timer.start();
    process.start(strProgram, arguments);
    result.size = display.waitForWindow();
    result.fMs = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    const QByteArray maps = processFile(process, "maps");
    result.bWebEngine = maps.contains("WebEngine"); // the engine may only come after the first paint
    result.bImageFormats = maps.contains("/imageformats/");
    waitUntilIdle(process);
    result.fMiB = residentMiB(process);
    process.terminate();
    process.waitForFinished();
    return result;
}

int showBare(QApplication &app)
{
    const QStringList size = app.arguments().value(2).split(QLatin1Char('x'));
    QMainWindow window;
    window.resize(size.value(0).toInt(), size.value(1).toInt());
    window.show();
    return QApplication::exec();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

bool holds(const char *pWhat, const char *pUnit, const std::vector<double> &own,
    const std::vector<double> &bare, double fLimit)
{
    const double fSlack = qEnvironmentVariable("KELPA_BENCH_SLACK", QStringLiteral("1")).toDouble();
    const double fRatio = median(own) / median(bare);
    const bool bGood = fSlack == 0 || fRatio <= fLimit * fSlack;
    std::printf("%s %s: %.1f %s, bare %.1f %s: %.2f times, bound %.2f\n", bGood ? "ok  " : "FAIL", pWhat,
        median(own), pUnit, median(bare), pUnit, fRatio, fLimit);
    return bGood;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], "--bare") == 0) {
        QApplication app(argc, argv);
        return showBare(app);
    }
    const QCoreApplication app(argc, argv);
    const QString strProgram = QCoreApplication::arguments().value(1);
    const int nRuns = qMax(1, QCoreApplication::arguments().value(2, QStringLiteral("9")).toInt());
    const QTemporaryDir settings;
    QFile file(settings.filePath(QStringLiteral("KelpaStudio.ini")));
    if (!file.open(QIODevice::WriteOnly) || file.write("[Designer]\nRun=true\n") < 0) // else it is maximized
        return 1;
    file.close();

    MapWatch display;
    const QStringList common {
        QStringLiteral("--new-instance"), QStringLiteral("--settings-path"), settings.path()};
    const QStringList coreAndStage = common + QStringList {QStringLiteral("--load"), QStringLiteral("stage")};
    std::vector<double> ms, allMs, bareMs, mib, bareMiB;
    for (int i = -1; i < nRuns; ++i) {
        const Start own = start(display, strProgram, coreAndStage);
        const Start all = start(display, strProgram, common);
        const QString strSize = QStringLiteral("%1x%2").arg(own.size.width()).arg(own.size.height());
        const Start bare =
            start(display, QCoreApplication::applicationFilePath(), {QStringLiteral("--bare"), strSize});
        if (own.size.isEmpty() || bare.size.isEmpty()) {
            std::printf("FAIL no window came\n");
            return 1;
        }
        // With all plug-ins, image formats are allowed: the first paint reads the images of a style sheet.
        if (own.bWebEngine || own.bImageFormats || all.bWebEngine) {
            std::printf("FAIL the start loads a web engine or libraries of image formats\n");
            return 1;
        }
        if (i < 0) // the first round only brings the files into memory
            continue;
        ms.push_back(own.fMs);
        allMs.push_back(all.fMs);
        bareMs.push_back(bare.fMs);
        mib.push_back(own.fMiB);
        bareMiB.push_back(bare.fMiB);
    }
    std::printf(
        "     with all plug-ins: %.1f ms, %.2f times\n", median(allMs), median(allMs) / median(bareMs));
    const bool bTime = holds("start to the mapped window", "ms", ms, bareMs, s_fMostTime);
    return holds("resident memory", "MiB", mib, bareMiB, s_fMostMemory) && bTime ? 0 : 1;
}
