// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QElapsedTimer>

/// Keeps what one source makes us log to a few lines a second, and tells how many were left out: with the
/// first line of a later second, and at its end. GUI thread only.
class CORE_EXPORT WarningLimit
{
    Q_DISABLE_COPY_MOVE(WarningLimit)

public:
    /// `pLeftOut` is the line that tells, with one "%d"; it must live as long as the program.
    explicit WarningLimit(const char *pLeftOut);
    ~WarningLimit();

    /// Whether the next line may be written; it counts as asked for either way.
    [[nodiscard]] bool mayWarn();

private:
    void reportLeftOut();

    const char *m_pLeftOut;
    QElapsedTimer m_period;
    int m_nWarnings = 0;
};
