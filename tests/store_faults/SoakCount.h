#pragma once

#include <QtGlobal>

/// How often a test does what it does: in a soak (the environment names ACS_SOAK) as often as it should,
/// otherwise a fiftieth of it.
namespace SoakCount {

constexpr int Share = 50;

inline bool IsWhole()
{
    static const bool whole = qEnvironmentVariableIsSet("ACS_SOAK");
    return whole;
}

inline int Of(int iWhole)
{
    return IsWhole() ? iWhole : (iWhole + Share - 1) / Share;
}

/// From one of a row of cases to the next that is looked at.
inline int Step(int iShare = Share)
{
    return IsWhole() ? 1 : iShare;
}

} // namespace SoakCount
