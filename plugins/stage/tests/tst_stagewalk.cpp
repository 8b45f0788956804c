// SPDX-License-Identifier: MIT
// A long random walk through all that an author can do with projects, in a real main window with real files.
// After each step the program agrees with a model that knows nothing of how it works.
#include "stageview.h"
#include "walkcheck.h"

#include <random>

namespace {

constexpr int s_nMostDocuments = 5;

class Walk
{
public:
    explicit Walk(unsigned nSeed)
        : m_program(nSeed == 1) // to paint takes most of the time
        , m_random(nSeed)
    {
        QDir().mkpath(m_strFolder);
        const QStringList names = {"one", "one.two", "a & b", "a[*]b", QString::fromUtf8("größe"),
            QString::fromUtf8("日本語"), "50 %1", "x", "X", "7", "8", "9", "10", "11",
            QString("long").repeated(40)};
        for (const QString &strName : names)
            m_paths.append(m_strFolder + QLatin1Char('/') + strName + ".kelpa");
        for (const QString &strPath : std::as_const(m_paths))
            put(strPath, pick(4));
        put(m_strFolder + "/broken.kelpa", -1);
        put(m_strFolder + "/note.txt", -1);
        put(m_strFolder + "/one.kelpa.backup", -1); // of an earlier run
    }

    QStringList log;

    // What is wrong after the step; empty when all is well.
    QString step()
    {
        static constexpr std::pair<int, void (Walk::*)()> s_steps[] = {{6, &Walk::makeNew}, {30, &Walk::edit},
            {15, &Walk::undo}, {10, &Walk::redo}, {12, &Walk::save}, {1, &Walk::saveAs},
            {14, &Walk::switchTab}, {9, &Walk::close}, {6, &Walk::drop}, {8, &Walk::openRecent},
            {4, &Walk::open}, {2, &Walk::attach}, {3, &Walk::changeDisk}, {10, &Walk::backUp}};
        m_answers.clear();
        m_expected.clear();
        m_said.clear();
        int nDraw = pick(130); // the sum of the weights
        const auto *pStep = s_steps;
        for (; nDraw >= pStep->first; ++pStep)
            nDraw -= pStep->first;
        (this->*pStep->second)();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return check();
    }

private:
    // Steps.
    void makeNew()
    {
        enum How { Fine, Unwritable, NoPath, Rejected, Impossible };
        const How how = full() ? How(NoPath + pick(3)) : How(qMax(0, pick(12) - 7));
        const QString strPath = anyPath();
        say("new", {strPath, QString::number(how)});
        WalkFactory &factory = m_program.factory;
        factory.strPath = how == NoPath ? QString() : strPath;
        factory.nResult = how == Rejected ? QDialog::Rejected : QDialog::Accepted;
        factory.nWidth = how == Impossible ? 0 : 1;
        if (how == Impossible)
            expect(QString("Could not create project %1.\n").arg(strPath), QMessageBox::Ok);
        if (how == Unwritable)
            expect(QString("Could not save %1: ").arg(strPath), QMessageBox::Cancel);
        act([&] {
            const auto gone = takeAway(m_strFolder, how == Unwritable);
            m_program.command("File.New")->trigger();
        });
        const QList<bool> left {!factory.pDialog.isNull(), !factory.pDocument.isNull()};
        if (left != QList<bool> {how == NoPath, how <= NoPath})
            m_said.append("the dialog or the document is left wrongly");
        if (how == NoPath) { // both were left to the factory
            delete factory.pDialog;
            delete factory.pDocument;
        }
        if (how <= Unwritable || how == Impossible)
            m_model.addRecent(strPath);
        if (how <= Unwritable)
            m_model.attach({strPath, false, false, {{0}}, 0, -1});
        if (how == Fine)
            m_model.saved(*m_model.active());
    }

    void edit()
    {
        ModelDocument *pDocument = m_model.active();
        if (!pDocument)
            return open();
        const int nElements = pDocument->elements();
        StageView *pView = WalkProgram::view();
        const int nWhat = nElements == 0 ? 0 : pick(3);
        say("edit", {QString::number(nWhat)});
        if (nWhat == 0) {
            pView->addElement({});
            pDocument->push({nElements + 1});
        } else if (nWhat == 1) {
            pView->selectElements({nElements - 1});
            pView->deleteSelected();
            pDocument->push({nElements - 1});
        } else {
            const int nDistance = pick(2) ? 1 : -1;
            const int nElement = pick(qMin(nElements, 2));
            pView->selectElements({nElement});
            pView->moveSelected(nDistance, 0);
            pDocument->step(nElement, nDistance);
        }
    }

