// SPDX-License-Identifier: MIT
#include <support/windowtest.h>

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <appearance/ilanguagemanager.h>
#include <extensionsystem/iplugin.h>
#include <icore.h>

using ExtensionSystem::IPlugin;
using ExtensionSystem::PluginManager;

class tst_CorePlugin : public DocumentTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_pFactory = std::make_unique<FakeFactory>();
        PluginManager::settings()->setValue("Kelpa/Language", "pt_BR");
        m_loader.setFileName(KELPA_CORE_PLUGIN);
        m_pPlugin = qobject_cast<IPlugin *>(m_loader.instance());
        QVERIFY2(m_pPlugin, qPrintable(m_loader.errorString()));
    }

    void cleanup()
    {
        m_pFactory.reset();
        delete m_pPlugin;
        DocumentTest::cleanup();
    }

    void lifeFromConstructionToTheEnd()
    {
        QCOMPARE(QLocale().name(), "pt_BR");
        MainWindow *pWindow = ICore::getMainWindow();
        QVERIFY(pWindow && !pWindow->isVisible());
        QString strError = "untouched";
        QVERIFY(m_pPlugin->initialize({"/ignored.kelpa"}, &strError));
        QCOMPARE(strError, "untouched");
        m_pPlugin->extensionsInitialized();
        QVERIFY(pWindow->isVisible());
        QVERIFY(m_pPlugin->delayedInitialize());
        QCOMPARE(m_pPlugin->aboutToShutdown(), IPlugin::SynchronousShutdown);
        delete m_pPlugin;
        m_pPlugin = nullptr;
        QVERIFY(!ICore::getInstance() && !ICore::getMainWindow());
        QVERIFY(m_pFactory->documents.isEmpty());
    }

    void requestsRaiseThenOpenInOrder()
    {
        MainWindow *pWindow = ICore::getMainWindow();
        pWindow->setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
        const QString strAbsolute = m_pProgram->write("c.kelpa");
        m_pProgram->write("b.kelpa");
        QList<Qt::WindowStates> states;
        m_pFactory->prepare = [&](FakeDocument *) { states.append(pWindow->windowState()); };
        QCOMPARE(m_pPlugin->remoteCommand({"--option"}, m_pProgram->folder.path(), {"b.kelpa", strAbsolute}),
            nullptr);
        QCOMPARE(names(), QStringList({m_pProgram->filePath("b.kelpa"), strAbsolute}));
        m_pProgram->write("d.kelpa");
        QVERIFY(QDir::setCurrent(m_pProgram->folder.path()));
        QVERIFY(QMetaObject::invokeMethod(m_pPlugin, "fileOpenRequest", Q_ARG(QString, "d.kelpa")));
        QVERIFY(QDir::setCurrent("/"));
        QCOMPARE(names().last(), m_pProgram->filePath("d.kelpa"));
        QVERIFY(!states.first().testFlag(Qt::WindowMinimized));
        QVERIFY(states.first().testFlag(Qt::WindowMaximized));
    }

    void settingsAreAnnouncedBeforeTheyAreFlushed()
    {
        QVERIFY(ICore::settings(QSettings::UserScope) != ICore::settings(QSettings::SystemScope));
        QCOMPARE(ICore::settings(static_cast<QSettings::Scope>(7)), PluginManager::globalSettings());
        connect(ICore::getInstance(), &ICore::aboutToSaveSettings, this, [] {
            PluginManager::settings()->setValue("late", "user");
            PluginManager::globalSettings()->setValue("late", "machine");
        });
        QVERIFY(QMetaObject::invokeMethod(ICore::getInstance(), "saveSettings"));
        QVERIFY(contentOf(m_pProgram->filePath("user.ini")).contains("late=user"));
        QVERIFY(contentOf(m_pProgram->filePath("machine.ini")).contains("late=machine"));

        // The user is told when settings cannot be written.
        const QString strFile = m_pProgram->filePath("user.ini");
        QVERIFY(ILanguageManager::getInstance().saveLanguage("en_US"));
        QVERIFY(QFile::remove(strFile) && QDir().mkpath(strFile));
        expectWarning("Settings " + strFile + ": it is a folder, not a file");
        QVERIFY(!ILanguageManager::getInstance().saveLanguage("en_US"));
        QCOMPARE(told(), QString("The settings in %1 cannot be read or written.").arg(strFile));
    }

    void unsavedWorkIsCopiedWhenSomethingFailsAndBeforeTheEnd()
    {
        m_pPlugin->extensionsInitialized();
        QCOMPARE(told(), QString());
        QVERIFY(ICore::getMainWindow()->loadFile(m_pProgram->write("a.kelpa")));
        FakeDocument *pDocument = m_pFactory->documents.constFirst();
        pDocument->modify();
        m_pFactory->prepare = [](FakeDocument *) { throw std::runtime_error("no ink"); };
        QCloseEvent event;
        const auto fileNew = [] {
            return ActionManager::getAction("File.New")->getAction()->trigger(), true;
        };
        expectWarning("File.New failed: exception: no ink");
        QVERIFY(!PluginManager::deliver(&event, fileNew) && !event.isAccepted());
        QCOMPARE(told(), "\"New\" failed: exception: no ink");
        expectWarning("An event failed: exception of unknown type");
        PluginManager::deliver(&event, [] { return throw 7, true; });
        QCOMPARE(told(), "Something failed: exception of unknown type");

        BoxAnswers answers({QMessageBox::Cancel, QMessageBox::Cancel});
        const auto request = [this] {
            emit m_pProgram->manager.endRequested();
            QCoreApplication::exit();
        };
        QMetaObject::invokeMethod(this, request, Qt::QueuedConnection);
        QCoreApplication::exec();
        QCOMPARE(answers.boxes.size(), 1);
        QCOMPARE(pDocument->calls, QStringList({"saveBackup", "saveBackup", "saveBackup", "close"}));

        // While a dialog is open, the request to end the program waits.
        QDialog dialog(ICore::getMainWindow());
        dialog.open();
        emit m_pProgram->manager.endRequested();
        pDocument->calls.clear();
        dialog.close();
        QTRY_COMPARE(pDocument->calls, QStringList("close"));
    }

private:
    static QString told() { return ICore::getMainWindow()->getNotificationBar()->text(); }

    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (const auto &pDocument : m_pFactory->documents)
            result.append(pDocument->getFileName());
        return result;
    }

    QPluginLoader m_loader;
    IPlugin *m_pPlugin = nullptr;
};

QTEST_MAIN(tst_CorePlugin)
#include "tst_coreplugin.moc"
