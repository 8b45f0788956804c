// SPDX-License-Identifier: MIT
#include <actionmanager/proxyaction.h>

#include <QtTest>

class tst_ProxyAction : public QObject
{
    Q_OBJECT

private slots:
    void initializedItHasTheLookOnly()
    {
        ProxyAction proxy(nullptr);
        QAction action("Copy");
        action.setCheckable(true);
        action.setChecked(true);
        proxy.initialize(&action);
        QCOMPARE(proxy.text(), "Copy");
        QVERIFY(proxy.isCheckable() && !proxy.isEnabled() && !proxy.isChecked());
    }

    void togglesWhatItPointsAtAndNothingElse()
    {
        ProxyAction proxy(nullptr);
        QAction action, next;
        next.setCheckable(true);
        proxy.setAction(&action);
        proxy.setCheckable(true);
        proxy.toggle();
        action.setCheckable(true);
        QVERIFY(action.isChecked() && proxy.isChecked());
        action.setChecked(false);
        // the focus goes elsewhere while the proxy tells that it is checked: that is not for the next action
        connect(&proxy, &QAction::changed, &next, [&] { proxy.setAction(&next); });
        action.setChecked(true);
        QVERIFY(action.isChecked() && !next.isChecked() && !proxy.isChecked());
    }

    void theToolTipShowsTheShortcut()
    {
        ProxyAction proxy(nullptr);
        QAction action("Copy");
        action.setToolTip("Copies");
        proxy.initialize(&action);
        proxy.setShortcutVisibleInToolTip(true);
        QCOMPARE(proxy.toolTip(), "Copies");
        proxy.setShortcut(QKeySequence("Ctrl+C"));
        QCOMPARE(proxy.toolTip(), "Copies\tCtrl+C");
        proxy.setToolTip("by hand");
        QCOMPARE(proxy.toolTip(), "Copies\tCtrl+C");
        proxy.setShortcutVisibleInToolTip(false);
        QCOMPARE(proxy.toolTip(), "Copies");
    }

    void survivesItsOwnEndAndThatOfTheSource()
    {
        const QPointer<ProxyAction> pProxy = new ProxyAction(nullptr);
        auto pAction = std::make_unique<QAction>();
        pAction->setCheckable(true);
        pProxy->setAction(pAction.get());
        connect(pProxy, &QAction::changed, this, [&] { pAction.reset(); });
        pAction->setChecked(true);
        QVERIFY(!pAction);
        pProxy->setAction(nullptr);
        QVERIFY(!pProxy->isEnabled());

        QAction next;
        connect(pProxy, &QAction::changed, this, [&] { delete pProxy; });
        pProxy->setAction(&next);
        QVERIFY(!pProxy);
    }
};

QTEST_MAIN(tst_ProxyAction)
#include "tst_proxyaction.moc"
