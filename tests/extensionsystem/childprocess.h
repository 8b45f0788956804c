// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest>

/// A program that a test starts, with what it printed so far, line by line.
class ChildProcess : public QProcess
{
public:
    explicit ChildProcess(const QString &strProgram, const QStringList &arguments,
        const QList<QPair<QString, QString>> &environment = {}, const QString &strFolder = QString())
    {
        QProcessEnvironment full = QProcessEnvironment::systemEnvironment();
        for (const auto &[strName, strValue] : environment)
            full.insert(strName, strValue);
        setProcessEnvironment(full);
        if (!strFolder.isEmpty())
            setWorkingDirectory(strFolder);
        connect(this, &QProcess::readyReadStandardOutput, this, [this] { m_out += readAllStandardOutput(); });
        connect(this, &QProcess::readyReadStandardError, this, [this] { m_err += readAllStandardError(); });
        start(strProgram, arguments);
    }

    ~ChildProcess() override
    {
        if (state() != QProcess::NotRunning) {
            kill();
            waitForFinished();
        }
    }

    /// The exit code; -1 when it crashed or does not end.
    int finish()
    {
        if (state() != QProcess::NotRunning && !waitForFinished(30000))
            return -1;
        return exitStatus() == QProcess::NormalExit ? exitCode() : -1;
    }

    bool waitForLine(const QString &strLine)
    {
        return QTest::qWaitFor([&] { return lines().contains(strLine); }, 20000);
    }

    QStringList lines() const { return QString::fromUtf8(m_out).split('\n', Qt::SkipEmptyParts); }
    QString errors() const { return QString::fromUtf8(m_err); }

private:
    QByteArray m_out;
    QByteArray m_err;
};

inline QString testPath(const char *pName)
{
    return QStringLiteral(TEST_ROOT "/") + QLatin1String(pName);
}
