// SPDX-License-Identifier: MIT
// The stage in a real main window: tabs, close boxes, keys, and objects that die behind each other's back.
#include "stagedocument.h"
#include "stageeditor.h"
#include "stagefactory.h"
#include "stagemodel.h"
#include "stagetoolbar.h"
#include "stageview.h"

#include <mainwindow.h>
#include <support/coretest.h>
#include <ui/imainmdiarea.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTabBar>
#include <QUndoGroup>

using ExtensionSystem::PluginManager;

namespace {

const QByteArray s_project = R"({"format": "kelpa", "version": 1,
 "stage": {"width": 400, "height": 300, "background": "#ffffff", "frameRate": 24, "responsive": false},
 "scenes": [{"name": "One", "elements": [
   {"id": "a", "type": "rectangle", "x": 20, "y": 20, "width": 60, "height": 60, "fill": "#ff0000"},
   {"id": "b", "type": "ellipse", "x": 200, "y": 20, "width": 60, "height": 60, "fill": "#00ff00"},
   {"id": "c", "type": "text", "x": 20, "y": 200, "width": 100, "height": 30, "text": "c"}]},
  {"name": "Two", "elements": []}]})";

// The main window with the stage in it, as the program has it.
struct Program : TestProgram
{
    Program()
    {
        PluginManager::addObject(&factory);
        window = std::make_unique<MainWindow>(nullptr);
        toolBar = new StageToolBar(window.get());
        window->addToolBar(toolBar);
        window->resize(900, 700);
        window->show();
    }
    ~Program()
    {
        const auto editors = EditorManager::getEditors();
        const auto documents = DocumentManager::getDocuments();
        window.reset();
        qDeleteAll(editors);
        qDeleteAll(documents);
        PluginManager::removeObject(&factory);
    }

    StageEditor *open(const char *pName)
    {
        if (!window->loadFile(write(pName, s_project)))
            return nullptr;
        return qobject_cast<StageEditor *>(EditorManager::activeEditor());
    }

    [[nodiscard]] QTabBar *tabs() const { return window->getMdiArea()->findChild<QTabBar *>(); }
    [[nodiscard]] QAction *action(const char *pText) const
    {
        const auto actions = window->getFileToolbar()->actions() + toolBar->actions();
        for (QAction *pAction : actions) {
            if (pAction->text().remove(QLatin1Char('&')).startsWith(QLatin1String(pText)))
                return pAction;
        }
        return nullptr;
    }

    StageFactory factory {nullptr};
    std::unique_ptr<MainWindow> window;
    StageToolBar *toolBar = nullptr;
};

