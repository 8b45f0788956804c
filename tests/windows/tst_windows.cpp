// SPDX-License-Identifier: MIT
// A walk through every window and dialog of the whole program.
#include "survey.h"

#include <support/coretest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <app/catalogues.h>
#include <icore.h>
#include <mainwindow.h>
#include <ui/imainmenuwidget.h>

#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QToolButton>
#include <QTranslator>

using ExtensionSystem::PluginManager;

namespace {

QString environment(const char *pName, const char *pDefault)
{
    return qEnvironmentVariable(pName, QLatin1String(pDefault));
}

} // namespace

class tst_Windows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QSettings settings(m_folder.filePath("KelpaStudio.ini"), QSettings::IniFormat);
        settings.setValue("Kelpa/Theme", environment("KELPA_THEME", "Dark"));
        settings.setValue("Kelpa/Language", environment("KELPA_LANGUAGE", "en_US"));
        settings.setValue("Designer/Shown", true);
        settings.sync();
        m_strProject = m_folder.filePath("card.kelpa");
        QVERIFY(QFile::copy(KELPA_EXAMPLES "/card.kelpa", m_strProject));

        m_survey.setFolder(environment("KELPA_SHOTS", ""));
        m_survey.setName(environment("KELPA_LANGUAGE", "test") + '-' + environment("KELPA_THEME", "Dark")
            + '-' + environment("QT_FONT_DPI", "96"));
        m_pManager = std::make_unique<PluginManager>();
        connect(m_pManager.get(), &PluginManager::aboutToLoadPlugins, this, &tst_Windows::installLanguage);
        const auto exitCode =
            m_pManager->start({"kelpastudio", "--new-instance", "--settings-path", m_folder.path(),
                "--plugin-path", QCoreApplication::applicationDirPath() + "/plugins", m_strProject});
        QVERIFY(!exitCode);
        QCOMPARE(PluginManager::errors().size(), 0);
        window()->setWindowState(Qt::WindowNoState);
        const double dScale = QGuiApplication::primaryScreen()->logicalDotsPerInchX() / 96;
        window()->resize(QSize(1280, 800) * dScale);
        QTRY_COMPARE(EditorManager::getEditors().size(), 1);
        QTest::qWait(1); // one turn for the layouts
    }

    void cleanup() { QCOMPARE(m_survey.takeFaults().join('\n'), QString()); }

    void cleanupTestCase()
    {
        m_pManager->shutdown();
        m_pManager.reset();
    }

    void mainWindow() { m_survey.look(window(), "window"); }

    void menus()
    {
        const auto actions = menuBar()->actions();
        QVERIFY(actions.size() >= 4);
        for (QAction *pAction : actions)
            lookAtMenu(pAction->menu(), "menu-" + pAction->menu()->objectName());
    }

    void menuOfTheWindow()
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QCoreApplication::sendEvent(titleBar(), &event);
        auto *pMenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(pMenu);
        m_survey.look(pMenu, "menu-window");
        pMenu->close();
    }

    void notifications()
    {
        const QString strText = "[text~]";
        for (const auto type : {KPNotificationBar::Info, KPNotificationBar::Warning}) {
            window()->showNotification(strText, type, strText, true);
            QTest::qWait(1);
            m_survey.look(window(), QString("notification-%1").arg(type));
        }
        window()->hideNotification();
    }

    void newProject()
    {
        inDialog(
            [] { command("File.New")->trigger(); }, [&](QDialog *pDialog) { m_survey.look(pDialog, "new"); });
    }

    void preferences()
    {
        command("Edit.Preferences")->trigger();
        auto *pDialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(pDialog);
        auto *pPages = pDialog->findChild<QListWidget *>();
        QVERIFY(pPages);
        for (int i = 0; i < pPages->count(); ++i) {
            pPages->setCurrentRow(i);
            QTest::qWait(1);
            m_survey.look(pDialog, QString("preferences-%1").arg(i));
        }
        pDialog->reject();
    }

    void messages()
    {
        const auto look = [&](const char *pName) {
            return [this, pName](QDialog *pDialog) { m_survey.look(pDialog, pName); };
        };
        inDialog([] { otherEntry("View.Language")->trigger(); }, look("message-language"));
        inDialog([] { otherEntry("View.Theme")->trigger(); }, look("message-theme"));
        inDialog([&] { window()->loadFile(m_folder.filePath("picture.bmp")); }, look("message-type"));
        inDialog([&] { window()->loadFile(m_folder.filePath("missing.kelpa")); }, look("message-missing"));
        EditorManager::activeEditor()->getDocument()->getUndoStack()->push(new QUndoCommand);
        inDialog([] { command("File.Close")->trigger(); }, look("message-save"));
        EditorManager::activeEditor()->getDocument()->getUndoStack()->undo();
    }

    void oneKeyOpensOneEntry()
    {
        QStringList faults;
        const auto check = [&faults](const QList<QAction *> &actions) {
            QMap<QKeySequence, QString> keys;
            for (const QAction *pAction : actions) {
                const QKeySequence key = QKeySequence::mnemonic(pAction->text());
                if (!key.isEmpty() && pAction->isVisible() && keys.contains(key))
                    faults.append(pAction->text() + " and " + keys.value(key));
                keys.insert(key, pAction->text());
            }
        };
        check(menuBar()->actions());
        const auto actions = menuBar()->actions();
        for (const QAction *pAction : actions)
            check(pAction->menu()->actions());
        QCOMPARE(faults.join("; "), QString());
    }

    // The two commands that share their keys have none that works.
    void helpNamesTheKeys()
    {
        QFile file(KELPA_HELP "/en.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString strHelp = QString::fromUtf8(file.readAll());
        QMultiMap<QString, QString> ids;
        const auto commands = ActionManager::getActions();
        for (const ContextAction *pCommand : commands) {
            const QKeySequence keys = pCommand->getAction()->shortcut();
            if (!keys.isEmpty())
                ids.insert(keys.toString(QKeySequence::PortableText), pCommand->getId());
        }
        QVERIFY(ids.size() > 5);
        for (const QString &strKeys : ids.uniqueKeys()) {
            if (ids.count(strKeys) == 1)
                QVERIFY2(strHelp.contains(strKeys), qPrintable(ids.value(strKeys) + ": " + strKeys));
        }
    }

    // Last: it turns everything round.
    void rightToLeftMirrorsWithoutOverlap()
    {
        window()->showNotification("[text~]", KPNotificationBar::Warning, "[button~]", true);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QTest::qWait(1);
        // In the order in which they are read.
        QList<QRect> row = {placeOf(menuBar()->cornerWidget(Qt::TopLeftCorner))};
        const auto actions = menuBar()->actions();
        for (QAction *pAction : actions)
            row.append(menuBar()->actionGeometry(pAction).translated(placeOf(menuBar()).topLeft()));
        for (const char *pName : {"minizeButton", "maximizeButton", "closeButton"})
            row.append(placeOf(titleBar()->findChild<QWidget *>(pName)));
        compareMirrored(row, placeOf(titleBar()));

        KPNotificationBar *pBar = window()->getNotificationBar();
        row.clear();
        for (const char *pName : {"m_pIconLabel", "m_pMessageLabel", "m_pButton", "m_pCloseButton"})
            row.append(placeOf(pBar->findChild<QWidget *>(pName)));
        compareMirrored(row, placeOf(pBar));
        m_survey.look(window(), "rtl");
        lookAtMenu(actions.first()->menu(), "rtl-menu");
        window()->hideNotification();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

private:
    void installLanguage()
    {
        if (qEnvironmentVariableIsSet("KELPA_LANGUAGE")) {
            installCatalogues();
            m_survey.allowAnyText();
            return;
        }
        auto *pTranslator = new QTranslator(qApp);
        QVERIFY(pTranslator->load(KELPA_PSEUDO));
        QVERIFY(QCoreApplication::installTranslator(pTranslator));
        QCOMPARE(QCoreApplication::translate("MainWindow", "File.New"), "File.New");
    }

    static MainWindow *window() { return ICore::getMainWindow(); }
    static IMainMenuWidget *titleBar() { return window()->findChild<IMainMenuWidget *>(); }
    static QMenuBar *menuBar() { return titleBar()->findChild<QMenuBar *>(); }
    static QAction *command(const char *pId) { return ActionManager::getAction(pId)->getAction(); }

    static QAction *otherEntry(const char *pMenu)
    {
        const auto actions = ActionManager::getActionContainer(pMenu)->getMenu()->actions();
        for (QAction *pAction : actions) {
            if (!pAction->isChecked())
                return pAction;
        }
        return nullptr;
    }

    static QRect placeOf(const QWidget *pWidget)
    {
        return QRect(pWidget->mapTo(window(), QPoint(0, 0)), pWidget->size());
    }

    // Each lies left of the one before, all within `frame`.
    static void compareMirrored(const QList<QRect> &row, const QRect &frame)
    {
        for (qsizetype i = 0; i < row.size(); ++i) {
            QVERIFY2(frame.contains(row[i]), qPrintable(QString::number(i)));
            if (i > 0)
                QVERIFY2(row[i].right() < row[i - 1].left(), qPrintable(QString::number(i)));
        }
    }

    void lookAtMenu(QMenu *pMenu, const QString &strName)
    {
        pMenu->popup(window()->mapToGlobal(QPoint(20, 60)));
        QTest::qWait(1);
        m_survey.look(pMenu, strName);
        const auto actions = pMenu->actions();
        for (QAction *pAction : actions) {
            if (pAction->menu() && pAction->isEnabled() && !pAction->menu()->isEmpty()) {
                pAction->menu()->popup(window()->mapToGlobal(QPoint(20, 60)));
                QTest::qWait(1);
                m_survey.look(pAction->menu(), strName + '-' + pAction->menu()->objectName());
                pAction->menu()->close();
            }
        }
        pMenu->close();
    }

    // Opens a modal dialog, looks at it and closes it without a choice.
    template <typename Open, typename Look>
    void inDialog(Open open, Look look)
    {
        bool bSeen = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *pDialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!pDialog || !pDialog->isVisible())
                return;
            QCoreApplication::sendPostedEvents(); // the layout may be waiting
            if (!bSeen)
                look(pDialog);
            bSeen = true;
            pDialog->done(-1);
        });
        timer.start(20);
        open();
        QVERIFY(bSeen);
    }

    QTemporaryDir m_folder;
    QString m_strProject;
    Survey m_survey;
    std::unique_ptr<PluginManager> m_pManager;
};

QTEST_MAIN(tst_Windows)
#include "tst_windows.moc"
