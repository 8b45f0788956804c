// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QTest>

/// Expects one warning with this text in it; any other fails the test.
inline void expectWarning(const QString &strText)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(strText)));
}

/// Adds the columns of a test's data and returns what adds a row: its name, then a value for each column.
template <typename... Column, typename... Name>
auto columns(Name... names)
{
    (QTest::addColumn<Column>(names), ...);
    return [](const char *pRow, const Column &...values) { (QTest::newRow(pRow) << ... << values); };
}
