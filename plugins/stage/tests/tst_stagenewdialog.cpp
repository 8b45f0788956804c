// SPDX-License-Identifier: MIT
#include "stagedocument.h"
#include "stagemodel.h"
#include "stagenewdialog.h"
#include "stageprogram.h"

#include <support/coretest.h>

namespace {

struct Dialog : StageNewDialog
{
    Dialog()
        : StageNewDialog(nullptr)
    {
    }
    void setPath(const QString &strPath) { findChild<QLineEdit *>("path")->setText(strPath); }
    [[nodiscard]] QString problem() const { return findChild<QLabel *>("problem")->text(); }
    [[nodiscard]] QPushButton *ok() const
    {
        return findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    }
    [[nodiscard]] bool mayAccept() const { return ok()->isEnabled(); }
};

} // namespace

class tst_StageNewDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(m_folder.path()).mkdir("folder.kelpa"));
        QFile file(m_folder.filePath("there.kelpa"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void okNeedsAFileThatCanBeMade_data()
    {
        const auto row = columns<QString, QString, QString>("typed", "file", "problem");
        const QString strFolder = m_folder.path();
        row("nothing entered", QString(), QString(), "Enter the name");
        row("blanks", "  ", QString(), "Enter the name");
        row("a folder only", strFolder + '/', strFolder + ".kelpa", "Enter the name");
        row("a name without folder", "a.kelpa", "a.kelpa", "whole path");
        row("a folder that is not there", strFolder + "/no/a", strFolder + "/no/a.kelpa",
            "/no does not exist");
        row("a folder of that name", strFolder + "/folder", strFolder + "/folder.kelpa", "is not a file");
        row("a new file", strFolder + "/a.kelpa", strFolder + "/a.kelpa", QString());
        row("the suffix in capitals", strFolder + "/b.KELPA", strFolder + "/b.KELPA", QString());
        row("another suffix", strFolder + "/b.final", strFolder + "/b.final.kelpa", QString());
        row("roundabout", ' ' + strFolder + "/x/../c ", strFolder + "/c.kelpa", QString());
        row("an existing file", strFolder + "/there", strFolder + "/there.kelpa", QString());
    }
    void okNeedsAFileThatCanBeMade()
    {
        QFETCH(QString, typed);
        QFETCH(QString, problem);
        Dialog dialog;
        dialog.setPath(typed);
        QTEST(dialog.getFilePath(), "file");
        QCOMPARE(dialog.mayAccept(), problem.isEmpty());
        QVERIFY2(dialog.problem().contains(problem), qPrintable(dialog.problem()));
        QCOMPARE(dialog.problem().isEmpty(), problem.isEmpty());
        if (!problem.isEmpty()) {
            dialog.accept(); // as the Enter key might
            QCOMPARE(dialog.result(), 0);
        }
    }

    void theFirstOfferIsAFileThatCanBeMade()
    {
        const TestProgram program;
        qputenv("HOME", program.folder.path().toLocal8Bit());
        const DocumentManager manager;
        StageDocument open;
        DocumentManager::addDocument(&open);
        for (const char *pName : {"untitled.kelpa", "untitled-2.kelpa", "untitled-3.kelpa"}) {
            Dialog dialog;
            QVERIFY2(dialog.mayAccept(), qPrintable(dialog.problem()));
            QCOMPARE(dialog.getFilePath(), program.filePath(pName));
            open.setFileName(dialog.getFilePath());
            program.write(pName);
            dialog.setPath(program.folder.path() + "/./" + pName);
            QVERIFY(dialog.problem().endsWith(" is open. Close it first."));
        }
    }

    void anExistingFileIsReplacedOnlyOnYes()
    {
        Dialog dialog;
        dialog.setPath(m_folder.filePath("there"));
        BoxAnswers answers({QMessageBox::No, QMessageBox::Yes});
        dialog.ok()->click();
        QCOMPARE(dialog.result(), 0);
        dialog.ok()->click();
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(answers.boxes.size(), 2);
        QCOMPARE(answers.boxes.first().defaultButton, QMessageBox::No);
    }

    void browsingGivesThePathAndCancelNothing()
    {
        Dialog dialog;
        dialog.show();
        const QString strPath = m_folder.filePath("chosen.kelpa");
        const FileAnswer file(&strPath);
        dialog.findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly)->click();
        QCOMPARE(dialog.getFilePath(), strPath);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
        QVERIFY(dialog.isHidden() && dialog.result() == QDialog::Rejected);
    }

    void valuesArriveInTheProject_data()
    {
        const auto row = columns<QList<int>, bool>("values", "fits");
        row("least", {1, 1, 1}, true);
        row("different", {100, 101, 102}, true);
        row("most", {16384, 16384, 240}, true);
        row("too wide", {16385, 1, 1}, false);
        row("too high", {1, 16385, 1}, false);
        row("too fast", {1, 1, 241}, false);
        row("nothing", {1, 1, 0}, false);
    }
    void valuesArriveInTheProject()
    {
        QFETCH(QList<int>, values);
        QFETCH(bool, fits);
        Dialog dialog;
        QCOMPARE(numbers(dialog), QList<int>({1280, 720, 24}));
        dialog.findChild<QCheckBox *>()->setChecked(true);
        for (int i = 0; i < 3; ++i)
            dialog.findChildren<QSpinBox *>().at(i)->setValue(values.at(i));
        QCOMPARE(numbers(dialog) == values, fits);
        StageDocument document;
        const BoxAnswers boxes({QMessageBox::Ok});
        QCOMPARE(document.createContent(values.at(0), values.at(1), values.at(2), dialog.getFlag()), fits);
        QCOMPARE(boxes.boxes.size(), fits ? 0 : 1);
        const StageProject &project = document.getModel()->project();
        QCOMPARE(QList<int>({project.width, project.height, project.frameRate}) == values, fits);
        QCOMPARE(project.responsive, fits);
        QCOMPARE(project.scenes.size(), fits ? 1 : 0);
    }

    void everyFieldHasANameAndAKey()
    {
        Dialog dialog;
        dialog.show();
        QCOMPARE(unnamedControls(&dialog), QStringList());
        const auto labels = dialog.findChildren<QLabel *>();
        for (const QLabel *pLabel : labels)
            QVERIFY2(!pLabel->buddy() || pLabel->text().contains('&'), qPrintable(pLabel->text()));
    }

private:
    static QList<int> numbers(Dialog &dialog)
    {
        return {dialog.getFirstValue(), dialog.getSecondValue(), dialog.getThirdValue()};
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_StageNewDialog)
#include "tst_stagenewdialog.moc"
