#include "tests/store_faults/PowerCut.h"

#include <algorithm>

using Kind = FaultyDisk::Kind;

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
            const int size = static_cast<int>(change.iOffset);
            content->append(QByteArray(std::max(0, size - content->size()), '\0'));
            content->truncate(size);
        }
        break;
    case Kind::Write: {
        const int offset = static_cast<int>(change.iOffset);
        for (int done = 0; content && done < change.data.size();) {
            const int size = std::min(Sector - (offset + done) % Sector, change.data.size() - done);
            if (arrives()) {
                const int missing = offset + done + size - content->size();
                content->append(QByteArray(std::max(0, missing), '\0'));
                content->replace(offset + done, size, change.data.mid(done, size));
            }
            done += size;
        }
        break;
    }
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
