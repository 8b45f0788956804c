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

    void theToolBarAddsWhatItSays_data()
    {
        const auto row = columns<QString, QSizeF, QString, QString>("action", "size", "fill", "picture");
        row("rectangle", "Add Rectangle", {200, 120}, "#5b8def", "");
        row("ellipse", "Add Ellipse", {160, 160}, "#f2a65a", "");
        row("text", "Add Text", {240, 40}, "#202020", "");
        row("picture", "Add Image", {300, 100}, "", "300x100");
        row("largest picture that keeps its size", "Add Image", {600, 600}, "", "600x600");
        row("wide picture", "Add Image", {600, 300}, "", "1200x600");
        row("high picture", "Add Image", {150, 600}, "", "300x1200");
        row("no picture", "Add Image", {200, 200}, "", "broken");
        row("cancelled", "Add Image", {}, "", "");
    }
    void theToolBarAddsWhatItSays()
    {
        QFETCH(QString, action);
        QFETCH(QSizeF, size);
        QFETCH(QString, picture);
        const QStringList sides = picture.split('x');
        const QString strFile =
            picture.isEmpty() ? QString() : m_pProgram->write(qPrintable(picture + ".png"));
        if (sides.size() == 2)
            QVERIFY(QImage(sides[0].toInt(), sides[1].toInt(), QImage::Format_Mono).save(strFile));
        const FileAnswer file(&strFile);
        this->action(qPrintable(action))->trigger();
        QCOMPARE(elements(0).size(), size.isEmpty() ? 3 : 4);
        if (size.isEmpty())
            return;
        const StageElement &element = elements(0).last();
        QCOMPARE(QSizeF(element.width, element.height), size);
        QTEST(element.fill.isValid() ? element.fill.name() : QString(), "fill");
        QCOMPARE(element.text, element.type == StageElement::Type::Text ? "Text" : "");
        QCOMPARE(element.source, strFile);
    }

    void theToolBarFollowsItsEditor()
    {
        const QMenu *pMenu = ActionManager::getActionContainer("MenuBar.Edit")->getMenu();
        QStringList texts;
        for (const QAction *pAction : pMenu->actions())
            texts.append(pAction->isSeparator() ? "-" : pAction->text().remove('&').section(' ', 0, 1));
        QCOMPARE(texts.mid(0, 10).join(""),
            "UndoRedo-Add RectangleAdd EllipseAdd TextAdd Image...Delete-Preferences");
        const QAction *pDelete = action("Delete");
        QVERIFY(!pDelete->isEnabled());
        m_pView->selectAll();
        QVERIFY(pDelete->isEnabled());
        action("Delete")->trigger();
        QVERIFY(!pDelete->isEnabled() && elements(0).isEmpty());
        m_pView->addElement({});
        m_pProgram->open("two.kelpa");
        QVERIFY(!pDelete->isEnabled());
        m_pProgram->command("File.Close")->trigger();
        QTRY_VERIFY(pDelete->isEnabled());
        StageProject project = document()->getModel()->project();
        project.scenes[0].elements.resize(20'000);
        document()->getModel()->setProject(project);
        action("Add Text")->trigger();
        QCOMPARE(m_pProgram->window->statusBar()->currentMessage(),
            "The project holds as many elements as it can.");
        document()->getUndoStack()->setClean();
        m_pProgram->command("File.Close")->trigger();
        for (const QAction *pAction : m_pProgram->toolBar->actions())
            QVERIFY(pAction->isSeparator() || !pAction->isEnabled());
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
