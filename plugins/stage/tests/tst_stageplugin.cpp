// SPDX-License-Identifier: MIT
// The plug-in as the program loads it, from one start to the next.
#include <support/coretest.h>

#include <extensionsystem/iplugin.h>
#include <icore.h>
#include <mainwindow.h>

using ExtensionSystem::IPlugin;
using ExtensionSystem::PluginManager;

class tst_StagePlugin : public QObject
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
        stop();
        m_pProgram.reset();
    }

    void withoutAGroupItIsAFirstStart()
    {
        QVERIFY(m_pWindow->isMaximized());
        QVERIFY(!PluginManager::settings()->childGroups().contains("Designer"));
        ICore::saveSettings();
        start();
        QVERIFY(!MainWindow::IsFirstRun());
    }

    void theWindowComesBackAsItWasLeft()
    {
        const QRect place(37, 41, 640, 480);
        m_pWindow->showNormal();
        m_pWindow->setGeometry(place);
        QToolBar *pBar = stageToolBar();
        m_pWindow->addToolBar(Qt::LeftToolBarArea, pBar);
        m_pWindow->getFileToolbar()->hide();
        ICore::saveSettings();
        start();
        QVERIFY(!m_pWindow->isMaximized());
        QCOMPARE(m_pWindow->geometry(), place);
        QCOMPARE(m_pWindow->toolBarArea(stageToolBar()), Qt::LeftToolBarArea);
        QVERIFY(m_pWindow->getFileToolbar()->isHidden());
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
        stop();
        PluginManager::instance()->setSettings(
            std::make_unique<QSettings>(m_pProgram->filePath("user.ini"), QSettings::IniFormat));
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        QPluginLoader loader(KELPA_STAGE_PLUGIN);
        m_pPlugin.reset(qobject_cast<IPlugin *>(loader.instance()));
        QVERIFY2(m_pPlugin, qPrintable(loader.errorString()));
        QString strError;
        QVERIFY2(m_pPlugin->initialize({}, &strError), qPrintable(strError));
        m_pPlugin->extensionsInitialized();
        m_pWindow->extensionsInitialized();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
    }
    void stop()
    {
        m_pPlugin.reset();
        m_pWindow.reset();
    }

    [[nodiscard]] QToolBar *stageToolBar() const
    {
        const auto bars = m_pWindow->findChildren<QToolBar *>();
        const auto it = std::find_if(bars.begin(), bars.end(),
            [this](const QToolBar *pBar) { return pBar != m_pWindow->getFileToolbar(); });
        return it == bars.end() ? nullptr : *it;
    }

    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    std::unique_ptr<IPlugin> m_pPlugin;
};

QTEST_MAIN(tst_StagePlugin)
#include "tst_stageplugin.moc"