    void undo() { travel("Edit.Undo", -1); }
    void redo() { travel("Edit.Redo", 1); }
    void travel(const char *pCommand, int nBy)
    {
        say(pCommand, {});
        m_program.command(pCommand)->trigger();
        ModelDocument *pDocument = m_model.active();
        if (pDocument && pDocument->nIndex + nBy >= 0 && pDocument->nIndex + nBy < pDocument->history.size())
            pDocument->goTo(pDocument->nIndex + nBy);
    }

    void backUp()
    {
        ModelDocument *pDocument = m_model.active();
        const bool bDue =
            pDocument && pDocument->isModified() && (pDocument->bBackupDue || !pDocument->bBackedUp);
        say("back up", {});
        if (pDocument && EditorManager::activeEditor()->getDocument()->saveBackup() != bDue)
            m_said.append("the backup is due or not");
        if (bDue) {
            pDocument->bBackedUp = true;
            pDocument->bBackupDue = false;
        }
    }

    void save()
    {
        ModelDocument *pDocument = m_model.active();
        if (pDocument && pDocument->bTemp)
            return saveAsBy("File.Save");
        const bool bFails = pick(4) == 0;
        say("save", {QString::number(bFails)});
        const bool bElsewhere = bFails && pDocument && pDocument->canSave() && pick(2);
        if (bFails && pDocument && pDocument->canSave())
            expect(QString("Could not save %1: ").arg(pDocument->path),
                bElsewhere ? QMessageBox::Save : QMessageBox::Cancel);
        if (bElsewhere)
            chooseFile(*pDocument);
        act([&] {
            {
                const auto gone = takeAway(m_strFolder, bFails);
                m_program.command("File.Save")->trigger();
            }
            QCoreApplication::processEvents(); // the dialog for another place comes later
        });
        if (bElsewhere && !m_bChoiceFails)
            m_model.savedAs(*pDocument, m_strChosen);
        else if (!pDocument || !pDocument->canSave() || bFails)
            return;
        told("Saved " + pDocument->path);
        m_model.saved(*pDocument);
        pDocument->bSaveDone = true;
    }

    void saveAs() { saveAsBy("File.SaveAs.Project"); }
    void saveAsBy(const char *pCommand)
    {
        ModelDocument *pDocument = m_model.active();
        if (pDocument)
            chooseFile(*pDocument);
        say(pCommand, {m_strChosen});
        act([&] { m_program.command(pCommand)->trigger(); });
        if (!pDocument || m_bChoiceFails)
            return;
        m_model.savedAs(*pDocument, m_strChosen);
        told("Saved " + m_strChosen);
        pDocument->bSaveDone = true;
    }

    void told(const QString &strStatus)
    {
        const QString strActual = m_program.window->statusBar()->currentMessage();
        if (strActual != strStatus)
            m_said.append("in the status bar: " + strActual);
    }

    // Prepares the answer to the dialog that asks where to save.
    void chooseFile(const ModelDocument &document)
    {
        const int nHow = pick(6);
        m_strChosen = anyPath();
        if (nHow == 0)
            m_strChosen.clear();
        else if (nHow == 1)
            m_strChosen = m_strFolder + "/nowhere/z.kelpa";
        m_bChoiceFails = nHow <= 1;
        if (m_model.disk.contains(m_strChosen))
            expect(
                QFileInfo(m_strChosen).fileName() + " already exists.", QMessageBox::Yes, "Save Project As");
        if (m_model.isOpenElsewhere(m_strChosen, document)) {
            expect(m_strChosen + " is open. Close it first.", QMessageBox::Ok);
            m_bChoiceFails = true;
        } else if (nHow == 1) {
            expect(QString("Could not save %1: ").arg(m_strChosen), QMessageBox::Cancel);
        }
    }

    void switchTab()
    {
        if (m_model.documents.isEmpty())
            return open();
        const int nTab = pick(static_cast<int>(m_model.documents.size()));
        say("tab", {QString::number(nTab)});
        m_program.tabs()->setCurrentIndex(nTab);
        m_model.activate(nTab);
    }

    void close()
    {
        if (m_model.documents.isEmpty())
            return open();
        const bool bByTab = pick(2);
        const int nDocument = bByTab ? pick(static_cast<int>(m_model.documents.size())) : m_model.nActive;
        const bool bCloses = answerClosing(m_model.documents[nDocument]);
        act([&] {
            const auto gone = takeAway(m_strFolder, m_bSaveFails);
            if (bByTab)
                emit m_program.tabs()->tabCloseRequested(nDocument);
            else
                m_program.command("File.Close")->trigger();
        });
        if (bCloses)
            m_model.close(nDocument);
    }

