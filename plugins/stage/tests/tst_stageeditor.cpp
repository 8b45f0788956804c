// SPDX-License-Identifier: MIT
// The stage in a real main window: tabs, close boxes, keys, and objects that die behind each other's back.
#include "stagedocument.h"
#include "stagemodel.h"
#include "stageprogram.h"

#include <actionmanager/actioncontainer.h>
#include <irecentfilesmanager.h>

class tst_StageEditor : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<StageProgram>();
        m_pEditor = m_pProgram->open("one.kelpa");
        m_pView = m_pEditor->getView();
        QTRY_VERIFY(m_pView->hasFocus());
    }
    void cleanup() { m_pProgram.reset(); }

    void theCloseBoxPressedAgainDuringTheQuestionAsksOnce()
    {
        const QPointer<StageEditor> pEditor = m_pEditor;
        m_pView->addElement({});
        BoxAnswers answers({QMessageBox::Cancel, QMessageBox::No});
        QTimer::singleShot(0, pEditor, [&] { pEditor->getSubWindow()->close(); });
        pEditor->getSubWindow()->close();
        QCOMPARE(answers.boxes.size(), 1);
        pEditor->getSubWindow()->close();
        QTRY_VERIFY(!pEditor);
        QCOMPARE(answers.boxes.size(), 2);
    }

    void anythingMayDieFirst_data()
    {
        const auto row = columns<QString>("order");
        row("editor, document, tab", "edt");
        row("document, editor, tab", "det");
        row("document, tab, editor", "dte");
        row("tab, document, editor", "tde");
        row("tab, editor, document", "ted");
        row("main window, document, editor", "wde");
        row("document, main window, editor", "dwe");
        row("editor, main window, document", "ewd");
    }
    void anythingMayDieFirst()
    {
        QFETCH(QString, order);
        StageProgram &program = *m_pProgram;
        const QPointer<StageEditor> pOther = m_pEditor;
        const QPointer<IDocument> pOtherDocument = pOther->getDocument();
        const QPointer<StageEditor> pEditor = program.open("two.kelpa");
        const QPointer<IDocument> pDocument = pEditor->getDocument();
        const QPointer<QMdiSubWindow> pTab = pEditor->getSubWindow();
        pEditor->getView()->selectElements({0});
        pEditor->getView()->moveSelected(1, 1);
        for (const QChar c : order) {
            if (c == QLatin1Char('e'))
                delete pEditor;
            else if (c == QLatin1Char('d'))
                delete pDocument;
            else if (c == QLatin1Char('t'))
                delete pTab;
            else
                program.window.reset();
            poke(program, pEditor, pTab);
        }
        QVERIFY(!pEditor && !pDocument && !pTab);
        if (program.window) {
            QCOMPARE(EditorManager::getEditors().size(), 1);
        } else {
            delete pOther;
            delete pOtherDocument;
        }
    }

    // A second Escape, with nothing selected, is the way out of the stage.
    void escapeLeavesTheStage()
    {
        QTest::keyClick(m_pView, Qt::Key_Tab);
        QTest::keyClick(m_pView, Qt::Key_Escape);
        QVERIFY(m_pView->hasFocus());
        QTest::keyClick(m_pView, Qt::Key_Escape);
        QVERIFY(!m_pView->hasFocus());
    }

    void theToolBarAddsAndDeletes()
    {
        QVERIFY(!action("Delete")->isEnabled());
        for (const char *pText : {"Add Rectangle", "Add Ellipse", "Add Text"})
            action(pText)->trigger();
        const QMenu *pMenu = ActionManager::getActionContainer("MenuBar.Edit")->getMenu();
        for (QAction *pAction : m_pProgram->toolBar->actions())
            QVERIFY(pAction->isSeparator() || pMenu->actions().contains(pAction));
        const auto &shapes = elements(0);
        QCOMPARE(shapes.size(), 6);
        QCOMPARE(shapes.at(4).id, "ellipse-1");
        QCOMPARE(m_pView->selectedElements(), QList<int>({5}));
        action("Delete")->trigger();
        QCOMPARE(shapes.size(), 5);
        m_pProgram->command("Edit.Undo")->trigger();
        m_pProgram->command("Edit.Undo")->trigger();
        m_pProgram->command("Edit.Redo")->trigger();
        QCOMPARE(shapes.last().type, StageElement::Type::Text);
    }

    void theBoxOfScenesAndTheStageFollowEachOther()
    {
        auto *pScenes = m_pEditor->getSubWindow()->findChild<QComboBox *>();
        QCOMPARE(pScenes->accessibleName() + m_pView->accessibleName(), "SceneStage");
        QTest::keyClick(pScenes, Qt::Key_Down);
        QCOMPARE(m_pView->currentScene(), 1);
        action("Add Rectangle")->trigger();
        QTest::keyClick(pScenes, Qt::Key_Up);
        QCOMPARE(m_pView->currentScene(), 0);
        m_pProgram->command("Edit.Undo")->trigger();
        QCOMPARE(m_pView->currentScene(), 1);
        QCOMPARE(pScenes->currentText(), "Two");
        m_pProgram->write("one.kelpa", projectText(2).replace("Two", "Zwei"));
        QVERIFY(document()->revert());
        QCOMPARE(pScenes->count(), 2);
        QCOMPARE(pScenes->currentText(), "Zwei");
    }

private:
    // Touches what is left, as a user might.
    static void poke(StageProgram &program, StageEditor *pEditor, QMdiSubWindow *pTab)
    {
        QCoreApplication::processEvents();
        if (pTab) {
            QTest::keyClick(pTab->widget(), Qt::Key_Tab);
            if (auto *pView = pTab->findChild<StageView *>()) {
                pView->selectAll();
                QTest::keyClick(pView, Qt::Key_Right);
                QTest::keyClick(pView, Qt::Key_Delete);
                QTest::mouseClick(pView->viewport(), Qt::LeftButton);
                pView->grab();
            }
            pTab->close();
        }
        if (pEditor && program.window)
            EditorManager::activateEditor(pEditor);
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QAction *action(const char *pText) const
    {
        for (QAction *pAction : m_pProgram->toolBar->actions()) {
            if (pAction->text().remove('&').startsWith(pText))
                return pAction;
        }
        return nullptr;
    }
    [[nodiscard]] StageDocument *document() const
    {
        return static_cast<StageDocument *>(m_pEditor->getDocument());
    }
    [[nodiscard]] const QList<StageElement> &elements(int nScene) const
    {
        return document()->getModel()->elements(nScene);
    }
    [[nodiscard]] QPointF firstPlace() const { return {elements(0).first().x, elements(0).first().y}; }

    std::unique_ptr<StageProgram> m_pProgram;
    StageEditor *m_pEditor = nullptr;
    StageView *m_pView = nullptr;
};

QTEST_MAIN(tst_StageEditor)
#include "tst_stageeditor.moc"
