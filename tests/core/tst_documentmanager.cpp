// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <random>

using Breakpoints = DocumentManager::Breakpoints;
using ExtensionSystem::PluginManager;

namespace {

// A document as it should be listed, with its timer; a wait of 0 has never begun.
struct Entry
{
    IDocument *pDocument;
    bool bWaits = false;
    int nWait = 0;
    bool operator==(const Entry &) const = default;
};

QList<QTimer *> timers()
{
    return DocumentManager::getInstance()->findChildren<QTimer *>(); // in the order of their documents
}

QList<Entry> listed()
{
    QList<Entry> result;
    for (IDocument *pDocument : DocumentManager::getDocuments())
        result.append({pDocument});
    for (int i = 0; i < int(timers().size()) && timers().size() == result.size(); ++i)
        result[i] = {result.at(i).pDocument, timers().at(i)->isActive(), timers().at(i)->interval()};
    return result;
}

} // namespace

class tst_DocumentManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        restart();
    }
    void cleanup()
    {
        m_pManager.reset();
        m_pProgram.reset();
    }

    // Documents come, wait, are backed up and go at random; after each step the manager agrees with a list.
    void documentsAndTheirTimersAgreeWithAList()
    {
        std::mt19937 random(1);
        std::array<std::unique_ptr<FakeDocument>, 4> documents;
        QList<Entry> entries;
        int nSeconds = 300;
        const auto waiting = [&](IDocument *pDocument) {
            return Entry {
                pDocument, true, qBound(1, nSeconds, std::numeric_limits<int>::max() / 1000) * 1000};
        };
        for (int i = 0; i < 3000; ++i) {
            auto &pOwner = documents.at(random() % 4);
            if (!pOwner)
                pOwner = std::make_unique<FakeDocument>();
            FakeDocument *pDocument = pOwner.get();
            const auto isIt = [=](const Entry &entry) { return entry.pDocument == pDocument; };
            const auto it = std::find_if(entries.begin(), entries.end(), isIt);
            const bool bListed = it != entries.end();
            const auto nStep = random() % 7;
            if (nStep == 0) {
                DocumentManager::addDocument(pDocument);
                entries += bListed ? QList<Entry>() : QList<Entry> {{pDocument}};
            } else if (nStep == 1) {
                QCOMPARE(DocumentManager::removeDocument(pDocument), bListed);
                entries.removeIf(isIt);
            } else if (nStep == 2) { // without a word
                pOwner.reset();
                entries.removeIf(isIt);
            } else if (nStep == 3) {
                nSeconds = std::array {0, -5, 1, 20, 300, std::numeric_limits<int>::max()}.at(random() % 6);
                DocumentManager::setAutobackupTimeout(nSeconds);
            } else if (nStep == 4) {
                DocumentManager::stopWaitingBackup(pDocument);
                if (bListed)
                    it->bWaits = false;
            } else if (nStep == 5 || !bListed) {
                DocumentManager::startWaitingBackup(pDocument);
                if (bListed)
                    *it = waiting(pDocument);
            } else { // the wait is over, and the backup may close its document
                int nBackups = 0;
                pDocument->onBackup = [&, bCloses = random() % 3 == 0] {
                    ++nBackups;
                    if (bCloses && DocumentManager::removeDocument(pDocument))
                        entries.removeIf(isIt);
                };
                *it = waiting(pDocument);
                QMetaObject::invokeMethod(timers().at(it - entries.begin()), "timeout");
                pDocument->onBackup = nullptr;
                QCOMPARE(nBackups, 1);
            }
            QVERIFY2(listed() == entries, qPrintable(QString("step %1: %2").arg(i).arg(nStep)));
            QCOMPARE(DocumentManager::getAutobackupTimeout(), nSeconds);
            QCOMPARE(timers().size(), entries.size());
            QVERIFY(std::ranges::all_of(timers(), &QTimer::isSingleShot));
            QList<QUndoStack *> stacks;
            for (const Entry &entry : std::as_const(entries))
                stacks.append(entry.pDocument->getUndoStack());
            QCOMPARE(DocumentManager::getUndoGroup()->stacks(), stacks);
        }
        DocumentManager::addDocument(nullptr);
        QVERIFY(DocumentManager::removeDocument(nullptr) && listed() == entries);
    }

    void preferencesSurviveARestart()
    {
        QVERIFY(DocumentManager::isAutobackupEnabled() && DocumentManager::isPasteSvgAsFreeform());
        Breakpoints defaultH, defaultV;
        DocumentManager::initBreakpoints(defaultH, defaultV, false);
        QCOMPARE(defaultH, Breakpoints({{375, true}, {667, true}, {768, true}, {1024, true}, {1280, true}}));
        QCOMPARE(
            defaultV, Breakpoints({{345, false}, {522, false}, {620, false}, {674, false}, {930, false}}));
        const Breakpoints own = {{100, true}, {200, false}};
        DocumentManager::setHBreakpoints({{1, true}, {2, true}, {3, true}});
        DocumentManager::saveSettings();
        DocumentManager::setAutoBackupEnabled(false);
        DocumentManager::setAutobackupTimeout(42);
        DocumentManager::setPasteSvgAsFreeform(false);
        DocumentManager::setHBreakpoints({});
        DocumentManager::setVBreakpoints(own);
        DocumentManager::saveSettings();
        const QSettings *pStore = PluginManager::settings();
        QCOMPARE(pStore->value("Breakpoints/Vertical/2/Value").toInt(), 200);
        QVERIFY(!pStore->contains("Breakpoints/Horizontal/1/Value"));

        restart();
        QVERIFY(!DocumentManager::isAutobackupEnabled() && !DocumentManager::isPasteSvgAsFreeform());
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 42);
        Breakpoints h, v;
        DocumentManager::initBreakpoints(h, v, false);
        QVERIFY(h.isEmpty() && v == own);
        DocumentManager::initBreakpoints(h, v, true);
        QVERIFY(h == defaultH && v == defaultV);
        DocumentManager::readSettings();
        QCOMPARE(DocumentManager::getVBreakpoints(), own + own);
    }

    void withoutAManagerNothingIsKept()
    {
        m_pManager.reset();
        FakeDocument document;
        DocumentManager::addDocument(&document);
        DocumentManager::startWaitingBackup(&document);
        DocumentManager::stopWaitingBackup(&document);
        DocumentManager::saveSettings();
        DocumentManager::setAutobackupTimeout(3);
        QVERIFY(!DocumentManager::removeDocument(&document) && DocumentManager::getDocuments().isEmpty());
        QVERIFY(!DocumentManager::getUndoGroup() && DocumentManager::getAutobackupTimeout() == 0);
    }

private:
    void restart()
    {
        m_pManager.reset();
        m_pManager = std::make_unique<DocumentManager>();
        DocumentManager::setSettings(PluginManager::settings());
        DocumentManager::readSettings();
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<DocumentManager> m_pManager;
};

QTEST_MAIN(tst_DocumentManager)
#include "tst_documentmanager.moc"