    // Draws the answers, and what they do but for the closing itself. True: it closes.
    bool answerClosing(ModelDocument &document)
    {
        enum Answer { Yes, YesButFails, No, Cancel, BoxClosed };
        const Answer answer = Answer(pick(5));
        m_bSaveFails = answer == YesButFails && document.isModified() && !document.bTemp;
        say("close", {document.path, QString::number(answer)});
        if (!document.isModified())
            return true;
        const QMessageBox::StandardButton buttons[] = {
            QMessageBox::Yes, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel, QMessageBox::NoButton};
        expect(QString("Save changes made to %1?").arg(document.name()), buttons[answer]);
        if (answer >= No) {
            if (answer == No && document.bTemp)
                m_model.recent.removeOne(document.path);
            return answer == No;
        }
        if (document.bTemp) {
            chooseFile(document);
            if (!m_bChoiceFails)
                m_model.savedAs(document, m_strChosen);
            return !m_bChoiceFails;
        }
        if (m_bSaveFails)
            expect(QString("Could not save project %1.\nNo such file or directory").arg(document.name()),
                QMessageBox::Ok);
        else
            m_model.saved(document);
        return !m_bSaveFails;
    }

    void drop()
    {
        const QString strPath = anyFile();
        if (wouldNotFit(strPath))
            return close();
        say("drop", {strPath});
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(strPath), QUrl::fromLocalFile(m_paths.first())});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent event(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QWidget *pTarget = m_program.dropTarget();
        const bool bOpens = strPath.endsWith(".kelpa") && load(strPath);
        act([&] {
            QCoreApplication::sendEvent(pTarget, &enter);
            QCoreApplication::sendEvent(pTarget, &event);
        });
        if (event.isAccepted() != bOpens)
            m_said.append("the drop is answered wrongly");
    }

    void open()
    {
        const QString strPath = anyFile();
        if (wouldNotFit(strPath))
            return close();
        say("open", {strPath});
        m_program.factory.strPath = strPath;
        load(strPath);
        act([&] { m_program.command("File.Open_Project")->trigger(); });
    }

    void openRecent()
    {
        if (m_model.recent.isEmpty())
            return open();
        const int nEntry = pick(static_cast<int>(m_model.recent.size()));
        const QString strPath = m_model.recent.at(nEntry);
        if (wouldNotFit(strPath))
            return close();
        const auto answer = pick(2) ? QMessageBox::Yes : QMessageBox::No;
        say("recent", {QString::number(nEntry + 1), strPath, QString::number(answer)});
        const bool bExists = m_model.disk.contains(strPath);
        if (bExists)
            load(strPath);
        else
            expect(QString("The project [%1] no longer exists.\n"
                           "Do you want to remove this entry from history?\n")
                       .arg(strPath),
                answer);
        if (!bExists && answer == QMessageBox::Yes)
            m_model.recent.removeOne(strPath);
        act([&] { WalkCheck::recentCommand(nEntry)->trigger(); });
    }

    // As another plug-in brings a project without a file, or one from a backup.
    void attach()
    {
        const QString strPath = anyPath();
        const bool bTemp = pick(2) || !m_model.disk.contains(strPath);
        if (full())
            return close();
        const bool bRecent = pick(2);
        auto *pDocument = new StageDocument;
        pDocument->setFileName(bTemp ? m_program.filePath("Untitled.kelpa") : strPath);
        say("attach", {pDocument->getFileName(), QString::number(bTemp), QString::number(bRecent)});
        pDocument->setIsTempDocument(bTemp);
        pDocument->setOpenAsBackup(!bTemp);
        if (bTemp)
            pDocument->createContent(10, 10, 10, false);
        else
            pDocument->open();
        m_program.window->loadOpenedDocument(pDocument, bRecent);
        if (bRecent)
            m_model.addRecent(pDocument->getFileName());
        const int nElements = bTemp ? 0 : m_model.disk.value(strPath);
        m_model.attach({pDocument->getFileName(), bTemp, !bTemp, {{nElements}}, 0, bTemp ? -1 : 0});
    }

    void changeDisk()
    {
        const QString strPath = anyPath();
        const int nElements = pick(4);
        say("disk", {strPath, QString::number(nElements)});
        if (nElements != 0)
            return put(strPath, nElements);
        m_model.remove(strPath);
        QFile::remove(strPath);
    }

