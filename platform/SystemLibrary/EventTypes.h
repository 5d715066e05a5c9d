#pragma once

#include <QList>
#include <QString>

/// The access-control event types of the host: one table for their category, order and name.
namespace EventTypes {

enum class Category
{
    Alarm,
    Abnormal,
    Normal,
    Other
};

/// Types of a category in the order in which they are offered.
QList<int> Types(Category category);

/// Untranslated name for the context "QCommon"; null for an unknown type.
const char* Name(int iType);

} // namespace EventTypes
