// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <app/catalogues.h>

#include <QTranslator>

using ExtensionSystem::PluginManager;

// The catalogues of the program, installed as it does at its start.
class tst_Catalogues : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pProgram = std::make_unique<TestProgram>(); }

    void cleanup()
    {
        const auto translators = qApp->findChildren<QTranslator *>();
        qDeleteAll(translators);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        m_pProgram.reset();
    }

    void chosenLanguageIsShown_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("none chosen") << ""
                                     << "&File"
                                     << "Cancel";
        QTest::newRow("English") << "en_US"
                                 << "&File"
                                 << "Cancel";
        QTest::newRow("a language without a catalogue of ours") << "it_IT"
                                                                << "&File"
                                                                << "Annulla";
        QTest::newRow("a language that there is not") << "xx_YY"
                                                      << "&File"
                                                      << "Cancel";
        QTest::newRow("German") << "de_DE"
                                << "&Datei"
                                << "Abbrechen";
        QTest::newRow("German by its language alone") << "de"
                                                      << "&Datei"
                                                      << "Abbrechen";
        QTest::newRow("Spanish") << "es_ES"
                                 << "&Archivo"
                                 << "Cancelar";
        QTest::newRow("French") << "fr_FR"
                                << "&Fichier"
                                << "Annuler";
        QTest::newRow("Japanese") << "ja_JP" << QString::fromUtf8("ファイル(&F)")
                                  << QString::fromUtf8("キャンセル");
        QTest::newRow("Portuguese of Brazil") << "pt_BR"
                                              << "&Arquivo"
                                              << "Cancelar";
        QTest::newRow("Vietnamese") << "vi_VN" << QString::fromUtf8("&Tệp") << QString::fromUtf8("Hủy");
        QTest::newRow("Chinese") << "zh_CN" << QString::fromUtf8("文件(&F)") << QString::fromUtf8("取消");
    }

    void chosenLanguageIsShown()
    {
        QFETCH(QString, id);
        if (!id.isEmpty())
            PluginManager::settings()->setValue("Kelpa/Language", id);
        installCatalogues();
        QTEST(QCoreApplication::translate("MainWindow", "&File"), "file");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancel");
        QCOMPARE(QCoreApplication::translate("MainWindow", "File.New"), "File.New");
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    void programIsLaidOutAsItsLanguageIsRead()
    {
        PluginManager::settings()->setValue("Kelpa/Language", "ar_EG");
        installCatalogues();
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    }

private:
    std::unique_ptr<TestProgram> m_pProgram;
};

QTEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
