#pragma once

#include "client/store/SchemeDamage.h"
#include "client/store/SchemeStoreOutcome.h"

#include <QString>

#include <optional>

class StoreConnection;

/// What became of a damaged database.
struct DamageRepairResult
{
    SchemeStoreOutcome::Reason eReason = SchemeStoreOutcome::Reason::None;
    QString strTechnical;
    /// Where the damaged file lies now; empty when it was not damaged any more, and nothing was done.
    QString strKeptAs;
};

/// Looks what can be done about a damaged database, and does it. On the thread of the connection.
class DamageRepair
{
public:
    /// The connection must outlive this object; it has tried to open the database.
    explicit DamageRepair(StoreConnection& connection)
        : m_connection(connection)
    {
    }

    /// Nothing unless the opening has found the database damaged. Reads backups, which takes a while.
    std::optional<SchemeDamage> Damage() const;

    /// Does what the operator has decided, or nothing when somebody else has done so meanwhile; Locked while
    /// another client works with the file. The connection is closed afterwards. After a failure everything
    /// lies where it lay.
    DamageRepairResult Repair(SchemeDamageAnswer eAnswer, const SchemeDamage& damage);

private:
    StoreConnection& m_connection;
};
