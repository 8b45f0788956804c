// SPDX-License-Identifier: MIT
#include "commandtest.h"

#include <actionmanager/shortcuts.h>

class tst_Shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_program.settings().clear();
        m_program.settings().setValue("Shortcuts/Edit.Copy", "Ctrl+Y");
        m_copy = add("Edit.Copy", "&Copy", "Ctrl+C");
        m_find = add("Edit.Find", "&Find...", "Ctrl+F");
        m_none = add("View.Zoom", "Zoom", nullptr);
    }
    void cleanup()
    {
        for (auto *pCommand : {&m_copy, &m_find, &m_none})
            pCommand->reset();
    }

    void defaultsAndTheUsersAreToldApart()
    {
        ShortcutInfo copy = infoOf("Edit.Copy");
        QVERIFY(copy.isUsers() && copy.bStored && !copy.returnsAtNextStart());
        QCOMPARE(copy.fullText, "Edit > Copy");
        QVERIFY(!infoOf("Edit.Find").isUsers() && !infoOf("Edit.Find").bStored);
        m_copy->pCommand->setKeySequence({});
        QVERIFY(infoOf("Edit.Copy").isUsers() && infoOf("Edit.Copy").returnsAtNextStart());
        ActionManager::saveSettings();
        m_copy.reset();
        m_copy = add("Edit.Copy", "&Copy", "Ctrl+C");
        QCOMPARE(infoOf("Edit.Copy").current, keys("Ctrl+C"));
        QVERIFY(!infoOf("View.Zoom").returnsAtNextStart());
    }

    void searchingFindsAllWords_data()
    {
        const auto row = columns<QString, QStringList>("text", "found");
        row("a word of the id", "zoom", QStringList {"View.Zoom"});
        row("a word of the menu and one of the text", " EDIT  fin ", QStringList {"Edit.Find"});
        row("the shortcut in force", "ctrl+y", QStringList {"Edit.Copy"});
        row("the description", "described", QStringList {"Edit.Copy"});
        row("a mnemonic is not in the text", "&", QStringList {});
    }
    void searchingFindsAllWords()
    {
        QFETCH(QString, text);
        m_copy->pCommand->setDescription("As described");
        QTEST(ids(Shortcuts::search(text)), "found");
    }

    void conflictsIncludeBeginnings()
    {
        QVERIFY(Shortcuts::conflicts().isEmpty());
        QCOMPARE(ids(Shortcuts::conflictsOf("View.Zoom", keys("Ctrl+F"))), QStringList {"Edit.Find"});
        QCOMPARE(ids(Shortcuts::conflictsOf("View.Zoom", keys("Ctrl+F, Ctrl+Z"))), QStringList {"Edit.Find"});
        QVERIFY(Shortcuts::conflictsOf("Edit.Find", keys("Ctrl+F")).isEmpty());
        QVERIFY(Shortcuts::conflictsOf("Edit.Find", {}).isEmpty());
        m_find->pCommand->setKeySequence(keys("Ctrl+Y, F"));
        QCOMPARE(ids(Shortcuts::conflicts()), (QStringList {"Edit.Copy", "Edit.Find"}));
    }

    void exportAndImportGiveBackEverything()
    {
        m_program.settings().setValue("Shortcuts/Absent.Command", "Ctrl+J");
        m_program.settings().setValue("Shortcuts/Absent.Garbage", "Nonsense");
        const QString strFile = m_program.filePath("keys.json");
        QString strError;
        m_find->pCommand->setKeySequence({});
        QVERIFY2(Shortcuts::exportTo(strFile, strError), qPrintable(strError));
        QVERIFY(!Shortcuts::exportTo("/nowhere/keys.json", strError));
        QVERIFY(strError.startsWith("/nowhere/keys.json: "));
        m_program.settings().clear();
        QVERIFY(Shortcuts::reset("Edit.Copy"));
        QVERIFY(!Shortcuts::reset("Edit.Unknown"));
        QCOMPARE(infoOf("Edit.Copy").current, keys("Ctrl+C"));
        QCOMPARE(infoOf("Edit.Find").current, QKeySequence());
        Shortcuts::resetAll();
        QCOMPARE(infoOf("Edit.Find").current, keys("Ctrl+F"));
        QVERIFY2(Shortcuts::importFrom(strFile, strError), qPrintable(strError));
        QCOMPARE(infoOf("Edit.Copy").current, keys("Ctrl+Y"));
        QVERIFY(infoOf("Edit.Copy").bStored);
        QCOMPARE(infoOf("Edit.Find").current, QKeySequence());
        QCOMPARE(m_program.settings().value("Shortcuts/Absent.Command").toString(), "Ctrl+J");
        QVERIFY(!m_program.settings().contains("Shortcuts/Absent.Garbage"));
    }

    void aBadFileChangesNothing_data()
    {
        const auto row = columns<QByteArray>("content");
        const QByteArray head = R"({"format": "kelpa-shortcuts", "Shortcuts": )";
        row("no JSON", "shortcuts!");
        row("JSON of another kind", R"({"Shortcuts": {"Edit.Copy": "F2"}})");
        row("a list in place of the shortcuts", head + R"([]})");
        row("a number for a shortcut", head + R"({"Edit.Copy": "F2", "Z": 3}})");
        row("no key sequence", head + R"({"Edit.Copy": "F2", "Z": "Nonsense"}})");
        row("a command without a name", head + R"({"": "F2", "Edit.Copy": "F2"}})");
        row("cut in the middle", head + R"({"Edit.Copy": "F2",)");
    }
    void aBadFileChangesNothing()
    {
        QFETCH(QByteArray, content);
        const QString strFile = m_program.write("bad.json", content);
        QString strError;
        QVERIFY(!Shortcuts::importFrom(strFile, strError));
        QVERIFY2(strError.startsWith(strFile + ": "), qPrintable(strError));
        QVERIFY(strError.size() > strFile.size() + 2);
        QCOMPARE(infoOf("Edit.Copy").current, keys("Ctrl+Y"));
    }

private:
    std::unique_ptr<Registered> add(const QString &strId, const QString &strText, const char *pDefault)
    {
        auto added = std::make_unique<Registered>(strId, m_program.window(), strText);
        if (pDefault)
            added->pCommand->setDefaultKeySequence(keys(pDefault));
        return added;
    }
    static QStringList ids(const QList<ShortcutInfo> &infos)
    {
        QStringList found;
        for (const ShortcutInfo &info : infos)
            found.append(info.id);
        return found;
    }
    static ShortcutInfo infoOf(const QString &strId)
    {
        for (const ShortcutInfo &info : Shortcuts::list()) {
            if (info.id == strId)
                return info;
        }
        return {};
    }

    Program m_program;
    std::unique_ptr<Registered> m_copy, m_find, m_none;
};

QTEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"
