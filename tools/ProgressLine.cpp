#include "tools/ProgressLine.h"

#include <QTextStream>

#include <algorithm>

namespace {

constexpr qint64 QuietMilliseconds = 1000;
constexpr qint64 StepMilliseconds = 100;

} // namespace

ProgressLine::ProgressLine(CommandEnvironment& environment, const QString& strWhat)
    : m_environment(environment)
    , m_strWhat(strWhat)
{
    if (environment.bTerminal && environment.milliseconds)
        m_iStart = environment.milliseconds();
    m_iNext = m_iStart + QuietMilliseconds;
}

ProgressLine::~ProgressLine()
{
    if (m_iWidth == 0)
        return;
    Write(QString());
    m_environment.err << '\r';
    m_environment.err.flush();
}

bool ProgressLine::IsDue()
{
    if (!m_environment.bTerminal || !m_environment.milliseconds)
        return false;
    const qint64 now = m_environment.milliseconds();
    if (now < m_iNext)
        return false;
    m_iNext = now + StepMilliseconds;
    return true;
}

void ProgressLine::Show(qint64 iDone, qint64 iAll)
{
    if (IsDue()) {
        const qint64 percent = iAll <= 0 ? 100 : std::clamp<qint64>(100 * iDone / iAll, 0, 100);
        Write(tr("%1: %2 %").arg(m_strWhat).arg(percent));
    }
}

void ProgressLine::Show()
{
    if (IsDue())
        Write(tr("%1: %2 s").arg(m_strWhat).arg((m_iNext - StepMilliseconds - m_iStart) / 1000));
}

void ProgressLine::Write(const QString& strLine)
{
    m_environment.err << '\r' << strLine.leftJustified(m_iWidth);
    m_environment.err.flush();
    m_iWidth = strLine.size();
}
