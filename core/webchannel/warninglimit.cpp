// SPDX-License-Identifier: MIT
#include "webchannel/warninglimit.h"

#include "webchannel/clientpolicy.h"

WarningLimit::WarningLimit(const char *pLeftOut)
    : m_pLeftOut(pLeftOut)
{
}

WarningLimit::~WarningLimit()
{
    reportLeftOut();
}

bool WarningLimit::mayWarn()
{
    if (!m_period.isValid() || m_period.hasExpired(1000)) {
        reportLeftOut();
        m_period.start();
        m_nWarnings = 0;
    }
    return ++m_nWarnings <= ClientPolicy::WarningsPerSecond;
}

void WarningLimit::reportLeftOut()
{
    if (m_nWarnings > ClientPolicy::WarningsPerSecond)
        qCWarning(lcWebChannel, m_pLeftOut, m_nWarnings - ClientPolicy::WarningsPerSecond);
}
