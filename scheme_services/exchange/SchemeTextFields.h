#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QByteArray>

#include <cstdint>

/// The fields of a text of schemes: what may stand where.
namespace SchemeTextFields {

/// What an opened brace or bracket is about.
enum class Scope
{
    Document,
    Schemes,
    Scheme,
    Split,
    Cells,
    Cell,
    VideoLinks,
    VideoLink,
    AlarmOut,
    AlarmOutLink,
    Doors,
    Door,
    Week,
    Day,
    Region,
    Skipped, ///< within something that has been complained of
};

enum class Kind
{
    Text,   ///< any
    Key,    ///< a text that the database can keep as a key
    Number, ///< an integer of 32 bits
    Flag,
    Object,
    List,
};

/// What is being read. Each part is made fresh where it begins.
struct Draft
{
    QString strFormat;
    int32_t iVersion = 0;
    AlarmSourceKey key;
    AlarmInfo info;
    int32_t iWindow = 0; ///< of the cell or the video link
    AlarmSplitWindow cell;
    AlarmLinkVideo videoLink;
    AlarmLinkAlarmOut alarmOut;
    AlarmLinkDoor door;
    AlarmTimeRegion region;
};

struct Field
{
    const char* szName;
    Kind eKind;
    bool bRequired; ///< there is no default
    Scope eInside;  ///< of an object or a list
    void (*setText)(Draft&, const QString&);
    void (*setNumber)(Draft&, int32_t);
    void (*setFlag)(Draft&, bool);
};

struct Fields
{
    const Field* pFirst;
    int iCount;
};

/// Of an object; none for a list.
Fields FieldsOf(Scope eScope);
/// -1 when the object has no such field.
int FindField(Scope eScope, const QByteArray& name);
/// What the entries of a list are; Skipped for an object.
Scope EntryOf(Scope eScope);
inline bool IsList(Scope eScope)
{
    return EntryOf(eScope) != Scope::Skipped;
}

} // namespace SchemeTextFields
