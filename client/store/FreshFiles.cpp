#include "client/store/FreshFiles.h"

#include "client/store/FileHealth.h"
#include "client/store/SchemeHistoryFile.h"
#include "client/store/UncleanEndMarker.h"

#include <QFile>

FreshFiles::FreshFiles(const QString& strDatabase)
    : m_strDatabase(strDatabase)
{
    if (strDatabase.isEmpty())
        return;
    const QLatin1String journal("-journal");
    const QString history = SchemeHistoryFile::PathBeside(strDatabase);
    for (const QString& file : {strDatabase, strDatabase + journal, history, history + journal}) {
        if (!QFile::exists(file))
            m_missing.append(file);
    }
}

void FreshFiles::Remove() const
{
    if (!m_missing.contains(m_strDatabase))
        return;
    const UncleanEndMarker marker(m_strDatabase);
    if (marker.IsAnybodyElseThere() || FileHealth::Inspect(m_strDatabase).iSchemes > 0)
        return;
    for (const QString& file : m_missing)
        QFile::remove(file);
}
