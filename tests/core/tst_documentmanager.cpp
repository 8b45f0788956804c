// SPDX-License-Identifier: MIT
#include <support/coretest.h>

namespace {

using Breakpoints = DocumentManager::Breakpoints;

QList<QTimer *> timers()
{
    return DocumentManager::getInstance()->findChildren<QTimer *>();
}

// Lets a backup timer run out at once.
void fire(QTimer *pTimer)
{
    QMetaObject::invokeMethod(pTimer, "timeout");
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
        FakeDocument second;
        DocumentManager::addDocument(&first);
        DocumentManager::addDocument(&second);
        DocumentManager::addDocument(&first);
        DocumentManager::addDocument(nullptr);
        QCOMPARE(DocumentManager::getDocuments(), QList<IDocument *>({&first, &second}));
        QCOMPARE(
            DocumentManager::getUndoGroup()->stacks(), QList<QUndoStack *>({&first.stack, &second.stack}));
        QCOMPARE(timers().size(), 2);
        QVERIFY(!timers().at(0)->isActive() && !timers().at(1)->isActive());

        QVERIFY(DocumentManager::removeDocument(&first));
        QCOMPARE(DocumentManager::getDocuments(), QList<IDocument *>({&second}));
        QCOMPARE(DocumentManager::getUndoGroup()->stacks(), QList<QUndoStack *>({&second.stack}));
        QCOMPARE(timers().size(), 1);
        QVERIFY(!DocumentManager::removeDocument(&first));
        QVERIFY(DocumentManager::removeDocument(nullptr));
    }

    void deletedDocumentLeavesEverything()
    {
        auto pDocument = std::make_unique<FakeDocument>();
        DocumentManager::addDocument(pDocument.get());
        DocumentManager::startWaitingBackup(pDocument.get());
        pDocument.reset();
        QVERIFY(DocumentManager::getDocuments().isEmpty());
        QVERIFY(DocumentManager::getUndoGroup()->stacks().isEmpty());
        QVERIFY(timers().isEmpty());
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
        fire(pTimer);
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
        fire(timers().first());
        QVERIFY(timers().isEmpty());
        delete pDocument;
    }

    void oddIntervalsNeitherSpinNorOverflow_data()
    {
        const auto row = columns<int, int>("seconds", "wait");
        row("zero waits a second", 0, 1000);
        row("negative waits a second", -5, 1000);
        row("the largest number waits as long as a timer can", std::numeric_limits<int>::max(),
            std::numeric_limits<int>::max() / 1000 * 1000);
    }

    void oddIntervalsNeitherSpinNorOverflow()
    {
        QFETCH(int, seconds);
        FakeDocument document;
        DocumentManager::addDocument(&document);
        DocumentManager::setAutobackupTimeout(seconds);
        DocumentManager::startWaitingBackup(&document);
        QTEST(timers().first()->interval(), "wait");
        QCOMPARE(DocumentManager::getAutobackupTimeout(), seconds);
    }

    void builtInBreakpointsComeOnlyWithoutStoredOnesOrOnReset()
    {
        const Breakpoints builtInH = {{375, true}, {667, true}, {768, true}, {1024, true}, {1280, true}};
        const Breakpoints builtInV = {{345, false}, {522, false}, {620, false}, {674, false}, {930, false}};
        const Breakpoints own = {{480, false}};
        Breakpoints h = own;
        Breakpoints v = own;
        DocumentManager::initBreakpoints(h, v, false);
        QCOMPARE(h, builtInH);
        QCOMPARE(v, builtInV);
        QVERIFY(DocumentManager::getHBreakpoints().isEmpty());

        DocumentManager::setHBreakpoints(own);
        DocumentManager::initBreakpoints(h, v, false);
        QCOMPARE(h, own);
        QCOMPARE(v, Breakpoints());
        DocumentManager::initBreakpoints(h, v, true);
        QCOMPARE(h, builtInH);
        QCOMPARE(DocumentManager::getHBreakpoints(), own);
    }

    void preferencesSurviveARestart()
    {
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

    void emptyStoreLeavesTheDefaults()
    {
        DocumentManager::readSettings();
        QVERIFY(DocumentManager::isAutobackupEnabled());
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 300);
        QVERIFY(DocumentManager::isPasteSvgAsFreeform());
        QVERIFY(DocumentManager::getHBreakpoints().isEmpty());
    }

private:
    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<DocumentManager> m_pManager;
};

QTEST_MAIN(tst_DocumentManager)
#include "tst_documentmanager.moc"
