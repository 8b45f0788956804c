// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QElapsedTimer>

/// Limits the log lines that one source causes to ClientPolicy::WarningsPerSecond. The number of lines left
/// out is logged with the first line of a later second, or by the destructor. GUI thread only.
class CORE_EXPORT WarningLimit
{
    Q_DISABLE_COPY_MOVE(WarningLimit)

public:
    /// `pLeftOut` is the format of the line with that number, with one "%d". It must outlive this object.
    explicit WarningLimit(const char *pLeftOut);
    ~WarningLimit();

    /// Whether the next line may be logged. Call it once for each line, since each call is counted.
    [[nodiscard]] bool mayWarn();

private:
    void reportLeftOut();

    const char *m_pLeftOut;
    QElapsedTimer m_period;
    int m_nWarnings = 0;
};
