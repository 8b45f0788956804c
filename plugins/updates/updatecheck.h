// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QTimer;

/// Looks for a newer version when the user asks, and once a day by itself if the user agreed. The first way
/// always gives an answer, the second only tells of a new version. The plug-in owns it; GUI thread only.
class UpdateCheck : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateCheck)

public:
    explicit UpdateCheck(QObject *pParent);
    ~UpdateCheck() override;

    /// Starts the automatic checks, or asks the user once whether they are wanted. Without a feed neither.
    void start();

    /// Looks now and answers within 35 seconds. A running check becomes one that answers the user. While an
    /// update is being downloaded or waits to be installed, that window is shown instead.
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
    QString m_strUrl; ///< feed of the last check
    bool m_bDeadlineMissed = false;
    QTimer *m_pDeadline;
    QTimer *m_pDue;
};
