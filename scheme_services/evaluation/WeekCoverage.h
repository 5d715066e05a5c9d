#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/EventCategories.h"
#include "schemeevaluation_export.h"

#include <array>
#include <cstdint>
#include <optional>

/// How many schemes are armed in each half hour of the week.
struct SCHEMEEVALUATION_EXPORT WeekCoverage
{
    static constexpr int SlotSeconds = 30 * 60;
    static constexpr int SlotsOfDay = 48;
    static constexpr int Slots = 7 * SlotsOfDay; ///< Sunday's first

    /// Which schemes are counted; everything unless it is said.
    struct Filter
    {
        std::optional<int64_t> deviceId;
        std::optional<EventCategory> category;
    };

    struct Slot
    {
        int iTouched = 0;     ///< schemes that are armed for at least a second of it
        int iThroughout = 0;  ///< schemes that are armed all through it
        int64_t iSeconds = 0; ///< armed seconds of all schemes together
    };

    int iSchemes = 0; ///< that the filter lets through
    int iEnabled = 0; ///< of them switched on; only these are ever armed
    std::array<Slot, Slots> week{};

    const Slot& At(int iDay, int iSlot) const
    {
        return week[static_cast<std::size_t>(iDay) * SlotsOfDay + static_cast<std::size_t>(iSlot)];
    }
    /// The part of the schemes switched on that is armed, 0 to 1, on an average over the half hour; 0 without
    /// any scheme.
    double Fraction(int iDay, int iSlot) const;

    static WeekCoverage Of(const AlarmInfoMap& map, const Filter& filter);
};
