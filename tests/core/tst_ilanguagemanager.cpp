// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <appearance/ilanguagemanager.h>

using ExtensionSystem::PluginManager;

// The manager lives as long as the process and lists everything again at each initialize(), so each case
// looks at the part of the list that its own call added.
class tst_ILanguageManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        m_folder = QDir(QCoreApplication::applicationDirPath() + "/translations");
        m_folder.removeRecursively();
    }

    void cleanup()
    {
        m_folder.removeRecursively();
        manager().setSettings(nullptr);
        m_pProgram.reset();
    }

    void cataloguesFollowEnglishInOrderOfTheirNames()
    {
        install(
            {"app_pt_BR.qm", "app_de_DE.qm", "App_fr_FR.txt", "app_en_US.qm", "other_es_ES.qm", "app_.qm"});
        const auto listed = initialize();
        QStringList ids;
        for (const LanguageInfo *pInfo : listed)
            ids.append(pInfo->id);
        QCOMPARE(ids, QStringList({"en_US", "C", "de_DE", "en_US", "pt_BR"}));
        const LanguageInfo *pPortuguese = listed.last();
        QCOMPARE(pPortuguese->language, "Portuguese");
        QCOMPARE(pPortuguese->country, "Brazil");
        QCOMPARE(pPortuguese->nativeLanguage, "Portugu\u00eas");
        QCOMPARE(pPortuguese->nativeCountry, "Brasil");
    }

    void savedChoiceIsTheCurrentLanguage_data()
    {
        const auto row = columns<QString, QString, QString>("stored", "id", "code");
        row("a language with a country", "fr_FR", "fr_FR", "fr");
        row("a language alone gets its country", "ja", "ja_JP", "ja");
        row("nonsense is the C locale", "no such thing", "C", "C");
        row("an empty value is English", "", "en_US", "en");
    }
    void savedChoiceIsTheCurrentLanguage()
    {
        QFETCH(QString, stored);
        QFETCH(QString, code);
        PluginManager::settings()->setValue("Kelpa/Language", stored);
        initialize();
        QTEST(manager().getCurrentLangId(), "id");
        QCOMPARE(manager().getCurrentLangCode(), code);
        QCOMPARE(manager().getCurrentLangNoCountry(), code);
        QCOMPARE(manager().getSaveLangId(), stored);
    }

    void onlyListedIdsAreSavedAndTheRunningLanguageStays()
    {
        install({"app_ko_KR.qm"});
        initialize();
        QVERIFY(!manager().saveLanguage("ko_kr"));
        QVERIFY(!manager().saveLanguage("ko"));
        QVERIFY(!manager().saveLanguage(QString()));
        QVERIFY(!PluginManager::settings()->contains("Kelpa/Language"));
        QVERIFY(manager().saveLanguage("ko_KR"));
        QCOMPARE(manager().getSaveLangId(), "ko_KR");
        QCOMPARE(manager().getCurrentLangId(), "en_US");
    }

private:
    static ILanguageManager &manager() { return ILanguageManager::getInstance(); }

    static QList<LanguageInfo *> initialize()
    {
        const auto nBefore = manager().getLanguages().size();
        return manager().initialize() ? manager().getLanguages().mid(nBefore) : QList<LanguageInfo *>();
    }

    void install(const QStringList &files) const
    {
        QVERIFY(m_folder.mkpath("."));
        for (const QString &strFile : files) {
            QFile file(m_folder.filePath(strFile));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    std::unique_ptr<TestProgram> m_pProgram;
    QDir m_folder;
};

QTEST_GUILESS_MAIN(tst_ILanguageManager)
#include "tst_ilanguagemanager.moc"
