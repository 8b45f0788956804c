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

    void aProjectThatCannotBeSavedLeadsToAnotherPlace()
    {
        const QString strFolder = m_pProgram->filePath("away");
        const QString strOld = strFolder + "/two.kelpa";
        const QString strNew = m_pProgram->filePath("new.kelpa");
        QVERIFY(QDir().mkdir(strFolder));
        m_pEditor = m_pProgram->open("away/two.kelpa");
        m_pEditor->getView()->addElement({});
        m_pProgram->open("three.kelpa");
        QVERIFY(QDir(strFolder).removeRecursively());

        QVERIFY(!document()->saveBackup());
        QVERIFY(m_pProgram->window->getNotificationBar()->text().contains(strOld));
        const BoxAnswers answers({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Save});
        QVERIFY(!m_pProgram->window->close());
        QCOMPARE(answers.boxes.size(), 2);
        QVERIFY(answers.boxes.first().parentTitle.startsWith(strOld));

        const FileAnswer place(&strNew);
        m_pProgram->command("File.Save")->trigger();
        QVERIFY(answers.boxes.last().text.contains("two.kelpa: No such file or directory"));
        QTRY_COMPARE(document()->getFileName(), strNew);
        QCOMPARE(IRecentFilesManager::getInstance()->getRecentFiles().first(), strNew);
        QVERIFY(!document()->isModified());
    }

    void aVeryLongNameLeavesRoomAndIsInTheTipOfItsTab()
    {
        const QString strName = QString(240, 'm') + ".kelpa";
        const StageView *pView = m_pProgram->open(qPrintable(strName))->getView();
        QVERIFY(m_pProgram->tabs()->tabRect(1).width() < m_pProgram->window->width() / 2);
        QVERIFY(m_pProgram->tabs()->tabToolTip(1).endsWith(strName));
        const QPoint centre = pView->rect().center();
        QHelpEvent help(QEvent::ToolTip, centre, pView->mapToGlobal(centre));
        QApplication::sendEvent(pView->viewport(), &help);
        QVERIFY(!QToolTip::isVisible());
    }

    void keysWorkOnTheElements()
    {
        QTest::keyClick(m_pView, Qt::Key_Tab);
        QCOMPARE(m_pView->selectedElements(), QList<int>({0}));
        QVERIFY(m_pView->accessibleDescription().startsWith("e0 selected"));
        QTest::keyClick(m_pView, Qt::Key_Right);
        QTest::keyClick(m_pView, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(firstPlace(), QPointF(21, 30));
        QCOMPARE(document()->getUndoStack()->count(), 1);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(m_pView, Qt::Key_Tab);
        QCOMPARE(m_pView->selectedElements(), QList<int>({0}));
        QTest::keyClick(m_pView, Qt::Key_Backtab);
        QCOMPARE(m_pView->selectedElements(), QList<int>({2}));
        QTest::keyClick(m_pView, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(m_pView->selectedElements(), QList<int>({0, 1, 2}));
        QTest::keyClick(m_pView, Qt::Key_Delete);
        QVERIFY(elements(0).isEmpty());
        m_pProgram->command("Edit.Undo")->trigger();
        QCOMPARE(elements(0).size(), 3);
        QTest::keyClick(m_pView, Qt::Key_Tab);
        QTest::keyClick(m_pView, Qt::Key_Escape);
        QVERIFY(m_pView->selectedElements().isEmpty() && m_pView->hasFocus());
        QTest::keyClick(m_pView, Qt::Key_Escape); // the way out of the stage
        QVERIFY(!m_pView->hasFocus());
    }

    void elementsStopAtTheEdgeOfWhatAFileMayHold()
    {
        m_pView->selectElements({0});
        m_pView->moveSelected(5e6, -5e6);
        QCOMPARE(firstPlace(), QPointF(1e6, -1e6));
        QVERIFY(document()->save());
        QVERIFY(document()->revert());
    }

    void eachDragIsOneEditInWholePixels()
    {
        QWidget *pPort = m_pView->viewport();
        for (const int nEdits : {1, 2}) {
            const QPointF before = firstPlace();
            const QPoint from = m_pView->mapFromScene(before + QPointF(30, 30));
            QTest::mousePress(pPort, Qt::LeftButton, {}, from);
            for (int i = 1; i <= 10; ++i)
                QTest::mouseMove(pPort, from + QPoint(5 * i, 3 * i));
            QTest::mouseRelease(pPort, Qt::LeftButton, {}, from + QPoint(50, 30));
            const QPointF place = firstPlace();
            QVERIFY(place.x() > before.x() && place.y() > before.y());
            QCOMPARE(place, QPointF(place.toPoint()));
            QCOMPARE(document()->getUndoStack()->count(), nEdits);
        }
        document()->getUndoStack()->setIndex(0);
        QCOMPARE(firstPlace(), QPointF(20, 20));
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

    void undoingAnEditOfAnotherSceneShowsThatScene()
    {
        auto *pScenes = m_pEditor->getSubWindow()->findChild<QComboBox *>();
        QCOMPARE(pScenes->count(), 2);
        m_pView->setCurrentScene(1);
        action("Add Rectangle")->trigger();
        QCOMPARE(elements(1).size(), 1);
        m_pView->setCurrentScene(0);
        m_pProgram->command("Edit.Undo")->trigger();
        QCOMPARE(m_pView->currentScene(), 1);
        QCOMPARE(pScenes->currentIndex(), 1);
        m_pProgram->command("Edit.Redo")->trigger();
        QCOMPARE(elements(1).size(), 1);
    }

    // What is painted is what the file says: the colours of background and shapes at their places.
    void theStageIsPaintedAndHasItsNames()
    {
        QCOMPARE(m_pView->accessibleName(), "Stage");
        QCOMPARE(m_pEditor->getSubWindow()->findChild<QComboBox *>()->accessibleName(), "Scene");
        const QImage image = m_pView->viewport()->grab().toImage();
        QCOMPARE(image.pixelColor(m_pView->mapFromScene(50, 50)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(m_pView->mapFromScene(100, 50)), QColor(Qt::white));
        QVERIFY(image.pixelColor(m_pView->mapFromScene(-10, -10)) != QColor(Qt::white));
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
