#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QRandomGenerator>

/// Schemes and maps of them from a seed: few keys, so that saves meet rows that exist, and awkward values.
class RandomSchemes
{
public:
    explicit RandomSchemes(quint32 iSeed)
        : m_random(iSeed)
    {
    }

    AlarmInfoMap Map();
    AlarmInfo Info();
    AlarmSourceKey Key();
    /// Whether the statements would read a key's text as a column: it then names somebody else's scheme.
    static bool NamesColumn(const AlarmSourceKey& key);

private:
    int Below(int iEnd) { return m_random.bounded(iEnd); }
    bool Flip() { return Below(2) == 1; }
    QString LinkKey();

    QRandomGenerator m_random;
};
