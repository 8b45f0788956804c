// SPDX-License-Identifier: MIT
#include "stagefactory.h"
#include "stageoptionsdlg.h"

#include <appearance/ilanguagemanager.h>
#include <support/windowtest.h>
#include <ui/ioptionpage.h>

using ExtensionSystem::PluginManager;

namespace {

// A plug-in's page that counts what it is told.
class CountingPage : public IOptionPage
{
    Q_OBJECT

public:
    CountingPage() { setWindowTitle("Counting"); }
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

class tst_StageOptions : public WindowTest
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
        WindowTest::init();
        ILanguageManager::getInstance().setSettings(PluginManager::settings());
        PluginManager::addObject(&m_factory);
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
        WindowTest::cleanup();
    }

    void cancelChangesNothing_data()
    {
        const auto row = columns<std::function<void()>>("cancel");
        row("by the button", [this] { button(QDialogButtonBox::Cancel)->click(); });
        row("by the Escape key", [this] { QTest::keyClick(m_pDialog, Qt::Key_Escape); });
        row("by the window's own button", [this] { m_pDialog->close(); });
    }
    void cancelChangesNothing()
    {
        QFETCH(std::function<void()>, cancel);
        const QByteArray before = contentOf(PluginManager::settings()->fileName());
        changeEverything();
        cancel();
        QVERIFY(!m_pDialog->isVisible());
        PluginManager::settings()->sync();
        QCOMPARE(contentOf(PluginManager::settings()->fileName()), before);
        QVERIFY(DocumentManager::isAutobackupEnabled());
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 300);
        m_pWindow->onPreferences();
        for (const int nPage : {0, 1, 2})
            show(nPage);
        QCOMPARE(control<QComboBox>("language")->currentIndex(), 0);
        QCOMPARE(control<QSpinBox>("backupInterval")->value(), 300);
        QVERIFY(control<QCheckBox>("pasteSvg")->isChecked());
        QCOMPARE(control<QListWidget>("vertical")->item(0)->checkState(), Qt::Unchecked);
        QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
    }

    void applyWritesAndStaysWhileOkGoes_data()
    {
        const auto row = columns<QDialogButtonBox::StandardButton, bool>("pressed", "stays");
        row("apply", QDialogButtonBox::Apply, true);
        row("ok", QDialogButtonBox::Ok, false);
    }
    void applyWritesAndStaysWhileOkGoes()
    {
        QFETCH(QDialogButtonBox::StandardButton, pressed);
        QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
        changeEverything();
        button(pressed)->click();
        QTEST(m_pDialog->isVisible(), "stays");
        QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
        // A copy, since stores of one file share what they hold.
        PluginManager::settings()->sync();
        const QString strCopy = m_pProgram->filePath("copy.ini");
        QVERIFY(QFile::copy(PluginManager::settings()->fileName(), strCopy));
        const QSettings stored(strCopy, QSettings::IniFormat);
        const std::pair<const char *, QVariant> values[] = {{"Kelpa/Language", "fr_FR"},
            {"Kelpa/AutoBackup.Interval", "60"}, {"Kelpa/AutoBackup.Enable", "false"},
            {"Kelpa/Edit.PasteSvgAsFreeform", "false"}, {"Breakpoints/Vertical/1/Enable", "true"},
            {"Breakpoints/Vertical/1/Value", "345"}};
        for (const auto &[pKey, value] : values)
            QCOMPARE(stored.value(pKey), value);
        QCOMPARE(DocumentManager::getAutobackupTimeout(), 60);
        QVERIFY(!DocumentManager::isAutobackupEnabled());
    }

    void whatIsBeingTypedCountsWhicheverKeyEndsIt_data()
    {
        const auto row = columns<bool, int>("ok", "value");
        row("that of the default button", true, 1290);
        row("none, the dialog is closed", false, 1280);
    }
    void whatIsBeingTypedCountsWhicheverKeyEndsIt()
    {
        m_pDialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog));
        show(2);
        auto *pList = control<QListWidget>("horizontal");
        pList->setCurrentRow(4);
        pList->editItem(pList->currentItem());
        auto *pEditor = pList->findChild<QSpinBox *>();
        QVERIFY(pEditor);
        QTest::keyClicks(pEditor, "1290");
        QFETCH(bool, ok);
        if (ok)
            button(QDialogButtonBox::Ok)->click(); // as its key does, which leaves the focus where it is
        else
            m_pDialog->close();
        QVERIFY(!m_pDialog->isVisible());
        QTest::qWait(0);
        QVERIFY(!m_pDialog->hasChanges());
        m_pDialog->onOK();
        m_pWindow->onPreferences();
        show(2);
        QTEST(pList->item(4)->data(Qt::EditRole).toInt(), "value");
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

    void breakpointsCanBeAddedRestoredAndAllRemoved()
    {
        show(2);
        auto *pList = control<QListWidget>("horizontal");
        pList->setCurrentRow(1);
        pressIn("horizontal", "Remove");
        QVERIFY(m_pDialog->hasChanges());
        button(QDialogButtonBox::Apply)->click();
        pressIn("horizontal", "Add");
        QVERIFY(m_pDialog->hasChanges());
        QTest::keyClicks(pList->findChild<QSpinBox *>(), "900");
        QTest::keyClick(pList->findChild<QSpinBox *>(), Qt::Key_Return);
        QTRY_COMPARE(pList->item(4)->data(Qt::EditRole).toInt(), 900);
        button(QDialogButtonBox::Apply)->click();
        QCOMPARE(DocumentManager::getHBreakpoints(),
            (DocumentManager::Breakpoints {
                {375, true}, {768, true}, {1024, true}, {1280, true}, {900, true}}));
        for (QAbstractButton *pButton : m_pDialog->findChildren<QAbstractButton *>()) {
            if (pButton->accessibleName() == "Restore the default breakpoints")
                pButton->click();
        }
        QVERIFY(m_pDialog->hasChanges());
        for (const char *pName : {"horizontal", "vertical"}) {
            QCOMPARE(control<QListWidget>(pName)->count(), 5);
            for (int i = 0; i < 5; ++i) {
                control<QListWidget>(pName)->setCurrentRow(0);
                pressIn(pName, "Remove");
            }
        }
        button(QDialogButtonBox::Ok)->click();
        m_pWindow->onPreferences();
        QCOMPARE(pList->count() + control<QListWidget>("vertical")->count(), 0);
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

    void tabGoesThroughThePageToTheButtons()
    {
        const QList<QWidget *> order {m_pDialog->findChild<QListWidget *>(), control<QComboBox>("language"),
            button(QDialogButtonBox::Ok), button(QDialogButtonBox::Cancel)};
        m_pDialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog));
        order.first()->setFocus();
        for (QWidget *pWidget : order) {
            QCOMPARE(m_pDialog->focusWidget(), pWidget);
            QTest::keyClick(pWidget, Qt::Key_Tab);
        }
    }

private:
    void show(int nPage)
    {
        m_pDialog->setCurrentPage(nPage);
        QCOMPARE(unnamedControls(m_pDialog), QStringList());
    }

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
                return pButton->click();
        }
        QFAIL("there is no such button");
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

    StageFactory m_factory {nullptr};
    IOptionsDlg *m_pDialog = nullptr;
};

QTEST_MAIN(tst_StageOptions)
#include "tst_stageoptions.moc"
