#include "tests/store_faults/PowerCut.h"

#include <algorithm>

using Kind = FaultyDisk::Kind;

namespace {

/// What lies between the old end of a file and its new one is zero.
void Lengthen(QByteArray& content, qint64 iSize)
{
    if (content.size() < iSize)
        content.append(QByteArray(static_cast<int>(iSize - content.size()), '\0'));
}

} // namespace

PowerCut::PowerCut(const DiskContent& before)
{
    for (auto entry = before.cbegin(); entry != before.cend(); ++entry)
        m_files[entry.key()].forced = entry.value();
}

void PowerCut::Take(const FaultyDisk::Operation& change)
{
    File& file = m_files[change.strFile];
    if (change.eKind != Kind::Sync)
        file.pending.append(change);
    if (change.eKind == Kind::Sync || (change.eKind == Kind::Delete && change.bSyncsFolder)) {
        for (const FaultyDisk::Operation& pending : qAsConst(file.pending))
            Apply(file.forced, pending, nullptr);
        file.pending.clear();
    }
}

/// With a random source any part of the change may be left out.
void PowerCut::Apply(Content& content, const FaultyDisk::Operation& change, QRandomGenerator* pRandom)
{
    const auto arrives = [pRandom] { return pRandom == nullptr || pRandom->bounded(2) == 1; };
    switch (change.eKind) {
    case Kind::Open:
        if (!content && arrives())
            content = QByteArray();
        break;
    case Kind::Delete:
        if (arrives())
            content.reset();
        break;
    case Kind::Truncate:
        if (content && arrives()) {
            Lengthen(*content, change.iOffset);
            content->truncate(static_cast<int>(change.iOffset));
        }
        break;
    case Kind::Write:
        for (qint64 done = 0; content && done < change.data.size();) {
            const qint64 at = change.iOffset + done;
            const qint64 size = std::min<qint64>(Sector - at % Sector, change.data.size() - done);
            if (arrives()) {
                Lengthen(*content, at + size);
                content->replace(static_cast<int>(at), static_cast<int>(size),
                                 change.data.mid(static_cast<int>(done), static_cast<int>(size)));
            }
            done += size;
        }
        break;
    default:
        break;
    }
}

DiskContent PowerCut::Outcome(bool bPending, QRandomGenerator* pRandom) const
{
    DiskContent outcome;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        Content content = file->forced;
        if (bPending) {
            for (const FaultyDisk::Operation& change : file->pending)
                Apply(content, change, pRandom);
        }
        if (content)
            outcome.insert(file.key(), *content);
    }
    return outcome;
}

DiskContent PowerCut::Forced() const
{
    return Outcome(false, nullptr);
}

DiskContent PowerCut::All() const
{
    return Outcome(true, nullptr);
}

DiskContent PowerCut::Torn(QRandomGenerator& random) const
{
    return Outcome(true, &random);
}

bool PowerCut::IsAnythingPending() const
{
    return std::any_of(m_files.cbegin(), m_files.cend(),
                       [](const File& file) { return !file.pending.isEmpty(); });
}
