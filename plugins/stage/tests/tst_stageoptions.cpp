// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include "stagefactory.h"
#include "stageoptionsdlg.h"

#include <appearance/ilanguagemanager.h>
#include <mainwindow.h>
#include <ui/ioptionpage.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QSpinBox>
#include <QTimer>

using ExtensionSystem::PluginManager;

namespace {

// A plug-in's page that counts what it is told.
class CountingPage : public IOptionPage
{
    Q_OBJECT

public:
    CountingPage() { setWindowTitle(QStringLiteral("Counting")); }
    void initValues() override
    {
        ++nFilled;
        IOptionPage::initValues();
    }
    void saveChanges() override
    {
        ++nSaved;
        IOptionPage::saveChanges();
    }
    int nFilled = 0;
    int nSaved = 0;
};

class CountingPageFactory : public IOptionPageFactory
{
    Q_OBJECT

public:
    CountingPageFactory() { PluginManager::addObject(this); }
    ~CountingPageFactory() override { PluginManager::removeObject(this); }
    IOptionPage *createPage() override { return pPage = new CountingPage; }

    QPointer<CountingPage> pPage;
};

} // namespace

class tst_StageOptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QDir().mkpath(QCoreApplication::applicationDirPath() + "/translations");
        QFile catalogue(QCoreApplication::applicationDirPath() + "/translations/app_fr_FR.qm");
        QVERIFY(catalogue.open(QIODevice::WriteOnly));
        ILanguageManager::getInstance().initialize();
    }

    void init()
    {
        m_pProgram = std::make_unique<TestProgram>();
        ILanguageManager::getInstance().setSettings(PluginManager::settings());
        PluginManager::addObject(&m_factory);
        m_pWindow = std::make_unique<MainWindow>(nullptr);
        m_pWindow->show();
        PluginManager::settings()->setValue("Kelpa/Language", "en_US");
        PluginManager::settings()->sync();
        m_pWindow->onPreferences();
        m_pDialog = m_pWindow->getOptionsDialog();
        QVERIFY(m_pDialog && m_pDialog->isVisible());
    }

    void cleanup()
    {
        m_pWindow.reset();
        PluginManager::removeObject(&m_factory);
        m_pProgram.reset();
    }

    void cancelChangesNothing_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("by the button") << false;
        QTest::newRow("by the Escape key") << true;
    }

    void cancelChangesNothing()
    {
        QFETCH(bool, escape);
        const QByteArray before = storedBytes();
        changeEverything();
        if (escape)
            QTest::keyClick(m_pDialog, Qt::Key_Escape);
        else
            button(QDialogButtonBox::Cancel)->click();
        QVERIFY(!m_pDialog->isVisible());
        PluginManager::settings()->sync();
        QCOMPARE(storedBytes(), before);
        QVERIFY(DocumentManager::isAutobackupEnabled());
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 300);
        m_pWindow->onPreferences();
        QCOMPARE(control<QSpinBox>("backupInterval")->value(), 300);
        QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
    }

    void applyWritesAndStays()
    {
        QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
        changeEverything();
        QVERIFY(button(QDialogButtonBox::Apply)->isEnabled());
        button(QDialogButtonBox::Apply)->click();
        QVERIFY(m_pDialog->isVisible() && !button(QDialogButtonBox::Apply)->isEnabled());
        expectEverythingChanged();
    }

    void okWritesAndGoes()
    {
        changeEverything();
        button(QDialogButtonBox::Ok)->click();
        QVERIFY(!m_pDialog->isVisible());
        expectEverythingChanged();
    }

    void openProjectsFollowTheBackupPreference()
    {
        FakeDocument document;
        DocumentManager::addDocument(&document);
        DocumentManager::startWaitingBackup(&document);
        const QTimer *pTimer = DocumentManager::getInstance()->findChild<QTimer *>();
        show(1);
        control<QCheckBox>("backupEnable")->setChecked(false);
        button(QDialogButtonBox::Apply)->click();
        QVERIFY(!pTimer->isActive());
        control<QCheckBox>("backupEnable")->setChecked(true);
        button(QDialogButtonBox::Apply)->click();
        QVERIFY(pTimer->isActive());
    }

    void breakpointsCanBeAddedRemovedAndRestored()
    {
        show(2);
        auto *pList = m_pDialog->findChild<QListWidget *>("horizontal");
        QCOMPARE(pList->count(), 5);
        pressIn("horizontal", "Remove");
        pList->setCurrentRow(0);
        pressIn("horizontal", "Remove");
        QVERIFY(pList->count() < 5);
        button(QDialogButtonBox::Apply)->click();
        QCOMPARE(DocumentManager::getHBreakpoints().size(), pList->count());
        for (QAbstractButton *pButton : m_pDialog->findChildren<QAbstractButton *>()) {
            if (pButton->accessibleName() == "Restore the default breakpoints")
                pButton->click();
        }
        QCOMPARE(pList->count(), 5);
        QVERIFY(m_pDialog->hasChanges());
    }

    void pagesOfOtherPlugInsAreFilledWhenShownAndSavedWhenChanged()
    {
        CountingPageFactory factory;
        StageOptionsDlg dialog(m_pWindow.get());
        dialog.showDialog();
        QCOMPARE(factory.pPage->nFilled, 0);
        dialog.setCurrentPage(3);
        QCOMPARE(dialog.currentPage(), 3);
        QCOMPARE(factory.pPage->nFilled, 1);
        dialog.onApply();
        QCOMPARE(factory.pPage->nSaved, 0);
        factory.pPage->setChanged(false);
        emit factory.pPage->dataChanged();
        dialog.onOK();
        QCOMPARE(factory.pPage->nSaved, 1);
        dialog.showDialog();
        QCOMPARE(factory.pPage->nFilled, 2);
    }

    void everyControlHasAName()
    {
        for (int i = 0; i < 3; ++i) {
            show(i);
            for (const QWidget *pWidget : m_pDialog->findChildren<QWidget *>()) {
                if (!pWidget->isVisible() || !(pWidget->focusPolicy() & Qt::TabFocus)
                    || pWidget->objectName().startsWith("qt_"))
                    continue;
                const auto *pButton = qobject_cast<const QAbstractButton *>(pWidget);
                const bool bNamed =
                    !pWidget->accessibleName().isEmpty() || (pButton && !pButton->text().isEmpty());
                QVERIFY2(bNamed, pWidget->metaObject()->className());
            }
        }
    }

