// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

class tst_Document : public WindowTest
{
    Q_OBJECT

private slots:
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
};

QTEST_MAIN(tst_Document)
#include "tst_document.moc"
