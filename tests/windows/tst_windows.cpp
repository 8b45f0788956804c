// SPDX-License-Identifier: MIT
// A walk through every window and dialog of the whole program.
#include "survey.h"

#include <updater/testserver.h>
#include <updater/updatetest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <app/catalogues.h>
#include <icore.h>
#include <mainwindow.h>
#include <ui/imainmenuwidget.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>
#include <QToolButton>
#include <QTranslator>

using ExtensionSystem::PluginManager;

namespace {

QString environment(const char *pName, const char *pDefault)
{
    return qEnvironmentVariable(pName, QLatin1String(pDefault));
}

QByteArray feedFor(const char *pVersion, const QString &strDownload = {})
{
    return feed(QLatin1String(pVersion), strDownload).replace("\"windows\"", "\"linux\"");
}

} // namespace

class tst_Windows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QCoreApplication::setApplicationVersion("1.0");
        QSettings settings(m_folder.filePath("KelpaStudio.ini"), QSettings::IniFormat);
        settings.setValue("Kelpa/Theme", environment("KELPA_THEME", "Dark"));
        settings.setValue("Kelpa/Language", environment("KELPA_LANGUAGE", "en_US"));
        settings.setValue("Designer/Shown", true);
        settings.setValue("Updates/FeedUrl", m_server.url("/feed"));
        settings.setValue("Updates/Asked", true);
        settings.sync();
        m_strProject = m_folder.filePath("projects/card.kelpa");
        QVERIFY(QDir(m_folder.path()).mkdir("projects"));
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
        QCOMPARE(QGuiApplication::layoutDirection(), QLocale().textDirection());
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
            m_survey.look(window(), QString("notification-%1").arg(type));
        }
        window()->hideNotification();
    }

    void newProject()
    {
        const auto replace = [&](QDialog *pDialog) {
            m_survey.look(pDialog, "new");
            const QString strFile = m_folder.filePath("KelpaStudio.ini.kelpa");
            QVERIFY(QFile::copy(m_strProject, strFile));
            pDialog->findChild<QLineEdit *>("path")->setText(strFile);
            auto *pOk = pDialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
            inDialog([&] { pOk->click(); }, look("message-replace"));
            pDialog->findChild<QLineEdit *>("path")->setText("/no/such/folder/a.kelpa");
            m_survey.look(pDialog, "new-problem");
        };
        inDialog([] { command("File.New")->trigger(); }, replace);
    }

    void about()
    {
        inDialog([] { command("Help.About")->trigger(); }, look("about"));
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
            m_survey.look(pDialog, QString("preferences-%1").arg(i));
            auto *pList = pDialog->findChild<QListWidget *>("horizontal");
            if (!pList->isVisible())
                continue;
            pList->editItem(pList->item(4));
            const auto *pDigits = pList->findChild<QLineEdit *>();
            QVERIFY(pDigits->height() >= pDigits->fontMetrics().height());
            QVERIFY(pDigits->width() > pDigits->fontMetrics().horizontalAdvance("100000"));
            m_survey.look(pDialog, "preferences-edit");
        }
        pDialog->reject();
    }

    void messages()
    {
        inDialog([] { otherEntry("View.Language")->trigger(); }, look("message-language"));
        inDialog([] { otherEntry("View.Theme")->trigger(); }, look("message-theme"));
        inDialog([&] { window()->loadFile(m_folder.filePath("picture.bmp")); }, look("message-type"));
        expectWarning("missing.kelpa: ");
        inDialog([&] { window()->loadFile(m_folder.filePath("missing.kelpa")); }, look("message-missing"));
        QUndoStack *pUndoStack = EditorManager::activeEditor()->getDocument()->getUndoStack();
        pUndoStack->push(new QUndoCommand);
        inDialog([] { command("File.Close")->trigger(); }, look("message-save"));
        QVERIFY(QDir(m_folder.path()).rename("projects", "elsewhere"));
        expectWarning("card.kelpa: not saved: ");
        inDialog([] { command("File.Save")->trigger(); }, look("message-save-failed"));
        QVERIFY(QDir(m_folder.path()).rename("elsewhere", "projects"));
        pUndoStack->undo();
    }

    void answersToTheQuestionForUpdates()
    {
        for (const QByteArray &answer : {feedFor("0.1"), QByteArray("<html>")}) {
            m_server.body("/feed", answer);
            checkUpdates({{look(answer.startsWith('<') ? "message-no-feed" : "message-newest")}});
        }
        m_server.body("/feed", feedFor("99.0"));
        expectWarning("Web pages cannot be shown: ");
        checkUpdates({{look("release-notes")}});
    }

    void downloadOfAnUpdate()
    {
        const QByteArray part(400'000, 'x');
        QPointer<QTcpSocket> pSocket;
        m_server.on("/setup.bin", [&](QTcpSocket *p) {
            p->write("HTTP/1.1 200 OK\r\nContent-Length: 1200000\r\n\r\n" + part);
            pSocket = p;
            QTimer::singleShot(200, p, [p, part] { p->write(part); }); // what comes at once is not told
        });
        m_server.body("/feed", feedFor("99.0", m_server.url("/setup.bin")));
        const Step accept = {[](QDialog *) {}, QDialog::Accepted};
        checkUpdates({accept});
        QTRY_VERIFY(downloadWindow());
        QWidget *pWindow = downloadWindow();
        QTRY_VERIFY(pWindow->findChild<QProgressBar *>()->value() > 0);
        m_survey.look(pWindow, "download");
        auto *pStop = pWindow->findChild<QPushButton *>("stopButton");
        inDialog([&] { pStop->click(); }, look("message-stop"));
        inDialog([&] { pSocket->write(part); }, look("message-install"));
        m_survey.look(pWindow, "download-complete");
        QVERIFY(QFile::remove(Downloader::downloadFolder() + "setup.bin"));
        const Step install = {[](QDialog *pBox) { pBox->findChild<QPushButton *>()->click(); }};
        inDialogs([&] { pWindow->findChild<QPushButton *>("openButton")->click(); },
            {install, {look("message-gone")}});
        pWindow->close();
        m_server.answer("/setup.bin", "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
        expectWarning("No update: ");
        checkUpdates({accept, {look("message-download-failed")}});
    }

    // Of lists and trees, where the current entry need not be a selected one.
    void currentEntryIsSeen()
    {
        QListWidget list;
        list.addItems({"one", "two"});
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        list.show();
        list.activateWindow();
        list.setFocus();
        QTRY_VERIFY(list.hasFocus());
        const auto edge = [&] {
            const QRect rect = list.visualItemRect(list.item(1));
            return list.viewport()->grab().toImage().pixelColor(rect.center().x(), rect.bottom()).lightness();
        };
        for (const auto selection : {QItemSelectionModel::Clear, QItemSelectionModel::Select}) {
            list.selectionModel()->select(list.model()->index(1, 0), selection);
            list.setCurrentRow(0, QItemSelectionModel::NoUpdate);
            const int nBefore = edge();
            list.setCurrentRow(1, QItemSelectionModel::NoUpdate);
            QVERIFY(qAbs(edge() - nBefore) > 40);
        }
    }

    void oneKeyOpensOneEntry()
    {
        QList<QList<QAction *>> menus = {menuBar()->actions()};
        for (const QAction *pAction : QList(menus.first()))
            menus.append(pAction->menu()->actions());
        for (const auto &actions : std::as_const(menus)) {
            QMap<QKeySequence, QString> keys;
            for (const QAction *pAction : actions) {
                const QKeySequence key = QKeySequence::mnemonic(pAction->text());
                QVERIFY2(key.isEmpty() || !pAction->isVisible() || !keys.contains(key),
                    qPrintable(pAction->text() + " and " + keys.value(key)));
                keys.insert(key, pAction->text());
            }
        }
    }

    // In the languages that there is help in. The two commands that share their keys have none that works.
    void helpNamesTheKeys()
    {
        QFile file(QString(KELPA_HELP "/%1.md").arg(environment("KELPA_LANGUAGE", "en").section('_', 0, 0)));
        if (!file.open(QIODevice::ReadOnly))
            return;
        const QString strHelp = QString::fromUtf8(file.readAll());
        QMultiMap<QString, QString> ids;
        const auto commands = ActionManager::getActions();
        for (const ContextAction *pCommand : commands) {
            const QKeySequence keys = pCommand->getAction()->shortcut();
            if (!keys.isEmpty())
                ids.insert(keys.toString(QKeySequence::NativeText), pCommand->getId());
        }
        QVERIFY(ids.size() > 5);
        for (const QString &strKeys : ids.uniqueKeys()) {
            if (ids.count(strKeys) == 1)
                QVERIFY2(strHelp.contains(strKeys), qPrintable(ids.value(strKeys) + ": " + strKeys));
        }
    }

    void rowsGoInTheDirectionOfReading()
    {
        window()->showNotification("[text~]", KPNotificationBar::Warning, "[button~]", true);
        QCoreApplication::sendPostedEvents(); // of the layouts
        QList<QRect> row = {placeOf(menuBar()->cornerWidget(Qt::TopLeftCorner))};
        const auto actions = menuBar()->actions();
        for (QAction *pAction : actions)
            row.append(menuBar()->actionGeometry(pAction).translated(placeOf(menuBar()).topLeft()));
        const auto append = [&row](const QWidget *pBar, const QList<const char *> &names) {
            for (const char *pName : names)
                row.append(placeOf(pBar->findChild<QWidget *>(pName)));
            compareOrder(std::exchange(row, {}), placeOf(pBar));
        };
        append(titleBar(), {"minizeButton", "maximizeButton", "closeButton"});
        append(window()->getNotificationBar(),
            {"m_pIconLabel", "m_pMessageLabel", "m_pButton", "m_pCloseButton"});
        window()->hideNotification();
    }

    // Below its entry and flush with where that begins; its own menu lies behind it.
    void menusOpenInTheDirectionOfReading()
    {
        QMenu *pMenu = ActionManager::getActionContainer("MenuBar.View")->getMenu();
        QAction *pSubmenu = ActionManager::getActionContainer("View.Language")->getMenu()->menuAction();
        menuBar()->setActiveAction(pMenu->menuAction());
        QTRY_VERIFY(pMenu->isVisible());
        pMenu->setActiveAction(pSubmenu);
        QTest::keyClick(pMenu, isMirrored() ? Qt::Key_Left : Qt::Key_Right);
        QTRY_VERIFY(pSubmenu->menu()->isVisible());
        const QRect entry = menuBar()->actionGeometry(pMenu->menuAction());
        const QRect bar(menuBar()->mapToGlobal(entry.topLeft()), entry.size());
        const QRect menu = pMenu->geometry();
        const QRect submenu = pSubmenu->menu()->geometry();
        QVERIFY(menu.top() >= bar.bottom());
        QCOMPARE(isMirrored() ? menu.right() : menu.left(), isMirrored() ? bar.right() : bar.left());
        const int nBeside = isMirrored() ? menu.left() - submenu.right() : submenu.left() - menu.right();
        QVERIFY2(qAbs(nBeside) < 12, qPrintable(QString::number(nBeside)));
        pSubmenu->menu()->close();
        pMenu->close();
    }

    // Last: the project goes. There is no module with the browser engine here.
    void startPageWithoutAnEngine()
    {
        expectWarning("The home page failed and is loaded again.");
        expectWarning("The home page failed again; ");
        command("File.Close")->trigger();
        QTRY_VERIFY(listOfProjects() && listOfProjects()->findChild<QListWidget *>()->count() > 0);
        m_survey.look(window(), "start");
        window()->setVisibleWelcomeWidget(false);
        const QWidget *pArea = window()->centralWidget();
        const QImage image =
            window()->grab(QRect(pArea->mapTo(window(), pArea->rect().center()), QSize(1, 1))).toImage();
        QVERIFY(environment("KELPA_THEME", "Dark") == "Dark" ? image.pixelColor(0, 0).lightness() < 50
                                                             : image.pixelColor(0, 0) == Qt::white);
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

    static bool isMirrored() { return QGuiApplication::isRightToLeft(); }

    // Each lies behind the one before, all within `frame`.
    static void compareOrder(const QList<QRect> &row, const QRect &frame)
    {
        for (qsizetype i = 0; i < row.size(); ++i) {
            QVERIFY2(frame.contains(row[i]), qPrintable(QString::number(i)));
            if (i > 0)
                QVERIFY2(
                    isMirrored() ? row[i].right() < row[i - 1].left() : row[i].left() > row[i - 1].right(),
                    qPrintable(QString::number(i)));
        }
    }

    static QWidget *downloadWindow()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *pWindow : windows) {
            if (qobject_cast<Downloader *>(pWindow) && pWindow->isVisible())
                return pWindow;
        }
        return nullptr;
    }

    static QWidget *listOfProjects()
    {
        const auto children = window()->findChildren<QWidget *>();
        for (QWidget *pChild : children) {
            if (pChild->inherits("RecentList") && pChild->isVisible())
                return pChild;
        }
        return nullptr;
    }

    using Look = std::function<void(QDialog *)>;

    // What to do with a dialog, and the result to close it with; without a choice unless told.
    struct Step
    {
        Look look;
        int nResult = -1;
    };

    Look look(const QString &strName)
    {
        return [this, strName](QDialog *pDialog) { m_survey.look(pDialog, strName); };
    }

    void checkUpdates(const QList<Step> &steps)
    {
        inDialogs([] { command("Help.CheckUpdates")->trigger(); }, steps);
    }

    void inDialog(const std::function<void()> &open, const Look &onlyLook) { inDialogs(open, {{onlyLook}}); }

    void lookAtMenu(QMenu *pMenu, const QString &strName)
    {
        pMenu->popup(window()->mapToGlobal(QPoint(20, 60)));
        m_survey.look(pMenu, strName);
        const auto actions = pMenu->actions();
        for (QAction *pAction : actions) {
            if (pAction->menu() && pAction->isEnabled() && !pAction->menu()->isEmpty()) {
                pAction->menu()->popup(window()->mapToGlobal(QPoint(20, 60)));
                m_survey.look(pAction->menu(), strName + '-' + pAction->menu()->objectName());
                pAction->menu()->close();
            }
        }
        pMenu->close();
    }

    // Opens modal dialogs, at once or in a while, one after the other.
    void inDialogs(const std::function<void()> &open, QList<Step> steps)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            const QPointer<QDialog> pDialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (steps.isEmpty() || !pDialog || !pDialog->isVisible() || pDialog == m_pLast)
                return;
            timer.stop();
            m_pLast = pDialog;
            const Step step = steps.takeFirst();
            step.look(pDialog);
            timer.start();
            if (pDialog && pDialog->isVisible())
                pDialog->done(step.nResult);
        });
        timer.start(20);
        open();
        QTRY_VERIFY(steps.isEmpty());
    }

    QTemporaryDir m_folder;
    QString m_strProject;
    QPointer<QDialog> m_pLast; // looked at
    TestHome m_home;
    TestServer m_server;
    Survey m_survey;
    std::unique_ptr<PluginManager> m_pManager;
};

QTEST_MAIN(tst_Windows)
#include "tst_windows.moc"
