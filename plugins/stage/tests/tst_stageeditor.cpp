// SPDX-License-Identifier: MIT
// The stage in a real main window: tabs, close boxes, keys, and objects that die behind each other's back.
#include "stagedocument.h"
#include "stagemodel.h"
#include "stageprogram.h"

namespace {

StageDocument *documentOf(const IEditor *pEditor)
{
    return static_cast<StageDocument *>(pEditor->getDocument());
}

QAction *action(const StageProgram &program, const char *pText)
{
    const auto actions = program.toolBar->actions();
    const auto it = std::find_if(actions.begin(), actions.end(),
        [=](const QAction *pAction) { return pAction->text().remove('&').startsWith(pText); });
    return it == actions.end() ? nullptr : *it;
}

QPointF placeOf(const StageEditor *pEditor, int nIndex)
{
    const StageElement &element = documentOf(pEditor)->getModel()->elements(0).at(nIndex);
    return {element.x, element.y};
}

} // namespace

class tst_StageEditor : public QObject
{
    Q_OBJECT

private slots:
    void theCloseBoxPressedAgainDuringTheQuestionAsksOnce()
    {
        StageProgram program;
        const QPointer<StageEditor> pEditor = program.open("one.kelpa");
        pEditor->getView()->selectElements({0});
        pEditor->getView()->deleteSelected();
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
        StageProgram program;
        const QPointer<StageEditor> pOther = program.open("other.kelpa");
        const QPointer<IDocument> pOtherDocument = pOther->getDocument();
        const QPointer<StageEditor> pEditor = program.open("one.kelpa");
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

    void keysWorkOnTheElements()
    {
        StageProgram program;
        StageEditor *pEditor = program.open("one.kelpa");
        StageView *pView = pEditor->getView();
        QTRY_VERIFY(pView->hasFocus());
        QTest::keyClick(pView, Qt::Key_Tab);
        QCOMPARE(pView->selectedElements(), QList<int>({0}));
        QVERIFY(pView->accessibleDescription().startsWith("e0 selected"));
        QTest::keyClick(pView, Qt::Key_Right);
        QTest::keyClick(pView, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(placeOf(pEditor, 0), QPointF(21, 30));
        QCOMPARE(documentOf(pEditor)->getUndoStack()->count(), 1);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(pView, Qt::Key_Tab);
        QCOMPARE(pView->selectedElements(), QList<int>({0}));
        QTest::keyClick(pView, Qt::Key_Backtab);
        QCOMPARE(pView->selectedElements(), QList<int>({2}));
        QTest::keyClick(pView, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(pView->selectedElements(), QList<int>({0, 1, 2}));
        QTest::keyClick(pView, Qt::Key_Delete);
        QVERIFY(documentOf(pEditor)->getModel()->elements(0).isEmpty());
        program.command("Edit.Undo")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(0).size(), 3);
        QTest::keyClick(pView, Qt::Key_Tab);
        QTest::keyClick(pView, Qt::Key_Escape);
        QVERIFY(pView->selectedElements().isEmpty() && pView->hasFocus());
        QTest::keyClick(pView, Qt::Key_Escape); // the way out of the stage
        QVERIFY(!pView->hasFocus());
    }

    void elementsStopAtTheEdgeOfWhatAFileMayHold()
    {
        StageProgram program;
        StageEditor *pEditor = program.open("one.kelpa");
        pEditor->getView()->selectElements({0});
        pEditor->getView()->moveSelected(5e6, -5e6);
        QCOMPARE(placeOf(pEditor, 0), QPointF(1e6, -1e6));
        QVERIFY(documentOf(pEditor)->save());
        QVERIFY(documentOf(pEditor)->revert());
    }

    void aDragIsOneEditInWholePixels()
    {
        StageProgram program;
        StageEditor *pEditor = program.open("one.kelpa");
        StageView *pView = pEditor->getView();
        QWidget *pPort = pView->viewport();
        const QPoint from = pView->mapFromScene(50, 50);
        QTest::mousePress(pPort, Qt::LeftButton, {}, from);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(pPort, from + QPoint(5 * i, 3 * i));
        QTest::mouseRelease(pPort, Qt::LeftButton, {}, from + QPoint(50, 30));
        const QPointF place = placeOf(pEditor, 0);
        QVERIFY(place.x() > 20 && place.y() > 20);
        QCOMPARE(place, QPointF(place.toPoint()));
        QCOMPARE(documentOf(pEditor)->getUndoStack()->count(), 1);
        program.command("Edit.Undo")->trigger();
        QCOMPARE(placeOf(pEditor, 0), QPointF(20, 20));
    }

    void theToolBarAddsAndDeletes()
    {
        StageProgram program;
        QVERIFY(!action(program, "Add Rectangle")->isEnabled());
        StageEditor *pEditor = program.open("one.kelpa");
        QVERIFY(!action(program, "Delete")->isEnabled());
        for (const char *pText : {"Add Rectangle", "Add Ellipse", "Add Text"})
            action(program, pText)->trigger();
        const auto &elements = documentOf(pEditor)->getModel()->elements(0);
        QCOMPARE(elements.size(), 6);
        QCOMPARE(elements.at(4).id, "ellipse-1");
        QCOMPARE(pEditor->getView()->selectedElements(), QList<int>({5}));
        action(program, "Delete")->trigger();
        QCOMPARE(elements.size(), 5);
        program.command("Edit.Undo")->trigger();
        program.command("Edit.Undo")->trigger();
        program.command("Edit.Redo")->trigger();
        QCOMPARE(elements.last().type, StageElement::Type::Text);
    }

    void undoingAnEditOfAnotherSceneShowsThatScene()
    {
        StageProgram program;
        StageEditor *pEditor = program.open("one.kelpa");
        auto *pScenes = pEditor->getSubWindow()->findChild<QComboBox *>();
        QCOMPARE(pScenes->count(), 2);
        pEditor->getView()->setCurrentScene(1);
        action(program, "Add Rectangle")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(1).size(), 1);
        pEditor->getView()->setCurrentScene(0);
        program.command("Edit.Undo")->trigger();
        QCOMPARE(pEditor->getView()->currentScene(), 1);
        QCOMPARE(pScenes->currentIndex(), 1);
        program.command("Edit.Redo")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(1).size(), 1);
    }

    // What is painted is what the file says: the colours of background and shapes at their places.
    void theStageIsPaintedAndItsControlsHaveNames()
    {
        StageProgram program;
        StageEditor *pEditor = program.open("one.kelpa");
        StageView *pView = pEditor->getView();
        QCOMPARE(unnamedControls(program.window.get()), QStringList());
        const QImage image = pView->viewport()->grab().toImage();
        QCOMPARE(image.pixelColor(pView->mapFromScene(50, 50)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(pView->mapFromScene(100, 50)), QColor(Qt::white));
        QVERIFY(image.pixelColor(pView->mapFromScene(-10, -10)) != QColor(Qt::white));
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
};

QTEST_MAIN(tst_StageEditor)
#include "tst_stageeditor.moc"
