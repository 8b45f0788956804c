// SPDX-License-Identifier: MIT
// bench_download [MEGABYTES]: downloads an installer, first with its length announced and then without. Fails
// when the memory grows by more than 40 MB or a turn of the event loop takes more than 50 ms.
#include <updater/largedownload.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    const QApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const qint64 nMegabytes = argc > 1 ? QByteArray(argv[1]).toLongLong() : 1024;
    bool bGood = true;
    for (const bool bLength : {true, false}) {
        const LargeDownload result = downloadLargeFile(nMegabytes << 20, bLength);
        const bool bHolds = result.nGrowth >= 0 && result.nGrowth <= qint64(40) << 20 && result.stallMs <= 50;
        bGood = bGood && bHolds;
        std::printf("%s %lld MB %s: %lld MB/s, %.1f MB more memory, longest turn %.1f ms\n",
            bHolds ? "ok  " : "FAIL", nMegabytes, bLength ? "with its length" : "without a length",
            result.nBytesPerSecond >> 20, static_cast<double>(result.nGrowth) / (1 << 20), result.stallMs);
    }
    return bGood ? 0 : 1;
}
