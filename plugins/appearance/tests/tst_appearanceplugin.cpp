// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <actionmanager/actioncontainer.h>
#include <actionmanager/actionmanager.h>
#include <appearance/ithemesmanager.h>
#include <extensionsystem/iplugin.h>

using ExtensionSystem::IPlugin;
using ExtensionSystem::PluginManager;

namespace {

// Watches what is told that its style has changed although it was dressed already. Scroll areas dress their
// scroll bars, and the boxes these lie in, to measure them as soon as they are made.
class Restyled : public QObject
{
public:
    Restyled() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override
    {
        const auto *pWidget = qobject_cast<QWidget *>(pWatched);
        if (pEvent->type() != QEvent::StyleChange || !pWidget
            || !pWidget->testAttribute(Qt::WA_WState_Polished))
            return false;
        const QWidget *pParent = pWidget->parentWidget();
        if (!pWidget->inherits("QScrollBar") && !(pParent && pParent->inherits("QAbstractScrollArea")))
            names.append(QString("%1 \"%2\" in %3")
                             .arg(pWidget->metaObject()->className(), pWidget->objectName(),
                                 pParent ? pParent->metaObject()->className() : "nothing"));
        return false;
    }

    QStringList names;
};

} // namespace

// The themes manager lives as long as the process and lists the themes again with each case.
class tst_AppearancePlugin : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        WindowTest::init();
        m_loader.setFileName(KELPA_APPEARANCE_PLUGIN);
    }

    void cleanup()
    {
        delete m_pPlugin;
        m_pPlugin = nullptr;
        qApp->setStyleSheet(QString());
        WindowTest::cleanup();
    }

    void nothingIsDressedTwiceAndTheDarkThemeFollowsTheDensity_data()
    {
        const auto row = columns<QString, bool>("theme", "follows");
        row("dark", "Dark", true);
        row("light", "Light", false);
    }
    void nothingIsDressedTwiceAndTheDarkThemeFollowsTheDensity()
    {
        QFETCH(QString, theme);
        PluginManager::settings()->setValue("Kelpa/Theme", theme);
        Restyled restyled;
        start();
        m_pWindow->extensionsInitialized();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
        emit m_pWindow->dpiChanged(100); // as it tells the scale that it starts with
        QCOMPARE(restyled.names.join("; "), QString());
        QCOMPARE(IThemesManager::getInstance().getCurrentThemeId(), theme);
        const QString strBefore = qApp->styleSheet();
        QVERIFY(!strBefore.isEmpty());
        m_pWindow->setScreen(screenOf(192));
        emit m_pWindow->dpiChanged(200);
        QVERIFY(!qApp->styleSheet().isEmpty());
        QTEST(qApp->styleSheet() != strBefore, "follows");
    }

    void menuShowsTheThemeInForceAndSavesTheChoice()
    {
        start();
        QVERIFY(entry("Dark")->isChecked() && !entry("Light")->isChecked());
        BoxAnswers answers({QMessageBox::Ok, QMessageBox::Ok});
        entry("Light")->trigger();
        QCOMPARE(answers.texts(), QStringList({"The theme change will take effect from the next run."}));
        QCOMPARE(answers.boxes.first().title, "Kelpa Studio");
        QCOMPARE(PluginManager::settings()->value("Kelpa/Theme").toString(), "Light");
        QVERIFY(entry("Dark")->isChecked() && !entry("Light")->isChecked());

        entry("Light")->trigger();
        entry("Dark")->trigger();
        QCOMPARE(answers.boxes.size(), 2);
        QCOMPARE(PluginManager::settings()->value("Kelpa/Theme").toString(), "Dark");
        QVERIFY(entry("Dark")->isChecked());
    }

    // With no theme in force either: no entry has the check mark, and none gets it.
    void failureToSaveIsTold()
    {
        PluginManager::settings()->setValue("Kelpa/Theme", "Gone");
        start();
        IThemesManager::getInstance().setSettings(nullptr);
        BoxAnswers answers({QMessageBox::Ok});
        entry("Light")->trigger();
        QCOMPARE(answers.texts(), QStringList({"Failed to change theme."}));
        QVERIFY(!entry("Dark")->isChecked() && !entry("Light")->isChecked());
    }

    void withoutAMenuViewThereIsNone()
    {
        delete ActionManager::getActionContainer("MenuBar.View");
        QVERIFY(!ActionManager::getActionContainer("MenuBar.View"));
        QString strError;
        QVERIFY(load()->initialize({}, &strError));
        QVERIFY(!ActionManager::getActionContainer("View.Theme"));
        QCOMPARE(IThemesManager::getInstance().getCurrentThemeId(), "Dark");
    }

    void withoutAMainWindowThePluginFails()
    {
        m_pWindow.reset();
        QString strError;
        QVERIFY(!load()->initialize({}, &strError));
        QVERIFY(!strError.isEmpty());
    }

private:
    IPlugin *load()
    {
        m_pPlugin = qobject_cast<IPlugin *>(m_loader.instance());
        if (!m_pPlugin)
            qFatal("%s", qPrintable(m_loader.errorString()));
        return m_pPlugin;
    }

    void start()
    {
        ActionManager::createMenuContainer("MenuBar.View", "&View");
        QString strError;
        QVERIFY2(load()->initialize({}, &strError), qPrintable(strError));
    }

    // The first of its name.
    static QAction *entry(const char *pName)
    {
        const auto actions = ActionManager::getActionContainer("View.Theme")->getMenu()->actions();
        for (QAction *pAction : actions) {
            if (pAction->text() == pName)
                return pAction;
        }
        qFatal("no theme %s", pName);
    }

    QPluginLoader m_loader;
    IPlugin *m_pPlugin = nullptr;
};

QTEST_MAIN(tst_AppearancePlugin)
#include "tst_appearanceplugin.moc"
