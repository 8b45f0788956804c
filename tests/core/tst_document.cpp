// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

class tst_Document : public WindowTest
{
    Q_OBJECT

private slots:
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
