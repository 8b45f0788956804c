// SPDX-License-Identifier: MIT
#include <support/coretest.h>

namespace {

// Every activation signal of manager and editors, in the order it is emitted.
class Recorder : public QObject
{
public:
    explicit Recorder(const QList<IEditor *> &editors)
    {
        connect(EditorManager::getInstance(), &EditorManager::editorActivated, this,
            [this](IEditor *p) { add("activated ", p); });
        connect(EditorManager::getInstance(), &EditorManager::editorDeactivated, this,
            [this](IEditor *p) { add("deactivated ", p); });
        for (IEditor *pEditor : editors) {
            m_names.insert(pEditor, QString(QChar(u'A' + int(m_names.size()))));
            connect(pEditor, &IEditor::aboutToActivate, this, [=, this] { add("aboutTo ", pEditor); });
            connect(pEditor, &IEditor::aboutToDeactivate, this, [=, this] { add("leaving ", pEditor); });
        }
    }
    QStringList take() { return std::exchange(m_log, {}); }

private:
    void add(const char *pWhat, IEditor *p) { m_log.append(QLatin1String(pWhat) + m_names.value(p)); }

    QHash<IEditor *, QString> m_names;
    QStringList m_log;
};

} // namespace

class tst_EditorManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pManager = std::make_unique<EditorManager>();
        for (int i = 0; i < 3; ++i) {
            m_editors.append(new IEditor);
            EditorManager::addEditor(m_editors.last());
        }
        m_pRecorder = std::make_unique<Recorder>(m_editors);
    }

    void cleanup()
    {
        m_pRecorder.reset();
        qDeleteAll(std::exchange(m_editors, {}));
        m_pManager.reset();
    }

    void switchingTellsTheOldEditorBeforeTheNew()
    {
        EditorManager::activateEditor(a());
        EditorManager::activateEditor(b());
        EditorManager::activateEditor(b());
        EditorManager::activateEditor(nullptr);
        QCOMPARE(m_pRecorder->take(),
            QStringList({"aboutTo A", "activated A", "leaving A", "deactivated A", "aboutTo B", "activated B",
                "leaving B", "deactivated B"}));
        QCOMPARE(EditorManager::activeEditor(), nullptr);
    }

    // The walk through the stage removes the last one too, and any that is not active.
    void removalHandsTheActivationOn()
    {
        EditorManager::activateEditor(b());
        m_pRecorder->take();
        QVERIFY(EditorManager::removeEditor(b()));
        QCOMPARE(
            m_pRecorder->take(), QStringList({"leaving B", "deactivated B", "aboutTo C", "activated C"}));
        QVERIFY(!EditorManager::removeEditor(b()));
        QVERIFY(EditorManager::removeEditor(nullptr));
    }

    void deletedEditorLeavesWithoutASignalOfItsOwn()
    {
        EditorManager::activateEditor(b());
        m_pRecorder->take();
        delete m_editors.takeAt(1);
        QCOMPARE(m_pRecorder->take(), QStringList({"deactivated B", "aboutTo C", "activated C"}));
        QCOMPARE(EditorManager::getEditors(), m_editors);
    }

    void deletedEditorThatWasActiveWithoutBeingListed()
    {
        auto *pStray = new IEditor;
        EditorManager::activateEditor(pStray);
        delete pStray;
        QCOMPARE(EditorManager::activeEditor(), nullptr);
        EditorManager::activateEditor(a());
        QCOMPARE(EditorManager::activeEditor(), a());
    }

    void slotThatRemovesAnotherEditorDuringRemoval()
    {
        EditorManager::activateEditor(b());
        connect(b(), &IEditor::aboutToDeactivate, this, [this] { EditorManager::removeEditor(a()); });
        QVERIFY(EditorManager::removeEditor(b()));
        QCOMPARE(EditorManager::getEditors(), QList<IEditor *>({c()}));
        QCOMPARE(EditorManager::activeEditor(), c());
    }

    // "destroyed" comes twice: from the whole document, by ~IDocument, and from what is left, by ~QObject.
    void editorLetsGoOfADyingDocumentWhileItIsWhole()
    {
        auto pDocument = std::make_unique<FakeDocument>();
        pDocument->setFileName("/p/a.kelpa");
        a()->setDocument(pDocument.get());
        QStringList heard;
        connect(pDocument.get(), &QObject::destroyed, this, [&](QObject *pObject) {
            const auto *pWhole = qobject_cast<IDocument *>(pObject);
            heard.append((pWhole ? pWhole->getFileName() : "") + (a()->getDocument() ? " kept" : " let go"));
        });
        pDocument.reset();
        QCOMPARE(heard, QStringList({"/p/a.kelpa let go", " let go"}));
    }

    void withoutAManagerNothingHappens()
    {
        m_pRecorder.reset();
        m_pManager.reset();
        EditorManager::addEditor(a());
        EditorManager::activateEditor(a());
        QVERIFY(!EditorManager::removeEditor(a()));
        QVERIFY(EditorManager::getEditors().isEmpty());
        QCOMPARE(EditorManager::activeEditor(), nullptr);
    }

private:
    [[nodiscard]] IEditor *a() const { return m_editors.at(0); }
    [[nodiscard]] IEditor *b() const { return m_editors.at(1); }
    [[nodiscard]] IEditor *c() const { return m_editors.at(2); }

    std::unique_ptr<EditorManager> m_pManager;
    std::unique_ptr<Recorder> m_pRecorder;
    QList<IEditor *> m_editors;
};

QTEST_MAIN(tst_EditorManager)
#include "tst_editormanager.moc"
