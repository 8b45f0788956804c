// SPDX-License-Identifier: MIT
#include <support/coretest.h>

namespace {

using Breakpoints = DocumentManager::Breakpoints;

QList<QTimer *> timers()
{
    return DocumentManager::getInstance()->findChildren<QTimer *>();
}

} // namespace

class tst_DocumentManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pManager = std::make_unique<DocumentManager>();
        DocumentManager::setSettings(ExtensionSystem::PluginManager::settings());
    }

    void cleanup()
    {
        m_pManager.reset();
        m_pProgram.reset();
    }

    void documentsShareTheGroupAndHaveATimerEach()
    {
        FakeDocument first;
        auto pSecond = std::make_unique<FakeDocument>();
        for (IDocument *pDocument : QList<IDocument *> {&first, pSecond.get(), &first, nullptr})
            DocumentManager::addDocument(pDocument);
        QCOMPARE(DocumentManager::getDocuments(), QList<IDocument *>({&first, pSecond.get()}));
        QCOMPARE(DocumentManager::getUndoGroup()->stacks().size(), 2);
        QCOMPARE(timers().size(), 2);
        QVERIFY(!timers().at(0)->isActive() && !timers().at(1)->isActive());

        DocumentManager::startWaitingBackup(pSecond.get());
        pSecond.reset(); // deleted without being removed first
        QCOMPARE(DocumentManager::getDocuments(), QList<IDocument *>({&first}));
        QCOMPARE(DocumentManager::getUndoGroup()->stacks(), QList<QUndoStack *>({&first.stack}));
        QCOMPARE(timers().size(), 1);
        QVERIFY(DocumentManager::removeDocument(&first));
        QVERIFY(!DocumentManager::removeDocument(&first));
        QVERIFY(DocumentManager::getUndoGroup()->stacks().isEmpty() && timers().isEmpty());
    }

    void backupIsTakenEveryIntervalOnceStarted()
    {
        FakeDocument document;
        DocumentManager::addDocument(&document);
        QTimer *pTimer = timers().first();
        DocumentManager::startWaitingBackup(&document);
        QVERIFY(pTimer->isActive() && pTimer->isSingleShot());
        QCOMPARE(pTimer->interval(), 300000);

        DocumentManager::setAutobackupTimeout(20);
        DocumentManager::startWaitingBackup(&document);
        QCOMPARE(pTimer->interval(), 20000);
        pTimer->stop();
        QMetaObject::invokeMethod(pTimer, "timeout"); // at once
        QCOMPARE(document.calls, QStringList({"saveBackup"}));
        QVERIFY(pTimer->isActive());

        DocumentManager::stopWaitingBackup(&document);
        QVERIFY(!pTimer->isActive());
    }

    void backupThatClosesItsDocument()
    {
        auto *pDocument = new FakeDocument;
        DocumentManager::addDocument(pDocument);
        pDocument->onBackup = [=] { DocumentManager::removeDocument(pDocument); };
        QMetaObject::invokeMethod(timers().first(), "timeout");
        QVERIFY(timers().isEmpty());
        delete pDocument;
    }

    void oddIntervalsNeitherSpinNorOverflow()
    {
        FakeDocument document;
        DocumentManager::addDocument(&document);
        const int nLargest = std::numeric_limits<int>::max();
        for (const auto &[nSeconds, nWait] :
            {std::pair(0, 1000), std::pair(-5, 1000), std::pair(nLargest, nLargest / 1000 * 1000)}) {
            DocumentManager::setAutobackupTimeout(nSeconds);
            DocumentManager::startWaitingBackup(&document);
            QCOMPARE(timers().first()->interval(), nWait);
            QCOMPARE(DocumentManager::getAutobackupTimeout(), nSeconds);
        }
    }

    void preferencesSurviveARestart()
    {
        DocumentManager::readSettings();
        QVERIFY(DocumentManager::isAutobackupEnabled() && DocumentManager::isPasteSvgAsFreeform());
        const Breakpoints h = {{100, true}, {200, false}};
        DocumentManager::setHBreakpoints({{1, true}, {2, true}, {3, true}});
        DocumentManager::saveSettings();
        DocumentManager::setAutoBackupEnabled(false);
        DocumentManager::setAutobackupTimeout(42);
        DocumentManager::setPasteSvgAsFreeform(false);
        DocumentManager::setHBreakpoints(h);
        DocumentManager::setVBreakpoints({{7, true}});
        DocumentManager::saveSettings();
        const QSettings *pStore = ExtensionSystem::PluginManager::settings();
        QCOMPARE(pStore->value("Breakpoints/Horizontal/2/Value").toInt(), 200);
        QVERIFY(!pStore->contains("Breakpoints/Horizontal/3/Value"));

        m_pManager.reset();
        m_pManager = std::make_unique<DocumentManager>();
        DocumentManager::setSettings(ExtensionSystem::PluginManager::settings());
        DocumentManager::readSettings();
        QVERIFY(!DocumentManager::isAutobackupEnabled());
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 42);
        QVERIFY(!DocumentManager::isPasteSvgAsFreeform());
        QCOMPARE(DocumentManager::getHBreakpoints(), h);
        DocumentManager::readSettings();
        QCOMPARE(DocumentManager::getHBreakpoints(), h + h);
    }

private:
    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<DocumentManager> m_pManager;
};

QTEST_MAIN(tst_DocumentManager)
#include "tst_documentmanager.moc"
