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
};

QTEST_MAIN(tst_ProxyAction)
#include "tst_proxyaction.moc"
