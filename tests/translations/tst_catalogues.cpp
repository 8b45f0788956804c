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
        const auto row = columns<QString, QString, QString>("id", "file", "cancel");
        row("none chosen", "", "&File", "Cancel");
        row("English", "en_US", "&File", "Cancel");
        row("a language without a catalogue of ours", "it_IT", "&File", "Annulla");
        row("a language that there is not", "xx_YY", "&File", "Cancel");
        row("German", "de_DE", "&Datei", "Abbrechen");
        row("German by its language alone", "de", "&Datei", "Abbrechen");
        row("Spanish", "es_ES", "&Archivo", "Cancelar");
        row("French", "fr_FR", "&Fichier", "Annuler");
        row("Japanese", "ja_JP", "ファイル(&F)", "キャンセル");
        row("Portuguese of Brazil", "pt_BR", "&Arquivo", "Cancelar");
        row("Vietnamese", "vi_VN", "&Tệp", "Hủy");
        row("Chinese", "zh_CN", "文件(&F)", "取消");
        row("Arabic, which is read from the right", "ar_EG", "&File", "ألغِ");
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
        QCOMPARE(QGuiApplication::layoutDirection(), id == "ar_EG" ? Qt::RightToLeft : Qt::LeftToRight);
    }

private:
    std::unique_ptr<TestProgram> m_pProgram;
};

QTEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