private:
    void show(int nPage) { m_pDialog->setCurrentPage(nPage); }

    template <typename T>
    T *control(const char *pName) const
    {
        return m_pDialog->findChild<T *>(QLatin1String(pName));
    }

    QAbstractButton *button(QDialogButtonBox::StandardButton which) const
    {
        return m_pDialog->findChild<QDialogButtonBox *>()->button(which);
    }

    void pressIn(const char *pList, const QString &strText)
    {
        for (auto *pButton : control<QListWidget>(pList)->parentWidget()->findChildren<QPushButton *>()) {
            if (pButton->text() == strText)
                pButton->click();
        }
    }

    void changeEverything()
    {
        show(0);
        control<QComboBox>("language")->setCurrentIndex(1);
        show(1);
        control<QSpinBox>("backupInterval")->setValue(60);
        control<QCheckBox>("backupEnable")->setChecked(false);
        show(2);
        control<QCheckBox>("pasteSvg")->setChecked(false);
        control<QListWidget>("vertical")->item(0)->setCheckState(Qt::Checked);
        QVERIFY(m_pDialog->hasChanges());
    }

    void expectEverythingChanged()
    {
        const QSettings stored(PluginManager::settings()->fileName(), QSettings::IniFormat);
        QCOMPARE(stored.value("Kelpa/Language").toString(), "fr_FR");
        QCOMPARE(stored.value("Kelpa/AutoBackup.Interval").toInt(), 60);
        QCOMPARE(stored.value("Kelpa/AutoBackup.Enable").toBool(), false);
        QCOMPARE(stored.value("Kelpa/Edit.PasteSvgAsFreeform").toBool(), false);
        QCOMPARE(stored.value("Breakpoints/Vertical/1/Enable").toBool(), true);
        QCOMPARE(stored.value("Breakpoints/Vertical/1/Value").toInt(), 345);
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 60);
        QVERIFY(!DocumentManager::isAutobackupEnabled());
    }

    QByteArray storedBytes() const
    {
        QFile file(PluginManager::settings()->fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    StageFactory m_factory {nullptr};
    std::unique_ptr<TestProgram> m_pProgram;
    std::unique_ptr<MainWindow> m_pWindow;
    IOptionsDlg *m_pDialog = nullptr;
};

QTEST_MAIN(tst_StageOptions)
#include "tst_stageoptions.moc"
