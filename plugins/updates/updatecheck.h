// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QTimer;

/// Looks for a newer version: when the user asks, which always ends with an answer, and once a day by itself
/// if the user agreed, which only speaks up when there is one. The plug-in owns it; GUI thread only.
class UpdateCheck : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateCheck)

public:
    explicit UpdateCheck(QObject *pParent);
    ~UpdateCheck() override;

    /// Begins with the automatic checks, or asks once whether they are wanted.
    void start();

    /// Looks now, and answers within 35 seconds. A check under way becomes this one. While an update is
    /// downloaded, or waits to be installed, it shows the window of that instead.
    void checkNow();

private:
    enum class State { Idle, Background, Manual };

    void begin(State state);
    void askForAgreement();
    void checkIfDue();
    void onEnded(const QString &strUrl);
    void answer();
    void announce();
    void onDeadline();
    void onPutOff(const QString &strUrl, const QString &strVersion, bool bPermanently);
    void notify(const QString &strText, const QString &strButton, void (UpdateCheck::*handler)());
    void agree();

    State m_state = State::Idle;
    QString m_strUrl; ///< of the last check
    bool m_bDeadlineMissed = false;
    QTimer *m_pDeadline;
    QTimer *m_pDue;
};
