#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <array>

namespace {

constexpr int32_t LastSecondOfDay = 86399;

// By-name registration has to be done before the first queued connection of any module that is loaded later.
[[maybe_unused]] const int registeredDefenceTime =
    qRegisterMetaType<AlarmDefenceTime_t>("AlarmDefenceTime_t");

} // namespace

struct AlarmWeek::Days : QSharedData
{
    std::array<AlarmDefenceTime_t, AlarmWeek::DayCount> days;

    /// The one block that all fresh weeks of the process share.
    static const QSharedDataPointer<Days>& Fresh()
    {
        static const QSharedDataPointer<Days> fresh = [] {
            QSharedDataPointer<Days> made(new Days);
            made->days.fill(AlarmDefenceTime_t{AlarmTimeRegion{0, LastSecondOfDay}});
            return made;
        }();
        return fresh;
    }
};

AlarmWeek::AlarmWeek()
    : d(Days::Fresh())
{
}

AlarmWeek::AlarmWeek(const AlarmWeek& other) = default;

// What was moved from stays a usable fresh week.
AlarmWeek::AlarmWeek(AlarmWeek&& other) noexcept
    : AlarmWeek()
{
    d.swap(other.d);
}

AlarmWeek& AlarmWeek::operator=(const AlarmWeek& other) = default;

AlarmWeek& AlarmWeek::operator=(AlarmWeek&& other) noexcept
{
    d.swap(other.d);
    return *this;
}

AlarmWeek::~AlarmWeek() = default;

const AlarmDefenceTime_t& AlarmWeek::operator[](int iDay) const
{
    Q_ASSERT(iDay >= 0 && iDay < DayCount);
    return d->days[static_cast<size_t>(iDay)];
}

AlarmDefenceTime_t& AlarmWeek::operator[](int iDay)
{
    Q_ASSERT(iDay >= 0 && iDay < DayCount);
    return d->days[static_cast<size_t>(iDay)];
}

const AlarmDefenceTime_t* AlarmWeek::data() const
{
    return d->days.data();
}

AlarmDefenceTime_t* AlarmWeek::data()
{
    return d->days.data();
}

bool AlarmWeek::IsSharedWith(const AlarmWeek& other) const
{
    return d.constData() == other.d.constData();
}

bool operator==(const AlarmWeek& a, const AlarmWeek& b)
{
    if (a.IsSharedWith(b))
        return true;
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (a[day] != b[day])
            return false;
    }
    return true;
}