StageDocument *documentOf(const IEditor *pEditor)
{
    return static_cast<StageDocument *>(pEditor->getDocument());
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
    void pickingATabActivatesItsEditorAndItsHistory()
    {
        Program program;
        StageEditor *pFirst = program.open("one.kelpa");
        StageEditor *pSecond = program.open("two.kelpa");
        QVERIFY(pFirst && pSecond && pFirst != pSecond);
        QCOMPARE(program.window->getMdiArea()->activeSubWindow(), pSecond->getSubWindow());
        QCOMPARE(DocumentManager::getUndoGroup()->activeStack(), documentOf(pSecond)->getUndoStack());

        program.tabs()->setCurrentIndex(0);
        QTRY_COMPARE(EditorManager::activeEditor(), pFirst);
        QCOMPARE(DocumentManager::getUndoGroup()->activeStack(), documentOf(pFirst)->getUndoStack());

        // And the other way round: an editor that is activated shows its tab.
        EditorManager::activateEditor(pSecond);
        QCOMPARE(program.tabs()->currentIndex(), 1);
    }

    void titleAndPathFollowTheDocument()
    {
        Program program;
        QSignalSpy paths(program.window.get(), &MainWindow::updateWindowFilePath);
        QSignalSpy modified(program.window.get(), &MainWindow::updateModified);
        StageEditor *pEditor = program.open("one.two.kelpa");
        QCOMPARE(program.tabs()->tabText(0), QStringLiteral("one.two"));
        QCOMPARE(pEditor->getSubWindow()->windowFilePath(), program.filePath("one.two.kelpa"));
        QCOMPARE(paths.last().first().toString(), program.filePath("one.two.kelpa"));
        pEditor->getView()->selectElements({0});
        pEditor->getView()->deleteSelected();
        QVERIFY(pEditor->getSubWindow()->isWindowModified());
        QCOMPARE(modified.last().first().toBool(), true);
        QVERIFY(program.action("Save")->isEnabled());
        program.action("Save")->trigger();
        QVERIFY(!pEditor->getSubWindow()->isWindowModified());
        QCOMPARE(modified.last().first().toBool(), false);
        QVERIFY(!program.action("Save")->isEnabled());
    }

    void theCloseBoxAsksAndDoesWhatIsAnswered_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<int>("elementsOnDisk");
        QTest::newRow("yes saves and closes") << QMessageBox::Yes << false << 2;
        QTest::newRow("no closes without saving") << QMessageBox::No << false << 3;
        QTest::newRow("cancel keeps it open") << QMessageBox::Cancel << true << 3;
    }
    void theCloseBoxAsksAndDoesWhatIsAnswered()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(bool, stays);
        QFETCH(int, elementsOnDisk);
        Program program;
        const QPointer<StageEditor> pFirst = program.open("one.kelpa");
        const QPointer<StageEditor> pSecond = program.open("two.kelpa");
        const QPointer<QMdiSubWindow> pTab = pSecond->getSubWindow();
        pSecond->getView()->selectElements({1});
        pSecond->getView()->deleteSelected();
        const BoxAnswers answers({answer});
        emit program.tabs()->tabCloseRequested(1);
        QCOMPARE(answers.boxes.size(), 1);
        if (stays) {
            QCOMPARE(EditorManager::activeEditor(), pSecond);
            QVERIFY(pTab && pTab->isVisible());
        } else {
            QTRY_VERIFY(!pSecond && !pTab);
            QCOMPARE(EditorManager::activeEditor(), pFirst);
            QCOMPARE(program.tabs()->count(), 1);
        }
        StageDocument onDisk;
        onDisk.setFileName(program.filePath("two.kelpa"));
        QVERIFY(onDisk.open());
        QCOMPARE(onDisk.getModel()->elements(0).size(), elementsOnDisk);
    }

    void theCloseBoxPressedAgainDuringTheQuestionAsksOnce()
    {
        Program program;
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

    void afterClosingTheTitleShowsTheProjectThatIsLeft()
    {
        Program program;
        const QPointer<StageEditor> pFirst = program.open("one.kelpa");
        const QPointer<StageEditor> pSecond = program.open("two.kelpa");
        const QSignalSpy paths(program.window.get(), &MainWindow::updateWindowFilePath);
        pSecond->getSubWindow()->close();
        QTRY_VERIFY(!pSecond);
        QCOMPARE(paths.last().first().toString(), program.filePath("one.kelpa"));
    }

    void anythingMayDieFirst_data()
    {
        QTest::addColumn<QString>("order");
        QTest::newRow("editor, document, tab") << QStringLiteral("edt");
        QTest::newRow("document, editor, tab") << QStringLiteral("det");
        QTest::newRow("document, tab, editor") << QStringLiteral("dte");
        QTest::newRow("tab, document, editor") << QStringLiteral("tde");
        QTest::newRow("tab, editor, document") << QStringLiteral("ted");
        QTest::newRow("main window, document, editor") << QStringLiteral("wde");
        QTest::newRow("document, main window, editor") << QStringLiteral("dwe");
        QTest::newRow("editor, main window, document") << QStringLiteral("ewd");
    }
    void anythingMayDieFirst()
    {
        QFETCH(QString, order);
        Program program;
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
        Program program;
        StageEditor *pEditor = program.open("one.kelpa");
        StageView *pView = pEditor->getView();
        QTRY_VERIFY(pView->hasFocus());
        QTest::keyClick(pView, Qt::Key_Tab);
        QCOMPARE(pView->selectedElements(), QList<int>({0}));
        QVERIFY(pView->accessibleDescription().startsWith(QLatin1String("a selected")));
        QTest::keyClick(pView, Qt::Key_Right);
        QTest::keyClick(pView, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(placeOf(pEditor, 0), QPointF(21, 30));
        QCOMPARE(documentOf(pEditor)->getUndoStack()->count(), 1);
        QTest::keyClick(pView, Qt::Key_Tab);
        QTest::keyClick(pView, Qt::Key_Tab);
        QTest::keyClick(pView, Qt::Key_Tab);
        QCOMPARE(pView->selectedElements(), QList<int>({0}));
        QTest::keyClick(pView, Qt::Key_Backtab);
        QCOMPARE(pView->selectedElements(), QList<int>({2}));
        QTest::keyClick(pView, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(pView->selectedElements(), QList<int>({0, 1, 2}));
        QTest::keyClick(pView, Qt::Key_Delete);
        QVERIFY(documentOf(pEditor)->getModel()->elements(0).isEmpty());
        program.action("Undo")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(0).size(), 3);
        QTest::keyClick(pView, Qt::Key_Tab);
        QTest::keyClick(pView, Qt::Key_Escape);
        QVERIFY(pView->selectedElements().isEmpty() && pView->hasFocus());
        QTest::keyClick(pView, Qt::Key_Escape); // the way out of the stage
        QVERIFY(!pView->hasFocus());
    }

    void elementsStopAtTheEdgeOfWhatAFileMayHold()
    {
        Program program;
        StageEditor *pEditor = program.open("one.kelpa");
        pEditor->getView()->selectElements({0});
        pEditor->getView()->moveSelected(5e6, -5e6);
        QCOMPARE(placeOf(pEditor, 0), QPointF(1e6, -1e6));
        QVERIFY(documentOf(pEditor)->save());
        QVERIFY(documentOf(pEditor)->revert());
    }

    void aDragIsOneEditInWholePixels()
    {
        Program program;
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
        program.action("Undo")->trigger();
        QCOMPARE(placeOf(pEditor, 0), QPointF(20, 20));
    }

    void theToolBarAddsAndDeletes()
    {
        Program program;
        QVERIFY(!program.action("Add Rectangle")->isEnabled());
        StageEditor *pEditor = program.open("one.kelpa");
        QVERIFY(!program.action("Delete")->isEnabled());
        for (const char *pText : {"Add Rectangle", "Add Ellipse", "Add Text"})
            program.action(pText)->trigger();
        const auto &elements = documentOf(pEditor)->getModel()->elements(0);
        QCOMPARE(elements.size(), 6);
        QCOMPARE(elements.at(4).id, QStringLiteral("ellipse-1"));
        QCOMPARE(pEditor->getView()->selectedElements(), QList<int>({5}));
        program.action("Delete")->trigger();
        QCOMPARE(elements.size(), 5);
        program.action("Undo")->trigger();
        program.action("Undo")->trigger();
        program.action("Redo")->trigger();
        QCOMPARE(elements.last().type, StageElement::Type::Text);
    }

    void undoingAnEditOfAnotherSceneShowsThatScene()
    {
        Program program;
        StageEditor *pEditor = program.open("one.kelpa");
        auto *pScenes = pEditor->getSubWindow()->findChild<QComboBox *>();
        QCOMPARE(pScenes->count(), 2);
        pEditor->getView()->setCurrentScene(1);
        program.action("Add Rectangle")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(1).size(), 1);
        pEditor->getView()->setCurrentScene(0);
        program.action("Undo")->trigger();
        QCOMPARE(pEditor->getView()->currentScene(), 1);
        QCOMPARE(pScenes->currentIndex(), 1);
        program.action("Redo")->trigger();
        QCOMPARE(documentOf(pEditor)->getModel()->elements(1).size(), 1);
    }

    void aNewProjectIsOnDiskAndShown()
    {
        Program program;
        QTimer::singleShot(0, qApp, [&] {
            auto *pDialog = qobject_cast<ICreateDocumentDlg *>(QApplication::activeModalWidget());
            pDialog->findChild<QLineEdit *>(QStringLiteral("path"))->setText(program.filePath("fresh"));
            pDialog->accept();
        });
        program.action("New")->trigger();
        QVERIFY(QFile::exists(program.filePath("fresh.kelpa")));
        QVERIFY(EditorManager::activeEditor());
        QVERIFY(!program.action("Save")->isEnabled());
        QCOMPARE(program.tabs()->tabText(0), QStringLiteral("fresh"));
    }

    void everyControlHasANameForScreenReaders()
    {
        Program program;
        const StageEditor *pEditor = program.open("one.kelpa");
        QCOMPARE(pEditor->getView()->accessibleName(), QStringLiteral("Stage"));
        QCOMPARE(
            pEditor->getSubWindow()->findChild<QComboBox *>()->accessibleName(), QStringLiteral("Scene"));
        const auto actions = program.toolBar->actions();
        for (const QAction *pAction : actions)
            QVERIFY(pAction->isSeparator() || !pAction->text().isEmpty());
    }

    // What is painted is what the file says: the colours of background and shapes at their places.
    void theStageIsPainted()
    {
        Program program;
        StageEditor *pEditor = program.open("one.kelpa");
        StageView *pView = pEditor->getView();
        const QImage image = pView->viewport()->grab().toImage();
        QCOMPARE(image.pixelColor(pView->mapFromScene(50, 50)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(pView->mapFromScene(230, 50)), QColor(Qt::green));
        QCOMPARE(image.pixelColor(pView->mapFromScene(203, 23)), QColor(Qt::white));
        QVERIFY(image.pixelColor(pView->mapFromScene(-10, -10)) != QColor(Qt::white));
    }

private:
    // Touches what is left, as a user might.
    static void poke(Program &program, StageEditor *pEditor, QMdiSubWindow *pTab)
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
