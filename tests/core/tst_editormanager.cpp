// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <random>

namespace {

// What a manager does, put down literally. Editors are letters; what was said comes with who was active then.
struct Model
{
    QString editors;
    QString active;
    QStringList said;

    void say(const char *pWhat, const QString &strWho) { said.append(pWhat + strWho + " while " + active); }
    void activate(const QString &strNew)
    {
        if (strNew == active)
            return;
        for (const char *pWhat : {"leaving ", "left "})
            active.isEmpty() ? void() : say(pWhat, active);
        active = strNew;
        for (const char *pWhat : {"entering ", "entered "})
            active.isEmpty() ? void() : say(pWhat, active);
    }
    // One that was deleted is active no longer when its leaving is told, and says nothing itself.
    void take(const QString &strOld, bool bDeleted)
    {
        const bool bWasActive = strOld == active;
        const int nIndex = int(editors.indexOf(strOld));
        if (bWasActive && bDeleted)
            active.clear();
        if (nIndex < 0)
            return;
        editors.remove(nIndex, 1);
        if (bWasActive && bDeleted)
            say("left ", strOld);
        if (bWasActive)
            activate(editors.mid(qMin(nIndex, int(editors.size()) - 1), 1));
    }
};

} // namespace

class tst_EditorManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pManager = std::make_unique<EditorManager>();
        m_said.clear();
        connect(m_pManager.get(), &EditorManager::editorActivated, this,
            [this](IEditor *p) { say("entered ", p); });
        connect(m_pManager.get(), &EditorManager::editorDeactivated, this,
            [this](IEditor *p) { say("left ", p); });
    }
    void cleanup()
    {
        m_onSay = nullptr;
        qDeleteAll(std::exchange(m_editors, {}));
        m_pManager.reset();
    }

    void editorsAgreeWithAListAfterEachStep()
    {
        std::mt19937 random(1);
        Model model;
        for (int i = 0; i < 3000; ++i) {
            const QString strName(QChar('A' + int(random() % 5)));
            const auto nStep = random() % 5;
            IEditor *pEditor = editor(strName);
            if (nStep == 0) {
                EditorManager::addEditor(pEditor);
                if (!model.editors.contains(strName))
                    model.editors.append(strName);
            } else if (nStep == 1) {
                EditorManager::activateEditor(pEditor); // listed or not
                model.activate(strName);
            } else if (nStep == 2 && random() % 8 == 0) {
                EditorManager::activateEditor(nullptr);
                model.activate({});
            } else if (nStep == 3) {
                const bool bListed = model.editors.contains(strName);
                QCOMPARE(EditorManager::removeEditor(pEditor), bListed);
                if (bListed)
                    model.take(strName, false);
            } else if (nStep == 4) {
                delete pEditor;
                model.take(strName, true);
                m_editors.remove(strName);
            }
            QCOMPARE(m_said, model.said);
            QCOMPARE(names(), model.editors);
            QCOMPARE(nameOf(EditorManager::activeEditor()), model.active);
            m_said.clear();
            model.said.clear();
        }
        EditorManager::addEditor(nullptr);
        QVERIFY(EditorManager::removeEditor(nullptr));
        QCOMPARE(names(), model.editors);
    }

    void slotsMayTakeEitherEditorAway_data()
    {
        const auto row = columns<QString, QString, bool>("moment", "taken", "isDeleted");
        for (const char *pMoment : {"leaving A", "left A", "entering B", "entered B"})
            for (const char *pTaken : {"A", "B"})
                for (const bool bDeleted : {false, true})
                    row(qPrintable(QString("%1: %2, %3").arg(pMoment, pTaken).arg(bDeleted)), pMoment, pTaken,
                        bDeleted);
    }
    void slotsMayTakeEitherEditorAway()
    {
        QFETCH(QString, moment);
        QFETCH(QString, taken);
        QFETCH(bool, isDeleted);
        for (const char *pName : {"A", "B", "C"})
            EditorManager::addEditor(editor(pName));
        EditorManager::activateEditor(editor("A"));
        bool bDone = false;
        m_onSay = [&](const QString &strWhat) {
            if (strWhat == moment && !std::exchange(bDone, true))
                isDeleted ? delete m_editors.take(taken) : void(EditorManager::removeEditor(editor(taken)));
        };
        EditorManager::activateEditor(editor("B"));
        QCOMPARE(names(), taken == "A" ? "BC" : "AC");
        QVERIFY(m_said.filter("entered B").size() <= 1);
        const bool bEntering = moment.endsWith('B');
        QCOMPARE(nameOf(EditorManager::activeEditor()),
            taken == "A" || !(bEntering || isDeleted) ? "B"
                : bEntering                           ? "C"
                                                      : "A");
    }

    void anEditorSaysWhatItsDocumentSays()
    {
        FakeDocument document;
        IEditor *pEditor = editor("A");
        pEditor->setDocument(&document);
        QStringList said;
        const auto relay = [&](auto signal, const char *pWhat, const auto &tell) {
            connect(pEditor, signal, this, [&said, pWhat] { said.append(pWhat); });
            tell();
        };
        relay(&IEditor::documentLoaded, "loaded", [&] { emit document.aboutToOpen(); });
        relay(&IEditor::documentDataChanged, "data", [&] { emit document.dataChanged(this); });
        relay(&IEditor::documentUnloading, "unloading", [&] { emit document.aboutToClose(); });
        relay(&IEditor::documentTitleChanged, "title", [&] { emit document.titleChanged(); });
        relay(&IEditor::documentModifyChanged, "modified", [&] { emit document.modifyChanged(true); });
        relay(&IEditor::undoStackChanged, "stack", [&] { emit document.undoStackChanged(); });
        QCOMPARE(said, QStringList({"loaded", "data", "unloading", "title", "modified", "stack"}));
    }

    // "destroyed" comes twice: from the whole document, by ~IDocument, and from what is left, by ~QObject.
    void editorLetsGoOfADyingDocumentWhileItIsWhole()
    {
        auto pDocument = std::make_unique<FakeDocument>();
        pDocument->setFileName("/p/a.kelpa");
        IEditor *pEditor = editor("A");
        pEditor->setDocument(pDocument.get());
        QStringList heard;
        connect(pDocument.get(), &QObject::destroyed, this, [&](QObject *pObject) {
            const auto *pWhole = qobject_cast<IDocument *>(pObject);
            heard.append(
                (pWhole ? pWhole->getFileName() : "") + (pEditor->getDocument() ? " kept" : " let go"));
        });
        pDocument.reset();
        QCOMPARE(heard, QStringList({"/p/a.kelpa let go", " let go"}));
    }

    void withoutAManagerNothingHappens()
    {
        m_pManager.reset();
        EditorManager::addEditor(editor("A"));
        EditorManager::activateEditor(editor("A"));
        QVERIFY(!EditorManager::removeEditor(editor("A")) && EditorManager::getEditors().isEmpty());
        QCOMPARE(EditorManager::activeEditor(), nullptr);
    }

