#pragma once

#include "tests/store_faults/DiskContent.h"
#include "tests/store_faults/FaultyDisk.h"

#include <QList>
#include <QRandomGenerator>

#include <optional>

/// What a disk may hold after the power failed. What was forced to the medium is there; of what was not, each
/// sector, cut, new or deleted file may have reached it or not. Takes over a record change by change.
class PowerCut
{
public:
    /// Smallest piece that a disk writes whole, in bytes.
    static constexpr int Sector = 512;

    /// What is there before the first change is on the medium.
    explicit PowerCut(const DiskContent& before);

    void Take(const FaultyDisk::Operation& change);

    DiskContent Forced() const; ///< nothing else arrived
    DiskContent All() const;    ///< everything arrived
    DiskContent Torn(QRandomGenerator& random) const;
    /// Whether anything is not on the medium yet.
    bool IsAnythingPending() const;

private:
    using Content = std::optional<QByteArray>; ///< nothing: no such file

    struct File
    {
        Content forced;
        QList<FaultyDisk::Operation> pending;
    };

    static void Apply(Content& content, const FaultyDisk::Operation& change, QRandomGenerator* pRandom);
    DiskContent Outcome(bool bPending, QRandomGenerator* pRandom) const;

    QMap<QString, File> m_files;
};
