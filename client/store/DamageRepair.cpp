#include "client/store/DamageRepair.h"

#include "client/store/DamagedFile.h"
#include "client/store/SchemeBackups.h"
#include "client/store/StoreConnection.h"

namespace {

using Reason = SchemeStoreOutcome::Reason;

DamageRepairResult Failure(const AlarmSchemeStatementFailure& failure)
{
    return DamageRepairResult{ReasonOfFailure(failure), failure.strMessage, QString()};
}

} // namespace

std::optional<SchemeDamage> DamageRepair::Damage() const
{
    if (!m_connection.IsDamaged())
        return std::nullopt;
    SchemeDamage damage;
    damage.strFile = m_connection.FilePath();
    damage.strTechnical = m_connection.OpeningFailure()->strMessage;
    if (const std::optional<SchemeBackups::Sound> sound = SchemeBackups(damage.strFile).NewestSound())
        damage.backup = SchemeDamage::Backup{sound->backup.strPath, sound->backup.time, sound->iSchemes};
    return damage;
}

DamageRepairResult DamageRepair::Repair(SchemeDamageAnswer eAnswer, const SchemeDamage& damage)
{
    m_connection.Open();
    const std::optional<AlarmSchemeStatementFailure> failure = m_connection.OpeningFailure();
    const bool damaged = m_connection.IsDamaged();
    const bool shared = m_connection.IsShared();
    m_connection.Close();
    if (!damaged)
        return failure ? Failure(*failure) : DamageRepairResult();
    if (shared)
        return DamageRepairResult{Reason::Locked, QString(), QString()};

    DamagedFile file(damage.strFile);
    DamagedFile::Failure repaired;
    if (eAnswer == SchemeDamageAnswer::StartEmpty)
        repaired = file.SetAside();
    else if (eAnswer == SchemeDamageAnswer::Restore && damage.backup)
        repaired = file.ReplaceBy(damage.backup->strPath);
    if (repaired)
        return Failure(*repaired);
    return DamageRepairResult{Reason::None, QString(), file.KeptAs()};
}