private:
    IEditor *editor(const QString &strName)
    {
        IEditor *&pEditor = m_editors[strName];
        if (!pEditor) {
            pEditor = new IEditor;
            connect(pEditor, &IEditor::aboutToActivate, this, [=, this] { say("entering ", pEditor); });
            connect(pEditor, &IEditor::aboutToDeactivate, this, [=, this] { say("leaving ", pEditor); });
        }
        return pEditor;
    }
    [[nodiscard]] QString nameOf(IEditor *pEditor) const { return m_editors.key(pEditor); }
    [[nodiscard]] QString names() const
    {
        QString strNames;
        for (IEditor *pEditor : EditorManager::getEditors())
            strNames += nameOf(pEditor);
        return strNames;
    }
    void say(const char *pWhat, IEditor *pEditor)
    {
        const QString strWhat = pWhat + nameOf(pEditor);
        m_said.append(strWhat + " while " + nameOf(EditorManager::activeEditor()));
        if (m_onSay)
            m_onSay(strWhat);
    }

    std::unique_ptr<EditorManager> m_pManager;
    QMap<QString, IEditor *> m_editors;
    QStringList m_said;
    std::function<void(QString)> m_onSay;
};

QTEST_MAIN(tst_EditorManager)
#include "tst_editormanager.moc"
