// SPDX-License-Identifier: MIT
#include "stagecommands.h"
#include "stagedocument.h"
#include "stageformat.h"
#include "stagemodel.h"
#include "stagereader.h"

#include <actionmanager/shortcuts.h>
#include <mainwindow.h>
#include <support/coretest.h>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

// The disk of this test: these two stand in for those of the system library.
static qint64 s_nFree = -1; // bytes that files may still grow; -1: as many as they like
static int s_nSyncError = 0;

extern "C" Q_DECL_EXPORT ssize_t write(int nFile, const void *pData, size_t nSize)
{
    struct stat info = {};
    if (s_nFree >= 0 && ::fstat(nFile, &info) == 0 && S_ISREG(info.st_mode)) {
        nSize = qMin(nSize, size_t(s_nFree));
        s_nFree -= qint64(nSize);
        errno = ENOSPC;
        return nSize == 0 ? -1 : ::syscall(SYS_write, nFile, pData, nSize);
    }
    return ::syscall(SYS_write, nFile, pData, nSize);
}

extern "C" Q_DECL_EXPORT int fdatasync(int nFile)
{
    errno = s_nSyncError;
    return s_nSyncError ? -1 : int(::syscall(SYS_fdatasync, nFile));
}

namespace {

StageElement box(const char *pId)
{
    StageElement element;
    element.id = QLatin1String(pId);
    element.width = element.height = 10;
    return element;
}

// A document on a file in the folder, with three elements and no history.
std::unique_ptr<StageDocument> newDocument(const QString &strFileName)
{
    auto pDocument = std::make_unique<StageDocument>();
    pDocument->setFileName(strFileName);
    if (!pDocument->createContent(640, 480, 24, false))
        return nullptr;
    for (const char *pId : {"a", "b", "c"})
        pDocument->submitCommand(new StageAddCommand(pDocument->getModel(), 0, box(pId)));
    return pDocument;
}

void step(StageDocument &document, int nIndex, double dx)
{
    const StageElement &element = document.getModel()->elements(0).at(nIndex);
    const QList<StageMoveCommand::Move> moves {{nIndex, {element.x, element.y}, {element.x + dx, element.y}}};
    document.submitCommand(new StageMoveCommand(document.getModel(), 0, moves, StageMoveCommand::Kind::Step));
}

} // namespace

class tst_StageDocument : public QObject
{
    Q_OBJECT

private slots:
    void revertReadsTheFileAgainOrTellsFilePlaceAndReason()
    {
        TestProgram program;
        const auto pDocument = newDocument(program.filePath("a.kelpa"));
        QVERIFY(pDocument->save());
        const StageProject saved = pDocument->getModel()->project();
        step(*pDocument, 0, 5);
        QVERIFY(pDocument->revert());
        QCOMPARE(pDocument->getModel()->project(), saved);
        QVERIFY(!pDocument->isModified());
        program.write("a.kelpa", "{\n \"format\": }");
        step(*pDocument, 0, 5);
        const BoxAnswers answers({QMessageBox::Ok});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("a.kelpa: line 2, column"));
        QVERIFY(!pDocument->revert());
        const QString strText = answers.texts().join('\n').remove(QChar(0x200B)); // a place to break at
        QVERIFY2(strText.contains(pDocument->getFileName() + " again.\nline 2, column"), qPrintable(strText));
        QCOMPARE(pDocument->getModel()->elements(0).first().x, 5.0);
    }

    void savingKeepsThePermissionsAndTheLink()
    {
        TestProgram program;
        const QString strFile = program.write("real.kelpa");
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(strFile, permissions));
        QVERIFY(QFile::link(strFile, program.filePath("link.kelpa")));
        const auto pDocument = newDocument(program.filePath("link.kelpa"));
        QVERIFY(pDocument->save());
        QVERIFY(QFileInfo(program.filePath("link.kelpa")).isSymLink());
        QVERIFY(contentOf(strFile).contains("\"kelpa\""));
        QCOMPARE(QFile::permissions(strFile) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
    }

    void aSaveThatFailsSaysWhyAndLeavesTheFile_data()
    {
        const auto row = columns<uint, int, int, QString>("user", "bytesFree", "syncError", "reason");
        row("in a folder that is not ours", 65534, -1, 0, "Permission denied");
        row("on a full disk", 0, 0, 0, "No space left on device");
        row("on a disk that fills up", 0, 100, 0, "No space left on device");
        row("on a disk that is full as the last turns out", 0, -1, ENOSPC, "No space left on device");
        row("on a disk that breaks", 0, -1, EIO, "Input/output error");
    }
    void aSaveThatFailsSaysWhyAndLeavesTheFile()
    {
        QFETCH(uint, user);
        QFETCH(int, bytesFree);
        QFETCH(int, syncError);
        QFETCH(QString, reason);
        if (::geteuid() != 0 && user != 0)
            QSKIP("Another user's folder needs root.");
        TestProgram program;
        const QString strFile = program.write("kept.kelpa", "as it was");
        const auto pDocument = newDocument(strFile);
        const BoxAnswers answers({QMessageBox::Cancel});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("kept.kelpa: not saved: " + reason));
        s_nFree = bytesFree;
        s_nSyncError = syncError;
        const bool bSaved = (user != 0 && ::seteuid(user) != 0) || pDocument->save();
        QString strError;
        const bool bExported = Shortcuts::exportTo(strFile, strError); // written the same way
        s_nFree = -1;
        s_nSyncError = 0;
        QVERIFY(user == 0 || ::seteuid(0) == 0);
        QVERIFY(!bSaved && pDocument->isModified() && !bExported && strError.endsWith(reason));
        QCOMPARE(answers.texts().join('\n').remove(QChar(0x200B)),
            QString("Could not save %1: %2").arg(strFile, reason));
        QCOMPARE(contentOf(strFile), QByteArray("as it was"));
        QCOMPARE(entries(program).size(), 1);
    }

    void theLongestNamesAreSavedAndBackedUp()
    {
        for (const int nBytes : {241, 248, 249, 255}) {
            const TestProgram program;
            const QString strName =
                QString((nBytes - 6) / 2, QChar(0xE4)) + QString(nBytes % 2, 'n') + ".kelpa";
            const auto pDocument = newDocument(program.folder.filePath(strName));
            QVERIFY(pDocument->save());
            step(*pDocument, 0, 5);
            QVERIFY(pDocument->saveBackup());
            QCOMPARE(entries(program).size(), 2);
        }
    }

    void aBackupThatFailsIsToldUntilThereIsOne()
    {
        TestProgram program;
        MainWindow window(nullptr);
        const auto pDocument = newDocument(program.filePath("a.kelpa"));
        const QString strBackup = program.filePath("a.kelpa.backup");
        QVERIFY(pDocument->save());
        step(*pDocument, 0, 5);
        s_nFree = 0;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no backup: No space left"));
        QVERIFY(!pDocument->saveBackup());
        s_nFree = -1;
        const KPNotificationBar *pBar = window.getNotificationBar();
        QVERIFY(pBar->text().startsWith("No backup of ") && !pBar->isHidden());
        QVERIFY(pDocument->saveBackup());
        QVERIFY(pBar->isHidden());
        QCOMPARE(*StageReader::readFile(strBackup).project, pDocument->getModel()->project());
    }

private:
    // Also hidden ones.
    static QStringList entries(const TestProgram &program)
    {
        return QDir(program.folder.path()).entryList({"*kelpa*", "*.backup"}, QDir::Files | QDir::Hidden);
    }
};

QTEST_MAIN(tst_StageDocument)
#include "tst_stagedocument.moc"
