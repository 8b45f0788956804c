// SPDX-License-Identifier: MIT
// The home page where there is no browser engine, and its place in the preferences.
#include "welcometest.h"

#include <welcomeoptionpage.h>
#include <welcomeplugin.h>

class tst_WelcomeWidget : public WelcomeTest
{
    Q_OBJECT

private slots:
    void initTestCase() { expectNoEngine(); }

    void nothingIsLoadedForAPageThatIsNotShown()
    {
        m_pWindow->setVisibleWelcomeWidget(true);
        QVERIFY(m_pWindow->loadFile(m_pProgram->write("a.kelpa")));
        QVERIFY(m_pWidget->isHidden());
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
        QCoreApplication::processEvents();
        QVERIFY(!m_pWidget->findChild<WebView *>() && !m_pWidget->findChild<RecentList *>());
    }

    void projectsAreListedWithoutAnEngine()
    {
        const QString strLast = m_pProgram->write("last & best.kelpa");
        addRecent("/gone/a.kelpa");
        addRecent(strLast);
        QListWidget *pList = showList();
        QCOMPARE(m_pWidget->geometry(), m_pWindow->getMdiArea()->rect());
        QCOMPARE(textsOf(pList), QStringList({QDir::toNativeSeparators(strLast), "/gone/a.kelpa"}));
        QCOMPARE(pList->accessibleName(), "Recent Projects");
        QVERIFY(m_pWidget->findChild<QLabel *>("note")->text().startsWith("The home page cannot be shown"));
        QTRY_VERIFY(pList->hasFocus());

        m_pWindow->getMdiArea()->removeFile("/gone/a.kelpa");
        QCOMPARE(textsOf(pList), QStringList(QDir::toNativeSeparators(strLast)));
        QTest::keyClick(pList, Qt::Key_Return);
        QTRY_COMPARE(m_pFactory->documents.size(), 1);
        QCOMPARE(m_pFactory->documents.first()->getFileName(), strLast);
        QVERIFY(m_pWidget->isHidden());
    }

    void listedProjectThatIsGoneIsTold()
    {
        addRecent("/gone/a.kelpa");
        QListWidget *pList = showList();
        BoxAnswers boxes({QMessageBox::Ok});
        QTest::keyClick(pList, Qt::Key_Return);
        QTRY_COMPARE(boxes.texts(), QStringList("Could not find the requested file.\n/gone/a.kelpa"));
    }

    void pageComesAfterADialogThatIsOnlyHidden()
    {
        WelcomePlugin plugin;
        QString strError;
        QVERIFY(plugin.initialize({}, &strError));
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        emit m_pWindow->extsInitialized();
        bool bTurned = false;
        QTimer::singleShot(0, this, [&] { bTurned = true; });
        QTRY_VERIFY(bTurned);
        const QWidget *pPage = m_pWindow->getMdiArea()->getWelcomeWidget();
        QVERIFY(pPage->isHidden());
        dialog.hide();
        QTRY_VERIFY(!pPage->isHidden());
    }

    void preferencesPage()
    {
        QVERIFY(WelcomeOptionPage::isPageWanted());
        const WelcomeOptionPageFactory factory;
        QVERIFY(ExtensionSystem::PluginManager::objects<IOptionPageFactory>().contains(&factory));
        std::unique_ptr<IOptionPage> pPage(const_cast<WelcomeOptionPageFactory &>(factory).createPage());
        auto *pShow = pPage->findChild<QCheckBox *>("showPage");
        pPage->show();
        QVERIFY(pShow->isChecked() && !pPage->isChanged());
        pShow->click();
        QVERIFY(pPage->isChanged());
        pPage->discardChanges();
        QVERIFY(pShow->isChecked() && WelcomeOptionPage::isPageWanted());
        pShow->click();
        pPage->saveChanges();
        QVERIFY(!WelcomeOptionPage::isPageWanted() && !pPage->isChanged());
    }

private:
    /// The window with the list, after both attempts at the page came to nothing.
    QListWidget *showList()
    {
        QTest::ignoreMessage(QtWarningMsg, "The home page failed and is loaded again.");
        QTest::ignoreMessage(
            QtWarningMsg, "The home page failed again; the recent projects are listed without it.");
        m_pWindow->show();
        m_pWindow->activateWindow();
        m_pWindow->setVisibleWelcomeWidget(true);
        const bool bListed = QTest::qWaitFor([&] { return m_pWidget->findChild<RecentList *>(); });
        return bListed ? m_pWidget->findChild<QListWidget *>() : nullptr;
    }

    static QStringList textsOf(const QListWidget *pList)
    {
        QStringList texts;
        for (int i = 0; i < pList->count(); ++i)
            texts.append(pList->item(i)->text());
        return texts;
    }
};

QTEST_MAIN(tst_WelcomeWidget)
#include "tst_welcomewidget.moc"
