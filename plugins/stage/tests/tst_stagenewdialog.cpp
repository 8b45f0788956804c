// SPDX-License-Identifier: MIT
#include "stagenewdialog.h"

#include <support/coretest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

struct Dialog : StageNewDialog
{
    Dialog()
        : StageNewDialog(nullptr)
    {
    }
    void setPath(const QString &strPath) { findChild<QLineEdit *>(QStringLiteral("path"))->setText(strPath); }
    [[nodiscard]] QString problem() const { return findChild<QLabel *>(QStringLiteral("problem"))->text(); }
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
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder.kelpa")));
        QFile file(m_folder.filePath(QStringLiteral("there.kelpa")));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void okNeedsAFileThatCanBeMade_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("problem");
        const QString strFolder = m_folder.path();
        QTest::newRow("nothing entered") << QString() << QStringLiteral("Enter the name");
        QTest::newRow("blanks") << QStringLiteral("  ") << QStringLiteral("Enter the name");
        QTest::newRow("a folder only") << strFolder + QLatin1Char('/') << QStringLiteral("Enter the name");
        QTest::newRow("a name without folder") << QStringLiteral("a.kelpa") << QStringLiteral("whole path");
        QTest::newRow("a folder that is not there")
            << strFolder + QStringLiteral("/no/a.kelpa") << QStringLiteral("/no does not exist");
        QTest::newRow("a folder of that name")
            << strFolder + QStringLiteral("/folder") << QStringLiteral("is not a file");
        QTest::newRow("a new file") << strFolder + QStringLiteral("/a.kelpa") << QString();
        QTest::newRow("an existing file") << strFolder + QStringLiteral("/there.kelpa") << QString();
    }
    void okNeedsAFileThatCanBeMade()
    {
        QFETCH(QString, path);
        QFETCH(QString, problem);
        Dialog dialog;
        dialog.setPath(path);
        QCOMPARE(dialog.mayAccept(), problem.isEmpty());
        QVERIFY2(dialog.problem().contains(problem), qPrintable(dialog.problem()));
        QCOMPARE(dialog.problem().isEmpty(), problem.isEmpty());
        if (!problem.isEmpty()) {
            dialog.accept(); // as the Enter key might
            QCOMPARE(dialog.result(), 0);
        }
    }

    void theSuffixIsAddedOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("file");
        QTest::newRow("no suffix") << QStringLiteral("/a/b") << QStringLiteral("/a/b.kelpa");
        QTest::newRow("the suffix") << QStringLiteral("/a/b.kelpa") << QStringLiteral("/a/b.kelpa");
        QTest::newRow("in capitals") << QStringLiteral("/a/b.KELPA") << QStringLiteral("/a/b.KELPA");
        QTest::newRow("another suffix") << QStringLiteral("/a/b.final") << QStringLiteral("/a/b.final.kelpa");
        QTest::newRow("roundabout") << QStringLiteral(" /a/../c/b ") << QStringLiteral("/c/b.kelpa");
        QTest::newRow("empty stays empty") << QString() << QString();
    }
    void theSuffixIsAddedOnce()
    {
        QFETCH(QString, typed);
        Dialog dialog;
        dialog.setPath(typed);
        QTEST(dialog.getFilePath(), "file");
    }

    void anExistingFileIsReplacedOnlyOnYes()
    {
        Dialog dialog;
        dialog.setPath(m_folder.filePath(QStringLiteral("there")));
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
        QWidgetList fields;
        for (QLabel *pLabel : dialog.findChildren<QLabel *>()) {
            if (pLabel->buddy()) {
                QVERIFY2(pLabel->text().contains(QLatin1Char('&')), qPrintable(pLabel->text()));
                QVERIFY(!pLabel->buddy()->accessibleName().isEmpty());
                fields.append(pLabel->buddy());
            }
        }
        QCOMPARE(fields.size(), 4);
        for (const auto *pButton : dialog.findChildren<QAbstractButton *>())
            QVERIFY(!pButton->text().isEmpty());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_StageNewDialog)
#include "tst_stagenewdialog.moc"
