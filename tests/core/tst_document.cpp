// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <icore.h>
#include <irecentfilesmanager.h>
#include <mainwindow.h>

using Buttons = QList<QMessageBox::StandardButton>;
Q_DECLARE_METATYPE(Buttons)

class tst_Document : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pWindow = std::make_unique<MainWindow>(nullptr);
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pProgram.reset();
    }

    void closing_data()
    {
        const auto row = columns<bool, bool, bool, Buttons, bool, QStringList, QStringList>(
            "temporary", "modified", "savingSucceeds", "answers", "closed", "calls", "recent");

        const QStringList old = {"/p/intro.final.kelpa", "/p/other.kelpa"};
        const QStringList dropped = {"/p/other.kelpa"};
        const QStringList renamed = {"/p/new.kelpa", "/p/other.kelpa"};
        const QStringList saveOnly = {"close", "save"};
        const QStringList saveAsOnly = {"close", "saveAs"};
        const QStringList none = {"close"};
        using Q = QMessageBox;
        row("unmodified asks nothing", false, false, true, Buttons {}, true, none, old);
        row("cancel keeps it open", false, true, true, Buttons {Q::Cancel}, false, none, old);
        row("a closed box keeps it open", false, true, true, Buttons {Q::NoButton}, false, none, old);
        row("no saves nothing", false, true, true, Buttons {Q::No}, true, none, old);
        row("yes saves", false, true, true, Buttons {Q::Yes}, true, saveOnly, old);
        row("a save that fails is told and keeps it open", false, true, false, Buttons {Q::Yes, Q::Ok}, false,
            saveOnly, old);
        row("a temporary one always asks", true, false, true, Buttons {Q::Cancel}, false, none, old);
        row("no to a temporary one drops its recent entry", true, false, true, Buttons {Q::No}, true, none,
            dropped);
        row("yes to a temporary one renames its recent entry", true, true, true, Buttons {Q::Yes}, true,
            saveAsOnly, renamed);
        row("a save-as that was cancelled says nothing more", true, true, false, Buttons {Q::Yes}, false,
            saveAsOnly, old);
    }

    void closing()
    {
        QFETCH(bool, temporary);
        QFETCH(bool, modified);
        QFETCH(bool, savingSucceeds);
        QFETCH(Buttons, answers);
        IRecentFilesManager::getInstance()->addFile("/p/other.kelpa");
        IRecentFilesManager::getInstance()->addFile("/p/intro.final.kelpa");
        FakeDocument document;
        document.setFileName("/p/intro.final.kelpa");
        document.strSaveAsName = "/p/new.kelpa";
        document.setIsTempDocument(temporary);
        document.bSaveSucceeds = document.bSaveAsSucceeds = savingSucceeds;
        if (modified)
            document.modify();
        QSignalSpy closing(&document, &IDocument::aboutToClose);

        BoxAnswers boxes(answers);
        const bool bClosed = document.close();
        QTEST(bClosed, "closed");
        QCOMPARE(closing.count(), bClosed ? 1 : 0);
        QTEST(document.calls, "calls");
        QTEST(IRecentFilesManager::getInstance()->getRecentFiles(), "recent");
        QCOMPARE(boxes.boxes.size(), answers.size());
    }

    void boxesNameTheDocumentByItsCompleteBaseName()
    {
        FakeDocument document;
        document.setFileName("/p/intro.final.kelpa");
        document.modify();
        document.bSaveSucceeds = false;
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(!document.close());
        QCOMPARE(boxes.texts(),
            QStringList({"Save changes made to intro.final?", "Could not save project intro.final."}));
        QCOMPARE(boxes.boxes.first().title, "Kelpa Studio");
        QCOMPARE(boxes.boxes.first().buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(boxes.boxes.first().defaultButton, QMessageBox::Yes);
        QCOMPARE(boxes.boxes.first().pParent, m_pWindow.get());
        QVERIFY(document.isModified());
    }

    void dyingDocumentTellsItsListenersTwiceAndWholeTheFirstTime()
    {
        auto pDocument = std::make_unique<FakeDocument>();
        pDocument->setFileName("/p/a.kelpa");
        QStringList names;
        int nCount = 0;
        connect(pDocument.get(), &QObject::destroyed, this, [&](QObject *pObject) {
            ++nCount;
            if (auto *pDying = qobject_cast<IDocument *>(pObject))
                names.append(pDying->getFileName());
        });
        pDocument.reset();
        QCOMPARE(names, QStringList({"/p/a.kelpa"}));
        QCOMPARE(nCount, 2);
    }

private:
    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
};

QTEST_MAIN(tst_Document)
#include "tst_document.moc"
