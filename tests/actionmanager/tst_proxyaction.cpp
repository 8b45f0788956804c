// SPDX-License-Identifier: MIT
#include <actionmanager/proxyaction.h>

#include <support/rows.h>

#include <QtTest>

#include <memory>

class tst_ProxyAction : public QObject
{
    Q_OBJECT

private slots:
    void mirrorsStateAlwaysAndLooksOnDemand()
    {
        ProxyAction proxy(nullptr);
        QVERIFY(!proxy.isEnabled());
        QAction action("Copy");
        action.setCheckable(true);
        action.setChecked(true);
        proxy.initialize(&action);
        QVERIFY(proxy.isCheckable());
        QVERIFY(!proxy.isEnabled());
        QVERIFY(!proxy.isChecked());
        proxy.setAction(&action);
        QVERIFY(proxy.isEnabled() && proxy.isChecked());

        action.setText("Copy All");
        action.setIconText("All");
        action.setVisible(false);
        QCOMPARE(proxy.text(), "Copy");
        QVERIFY(!proxy.isVisible());
        proxy.setAttribute(ProxyAction::MirrorText);
        QCOMPARE(proxy.text(), "Copy All");
        QCOMPARE(proxy.iconText(), "Copy");
        proxy.setAttribute(ProxyAction::MirrorIcon);
        QCOMPARE(proxy.iconText(), "All");
        proxy.removeAttribute(ProxyAction::MirrorText);
        action.setText("Nothing");
        proxy.setAction(nullptr);
        QCOMPARE(proxy.text(), "Copy All");
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
        auto *pProxy = new ProxyAction(nullptr);
        const QPointer<ProxyAction> pWatched(pProxy);
        auto pAction = std::make_unique<QAction>();
        pAction->setCheckable(true);
        pProxy->setAction(pAction.get());
        connect(pProxy, &QAction::changed, this, [&] { pAction.reset(); });
        pAction->setChecked(true);
        QVERIFY(!pAction);
        pProxy->setAction(nullptr);
        QVERIFY(!pProxy->isEnabled());

        QAction next;
        connect(pProxy, &QAction::changed, this, [&] { delete pWatched; });
        pProxy->setAction(&next);
        QVERIFY(!pWatched);
    }
};

QTEST_MAIN(tst_ProxyAction)
#include "tst_proxyaction.moc"
