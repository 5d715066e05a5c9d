#pragma once

#include "schemeevaluation_export.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

enum class EventCategory
{
    Alarm,
    Abnormal,
    Normal,
    AlarmInput, ///< the one event of alarm inputs
    Unknown,    ///< a type that the host does not list
};

/// The event types of the host by category, number and name.
class SCHEMEEVALUATION_EXPORT EventCategories
{
    Q_DECLARE_TR_FUNCTIONS(EventCategories)

public:
    EventCategories() = delete;

    static EventCategory CategoryOf(int32_t iType);
    static QString NameOf(EventCategory category);
    /// Every type that the host lists, by category and in the host's order.
    static QList<int32_t> KnownTypes();
    /// The type that a text names: a listed type's number or its name, in upper or lower case.
    static std::optional<int32_t> TypeOf(const QString& strText);
    /// A whole number from 0 up, listed or not.
    static std::optional<int32_t> NumberOf(const QString& strText);
};
