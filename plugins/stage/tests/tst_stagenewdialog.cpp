// SPDX-License-Identifier: MIT
#include "stagedocument.h"
#include "stagenewdialog.h"

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
    [[nodiscard]] bool mayAccept() const
    {
        return findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled();
    }
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
            QVERIFY(StageDocument::isOpenElsewhere(program.folder.path() + "/./" + pName, nullptr));
        }
    }

    void anExistingFileIsReplacedOnlyOnYes()
    {
        Dialog dialog;
        dialog.setPath(m_folder.filePath("there"));
        BoxAnswers answers({QMessageBox::No, QMessageBox::Yes});
        dialog.accept();
        QCOMPARE(dialog.result(), 0);
        dialog.accept();
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(answers.boxes.size(), 2);
        QCOMPARE(answers.boxes.first().defaultButton, QMessageBox::No);
    }

    void valuesComeOutInTheOrderOfTheFields()
    {
        Dialog dialog;
        const auto boxes = dialog.findChildren<QSpinBox *>();
        QCOMPARE(boxes.size(), 3);
        int nValue = 100;
        for (QSpinBox *pBox : boxes)
            pBox->setValue(nValue++);
        dialog.findChild<QCheckBox *>()->setChecked(true);
        QCOMPARE(dialog.getFirstValue(), 100);
        QCOMPARE(dialog.getSecondValue(), 101);
        QCOMPARE(dialog.getThirdValue(), 102);
        QVERIFY(dialog.getFlag());
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
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_StageNewDialog)
#include "tst_stagenewdialog.moc"
