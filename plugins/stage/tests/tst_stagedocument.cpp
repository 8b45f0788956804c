// SPDX-License-Identifier: MIT
#include "stagecommands.h"
#include "stagedocument.h"
#include "stageformat.h"
#include "stagemodel.h"
#include "stagereader.h"

#include <support/coretest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Kind = StageMoveCommand::Kind;

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

// Moves the elements together; a drag is an edit of its own, steps may join.
void move(StageDocument &document, const QList<int> &elements, const QPointF &by, Kind kind)
{
    QList<StageMoveCommand::Move> moves;
    for (const int n : elements) {
        const StageElement &element = document.getModel()->elements(0).at(n);
        moves.append({n, {element.x, element.y}, QPointF(element.x, element.y) + by});
    }
    document.submitCommand(new StageMoveCommand(document.getModel(), 0, moves, kind));
}

void step(StageDocument &document, int nIndex, double dx)
{
    move(document, {nIndex}, {dx, 0}, Kind::Step);
}

// Runs the body in a child process; its result is the exit code.
int inChild(const std::function<int()> &body)
{
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(body());
    int nStatus = 0;
    ::waitpid(pid, &nStatus, 0);
    return WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
}

} // namespace

class tst_StageDocument : public QObject
{
    Q_OBJECT

private slots:
    void undoLeadsBackThroughEveryRandomEdit()
    {
        StageDocument document;
        QVERIFY(document.createContent(640, 480, 24, false));
        StageModel *pModel = document.getModel();
        QUndoStack *pStack = document.getUndoStack();
        QRandomGenerator random(4711);
        QList<StageProject> states {pModel->project()}; // by the stack's index
        for (int i = 0; i < 4000; ++i) {
            randomEdit(document, random);
            states.resize(pStack->index());
            states.append(pModel->project());
            QCOMPARE(pStack->count(), pStack->index());
            for (int n = random.bounded(20) == 0 ? random.bounded(30) : 0; n > 0 && pStack->canUndo(); --n) {
                pStack->undo();
                QCOMPARE(pModel->project(), states.at(pStack->index()));
            }
        }
        QVERIFY(pStack->count() > 500);
        for (const int nEnd : {0, pStack->count()}) {
            while (pStack->index() != nEnd) {
                nEnd == 0 ? pStack->undo() : pStack->redo();
                QCOMPARE(pModel->project(), states.at(pStack->index()));
            }
        }
    }

    void stepsMergeOnlyWhenTheyBelongTogether()
    {
        const auto pDocument = newDocument("x");
        QUndoStack *pStack = pDocument->getUndoStack();
        pStack->clear();
        step(*pDocument, 0, 1);
        step(*pDocument, 0, 10);
        QCOMPARE(pStack->count(), 1);
        step(*pDocument, 1, 1); // another element
        QCOMPARE(pStack->count(), 2);
        step(*pDocument, 1, -1); // back to the start: nothing happened
        QCOMPARE(pStack->count(), 1);
        pStack->setClean();
        step(*pDocument, 0, 1); // what was saved stays a place to go back to
        QCOMPARE(pStack->count(), 2);
        pStack->undo();
        QVERIFY(pStack->isClean());
        QCOMPARE(pDocument->getModel()->elements(0).at(0).x, 11.0);
        for (int i = 0; i < 2; ++i)
            move(*pDocument, {2}, {0, 1}, Kind::Drag);
        QCOMPARE(pStack->count(), 3);
    }