    // What opening the file does; true: it is shown.
    bool load(const QString &strPath)
    {
        const int nShown = m_model.showing(strPath);
        if (nShown >= 0) {
            m_model.activate(nShown);
        } else if (!strPath.endsWith(".kelpa")) {
            expect("Cannot open this file type.\n" + strPath, QMessageBox::Ok);
        } else if (m_model.disk.value(strPath, -1) < 0) {
            const bool bExists = m_model.disk.contains(strPath);
            expect(
                QString("Could not open project %1.\n%2")
                    .arg(strPath, bExists ? "line 1, column 2: not valid JSON" : "the file does not exist"),
                QMessageBox::Ok);
        } else {
            m_model.addRecent(strPath);
            m_model.attach({strPath, false, false, {{m_model.disk.value(strPath)}}});
            return true;
        }
        return nShown >= 0;
    }

    // Comparing.
    QString check()
    {
        WalkCheck check(m_program, m_model);
        for (int i = 0; i < qMax(m_said.size(), m_expected.size()); ++i) {
            if (i >= m_expected.size() || i >= m_said.size() || !m_said.at(i).startsWith(m_expected.at(i)))
                check.same("box", m_said.value(i), m_expected.value(i));
        }
        check.all();
        return check.faults.join('\n');
    }

    // Helpers.
    int pick(int nCount) { return static_cast<int>(m_random() % static_cast<unsigned>(nCount)); }
    [[nodiscard]] bool full() const { return m_model.documents.size() == s_nMostDocuments; }
    QString anyPath() { return m_paths.at(pick(static_cast<int>(m_paths.size()))); }
    QString anyFile()
    {
        const QStringList odd = {
            m_strFolder + "/broken.kelpa", m_strFolder + "/note.txt", m_strFolder + "/missing.kelpa"};
        return pick(6) ? anyPath() : odd.at(pick(3));
    }
    [[nodiscard]] bool wouldNotFit(const QString &strPath) const
    {
        return full() && m_model.showing(strPath) < 0 && m_model.disk.value(strPath, -1) >= 0;
    }
    void put(const QString &strPath, int nElements)
    {
        QFile file(strPath);
        if (file.open(QIODevice::WriteOnly))
            file.write(nElements < 0 ? "?" : projectText(nElements));
        m_model.disk[strPath] = nElements;
    }
    void say(const char *pStep, const QStringList &details)
    {
        log.append(QLatin1String(pStep) + QLatin1Char(' ') + details.join(' '));
    }
    void expect(
        const QString &strBox, QMessageBox::StandardButton answer, const char *pTitle = "Kelpa Studio")
    {
        m_expected.append(pTitle + (": " + strBox));
        m_answers.append(answer);
    }

    // Does it with somebody there who answers boxes and the dialog for a file.
    void act(const std::function<void()> &step)
    {
        const BoxAnswers boxes(m_answers);
        const FileAnswer place(&m_strChosen);
        step();
        for (const BoxAnswers::Box &box : boxes.boxes) {
            m_said.append(box.title + ": " + box.text + '\n' + box.informative);
            m_said.last().remove(QChar(0x200B)); // a place where a long word may break
            if (box.title == "Kelpa Studio" && box.buttons & QMessageBox::Yes)
                QCOMPARE(box.defaultButton, QMessageBox::Yes);
        }
    }

    WalkProgram m_program;
    Model m_model;
    std::mt19937 m_random;
    const QString m_strFolder = m_program.filePath("projects");
    QStringList m_paths;
    QList<QMessageBox::StandardButton> m_answers;
    QStringList m_expected;
    QStringList m_said;
    QString m_strChosen;
    bool m_bChoiceFails = false;
    bool m_bSaveFails = false;
};

} // namespace

class tst_StageWalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("kelpa.*=false"); }

    void theProgramAgreesWithTheModelAfterEachStep_data()
    {
        const auto row = columns<unsigned>("seed");
        row("a walk that paints", 1);
        for (const unsigned nSeed : {2U, 3U, 4U})
            row(qPrintable(QString("walk %1").arg(nSeed)), nSeed);
    }
    void theProgramAgreesWithTheModelAfterEachStep()
    {
        QFETCH(unsigned, seed);
        Walk walk(seed);
        for (int i = 0; i < 800; ++i) {
            const QString strFault = walk.step();
            QVERIFY2(strFault.isEmpty(),
                qPrintable(QString("seed %1, after step %2:\n%3\nThe steps were:\n%4")
                               .arg(seed)
                               .arg(i + 1)
                               .arg(strFault, walk.log.join('\n'))));
        }
    }
};

QTEST_MAIN(tst_StageWalk)
#include "tst_stagewalk.moc"
