#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct sqlite3;

/// An empty file beside a database, "AlarmScheme.db.open-1" for instance, that stands for as long as a
/// program works with the database and is removed at its end: one that is found although nobody lives to
/// remove it tells of an unclean end, of a crash or a power cut. Each program has one of its own and holds a
/// lock on it, which the system takes back when the program ends in whatever way.
///
/// Where no file can be made nothing is remembered. Any one thread.
class UncleanEndMarker
{
public:
    /// Looks for the markers of others that have gone and leaves one of its own.
    explicit UncleanEndMarker(const QString& strDatabase);
    /// A clean end. After an unclean one it is remembered further, unless the file was found sound.
    ~UncleanEndMarker();
    UncleanEndMarker(const UncleanEndMarker&) = delete;
    UncleanEndMarker& operator=(const UncleanEndMarker&) = delete;

    /// Whether somebody's work has ended uncleanly and the file has not been found sound since.
    bool IsUnclean() const { return m_bUnclean; }
    void FoundSound() { m_bUnclean = false; }

    /// Whether another living program, or another object of this one, works with the database now.
    bool IsAnybodyElseThere() const;

private:
    struct CloseDatabase
    {
        void operator()(sqlite3* pDatabase) const;
    };
    struct Marker
    {
        QString strPath;
        std::unique_ptr<sqlite3, CloseDatabase> lock;
    };
    static int Lock(Marker& marker, bool bCreate);
    QStringList Markers() const;
    void Leave();

    QString m_strDatabase;
    std::vector<Marker> m_held;
    bool m_bUnclean = false;
};