    void openTellsFilePlaceAndReasonInOneMessage()
    {
        TestProgram program;
        StageDocument document;
        document.setFileName(program.write("broken.kelpa", "{\n \"format\": }"));
        BoxAnswers answers({QMessageBox::Ok});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("broken.kelpa: line 2, column"));
        QVERIFY(!document.open());
        QCOMPARE(answers.boxes.size(), 1);
        const QString strText = answers.texts().first().remove(QChar(0x200B)); // a place to break at
        QVERIFY2(
            strText.contains(program.filePath("broken.kelpa") + ".\nline 2, column"), qPrintable(strText));
        QVERIFY(document.getModel()->project().scenes.isEmpty());
    }

    void revertReadsTheFileAgain()
    {
        TestProgram program;
        const auto pDocument = newDocument(program.filePath("a.kelpa"));
        QVERIFY(pDocument->save());
        const StageProject saved = pDocument->getModel()->project();
        step(*pDocument, 0, 5);
        QVERIFY(pDocument->revert());
        QCOMPARE(pDocument->getModel()->project(), saved);
        QVERIFY(!pDocument->isModified());
        QVERIFY(QFile::remove(pDocument->getFileName()));
        step(*pDocument, 0, 5);
        const BoxAnswers answers({QMessageBox::Ok});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not exist"));
        QVERIFY(!pDocument->revert());
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
        const auto row = columns<bool>("fullDisk");
        row("in a folder that is not ours", false);
        row("on a full disk", true);
    }
    void aSaveThatFailsSaysWhyAndLeavesTheFile()
    {
        QFETCH(bool, fullDisk);
        if (::getuid() != 0 && !fullDisk)
            QSKIP("Another user's folder needs root.");
        TestProgram program;
        const QString strFile = program.write("kept.kelpa", "as it was");
        const int nResult = inChild([&] {
            QString strStatus;
            const auto pDocument = newDocument(strFile);
            connect(
                pDocument.get(), &IDocument::statusChanged, this, [&](const QString &s) { strStatus = s; });
            if (fullDisk) {
                const rlimit limit {100, 100};
                ::signal(SIGXFSZ, SIG_IGN);
                ::setrlimit(RLIMIT_FSIZE, &limit);
            } else if (::setuid(65534) != 0) {
                return 2;
            }
            if (pDocument->save() || !pDocument->isModified())
                return 3;
            return strStatus.contains("kept.kelpa: ") ? 0 : 4;
        });
        QCOMPARE(nResult, 0);
        QCOMPARE(contentOf(strFile), QByteArray("as it was"));
        QCOMPARE(QDir(program.folder.path()).entryList({"kept*"}, QDir::Files).size(), 1);
    }

    void backupsAreTakenWhenDueAndGoWithASave()
    {
        TestProgram program;
        const auto pDocument = newDocument(program.filePath("a.kelpa"));
        const QString strBackup = program.filePath("a.kelpa.backup");
        QVERIFY(pDocument->save());
        QVERIFY(!pDocument->saveBackup());
        QVERIFY(!QFile::exists(strBackup));
        step(*pDocument, 0, 5);
        QVERIFY(pDocument->saveBackup());
        QCOMPARE(*StageReader::readFile(strBackup).project, pDocument->getModel()->project());
        QVERIFY(!pDocument->saveBackup());
        step(*pDocument, 0, 5); // becomes part of the edit before it, and is an edit all the same
        QVERIFY(pDocument->saveBackup());
        QCOMPARE(*StageReader::readFile(strBackup).project, pDocument->getModel()->project());
        QVERIFY(pDocument->save());
        QVERIFY(!QFile::exists(strBackup));
    }

    void closingWithoutSavingRemovesOnlyTheOwnBackup()
    {
        TestProgram program;
        const auto pDocument = newDocument(program.filePath("a.kelpa"));
        const QString strOther = program.write("b.kelpa.backup", "of a crash");
        const auto pOther = newDocument(program.filePath("b.kelpa"));
        QVERIFY(pDocument->saveBackup());
        const BoxAnswers answers({QMessageBox::No, QMessageBox::No});
        QVERIFY(pDocument->close());
        QVERIFY(pOther->close());
        QVERIFY(!QFile::exists(program.filePath("a.kelpa.backup")));
        QCOMPARE(contentOf(strOther), QByteArray("of a crash"));
    }

private:
    // Half of the edits take the elements of the edit before, so that steps have something to merge with.
    void randomEdit(StageDocument &document, QRandomGenerator &random)
    {
        StageModel *pModel = document.getModel();
        const int nCount = static_cast<int>(pModel->elements(0).size());
        if (random.bounded(2) == 0 || (!m_chosen.isEmpty() && m_chosen.last() >= nCount)) {
            m_chosen.clear();
            for (int i = 0; i < nCount; ++i) {
                if (random.bounded(3) == 0)
                    m_chosen.append(i);
            }
        }
        const int nKind = random.bounded(10);
        if (m_chosen.isEmpty() || (nCount < 12 && nKind < 3)) {
            const auto type = static_cast<StageElement::Type>(random.bounded(4));
            document.submitCommand(new StageAddCommand(pModel, 0, box(qPrintable(pModel->freeId(type)))));
        } else if (nKind < 4) {
            const QList<int> backwards(m_chosen.crbegin(), m_chosen.crend());
            document.submitCommand(new StageRemoveCommand(pModel, 0, backwards));
            m_chosen.clear();
        } else {
            const QPointF by(random.bounded(-2, 3) * 0.1, random.bounded(-1, 2));
            move(document, m_chosen, by, nKind < 8 ? Kind::Step : Kind::Drag);
        }
    }

    QList<int> m_chosen;
};

QTEST_MAIN(tst_StageDocument)
#include "tst_stagedocument.moc"
