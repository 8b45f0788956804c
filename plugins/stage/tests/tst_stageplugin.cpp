// SPDX-License-Identifier: MIT
// The plug-in as the program loads it, from one start to the next, under a window manager that leaves the
// whole screen to a maximised window.
#include <support/windowtest.h>

#include <extensionsystem/iplugin.h>
#include <icore.h>

using ExtensionSystem::IPlugin;
using ExtensionSystem::PluginManager;

class tst_StagePlugin : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        start();
    }
    void cleanup()
    {
        m_pPlugin.reset();
        WindowTest::cleanup();
    }

    void withoutAGroupItIsAFirstStart()
    {
        QTRY_VERIFY(m_pWindow->isMaximized());
        QVERIFY(!PluginManager::settings()->childGroups().contains("Designer"));
        ICore::saveSettings();
        start();
        QVERIFY(!MainWindow::IsFirstRun());
    }

    void theToolBarsComeBackAsTheyWereLeft()
    {
        QToolBar *pBar = stageToolBar();
        for (const QAction *pAction : pBar->actions())
            QVERIFY(pAction->isSeparator() || !pAction->icon().isNull());
        m_pWindow->addToolBar(Qt::LeftToolBarArea, pBar);
        m_pWindow->getFileToolbar()->hide();
        ICore::saveSettings();
        start();
        QCOMPARE(m_pWindow->toolBarArea(stageToolBar()), Qt::LeftToolBarArea);
        QVERIFY(m_pWindow->getFileToolbar()->isHidden());
    }

    void theWindowGetsItsPlaceBack_data()
    {
        const auto row = columns<bool>("byDrag");
        row("at the button", false);
        row("its size in a drag of the title row", true);
    }
    void theWindowGetsItsPlaceBack()
    {
        QFETCH(bool, byDrag);
        PluginManager::settings()->setValue("Designer/Shown", true); // not the first start
        start();
        const QRect place(137, 141, 640, 480);
        settle();
        m_pWindow->setGeometry(place);
        for (const bool bStartsAgain : {false, true}) {
            maximizeButton()->click();
            QTRY_COMPARE(m_pWindow->size(), m_pWindow->screen()->size() - QSize(0, 1));
            settle();
            QCOMPARE(maximizeButton()->toolTip(), "Restore Down");
            if (bStartsAgain) {
                ICore::saveSettings();
                start();
                settle();
                QCOMPARE(m_pWindow->size(), m_pWindow->screen()->size() - QSize(0, 1));
            }
            if (byDrag)
                dragTo(QPoint(700, 300));
            else
                maximizeButton()->click();
            settle();
            QTRY_COMPARE(m_pWindow->size(), place.size());
            QTRY_COMPARE(m_pWindow->pos(), byDrag ? QPoint(380, 297) : place.topLeft());
            QVERIFY(!m_pWindow->isMaximized());
            QCOMPARE(maximizeButton()->toolTip(), "Maximize");
            ICore::saveSettings();
            start();
            QTRY_COMPARE(m_pWindow->size(), place.size());
            m_pWindow->move(place.topLeft());
        }
    }

    void damagedValuesLeaveTheWindowUsable_data()
    {
        const auto row = columns<QVariant>("value");
        row("text", "nonsense");
        row("a list", QStringList({"a", "b"}));
        row("bytes", QByteArray(200, '\xff'));
        row("nothing", QVariant());
        QWidget far;
        far.setGeometry(100000, -100000, 500, 400);
        row("a place on a screen that is gone", far.saveGeometry());
        row("a place cut off", far.saveGeometry().left(20));
    }
    void damagedValuesLeaveTheWindowUsable()
    {
        QFETCH(QVariant, value);
        for (const char *pKey : {"Designer/Geometry", "Designer/State"})
            PluginManager::settings()->setValue(pKey, value);
        start();
        QVERIFY(!m_pWindow->isMaximized());
        QVERIFY(m_pWindow->width() > 100 && m_pWindow->height() > 100);
        QVERIFY(m_pWindow->screen()->geometry().intersects(m_pWindow->geometry()));
        QCOMPARE(m_pWindow->toolBarArea(stageToolBar()), Qt::TopToolBarArea);
        QVERIFY(stageToolBar()->isVisible() && m_pWindow->getFileToolbar()->isVisible());
    }

private:
    // Ends what runs and starts again with the settings that are in the file.
    void start()
    {
        m_pPlugin.reset();
        m_pWindow.reset();
        PluginManager::instance()->setSettings(
            std::make_unique<QSettings>(m_pProgram->filePath("user.ini"), QSettings::IniFormat));
        m_pWindow = std::make_unique<TestWindow>();
        QPluginLoader loader(KELPA_STAGE_PLUGIN);
        m_pPlugin.reset(qobject_cast<IPlugin *>(loader.instance()));
        QVERIFY2(m_pPlugin, qPrintable(loader.errorString()));
        QString strError;
        QVERIFY2(m_pPlugin->initialize({}, &strError), qPrintable(strError));
        m_pPlugin->extensionsInitialized();
        m_pWindow->extensionsInitialized();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
    }

    [[nodiscard]] QAbstractButton *maximizeButton() const
    {
        return m_pWindow->findChild<QAbstractButton *>("maximizeButton");
    }

    // The window manager answers a resize of a maximized window several times, faster than a user acts.
    static void settle() { QTest::qWait(500); }

    // Drags the window by its title row, which is at the top of the screen.
    static void dragTo(const QPoint &point)
    {
        QStringList arguments {"mousemove", "700", "3", "mousedown", "1"};
        for (const QPoint &step : {QPoint(700, 20), QPoint(700, 150), point})
            arguments += {"sleep", "0.1", "mousemove", QString::number(step.x()), QString::number(step.y())};
        QProcess process;
        process.start("xdotool", arguments + QStringList {"mouseup", "1"});
        QTRY_COMPARE(process.state(), QProcess::NotRunning);
        QCOMPARE(process.exitCode(), 0);
    }

    [[nodiscard]] QToolBar *stageToolBar() const
    {
        auto bars = m_pWindow->findChildren<QToolBar *>();
        bars.removeOne(m_pWindow->getFileToolbar());
        return bars.value(0);
    }

    std::unique_ptr<IPlugin> m_pPlugin;
};

QTEST_MAIN(tst_StagePlugin)
#include "tst_stageplugin.moc"
