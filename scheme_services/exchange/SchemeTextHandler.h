#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeTextPool.h"
#include "scheme_services/exchange/SchemeTextFields.h"
#include "scheme_services/exchange/SchemeTextProblem.h"
#include "scheme_services/exchange/SchemeTextStream.h"

#include <QCoreApplication>
#include <QSet>
#include <QVector>

#include <rapidjson/rapidjson.h>

#include <vector>

/// Builds schemes from the reader's events. What is wrong is noted and passed over, so that one reading finds
/// all of it; only what makes the rest meaningless, another format or version, ends the reading.
class SchemeTextHandler
{
    Q_DECLARE_TR_FUNCTIONS(SchemeTextHandler)

public:
    /// So many problems are noted; a text with more is none that somebody will mend by hand.
    static constexpr int MostProblems = 100000;

    SchemeTextHandler(const SchemeTextStream& stream, AlarmInfoMap& map,
                      QVector<SchemeTextProblem>& problems);

    // RapidJSON's events; false ends the reading. Numbers come as their text.
    bool Null();
    bool Bool(bool b);
    bool RawNumber(const char* text, rapidjson::SizeType length, bool);
    bool Int(int) { return Null(); }
    bool Uint(unsigned) { return Null(); }
    bool Int64(int64_t) { return Null(); }
    bool Uint64(uint64_t) { return Null(); }
    bool Double(double) { return Null(); }
    bool String(const char* text, rapidjson::SizeType length, bool);
    bool Key(const char* text, rapidjson::SizeType length, bool);
    bool StartObject();
    bool EndObject(rapidjson::SizeType);
    bool StartArray();
    bool EndArray(rapidjson::SizeType);

    /// Whether the reading was ended from here.
    bool HasEnded() const { return m_bEnded; }

private:
    using Scope = SchemeTextFields::Scope;
    struct Level
    {
        Scope eScope = Scope::Skipped;
        int iLine = 1;
        int iField = -1;    ///< the field whose value comes next
        unsigned iSeen = 0; ///< a bit for each field that has come
        unsigned iHeld = 0; ///< a bit for each whose value could be taken
        int iEntries = 0;   ///< of a list

        bool Holds(unsigned iWhich) const { return (iHeld & iWhich) == iWhich; }
    };
    struct Place
    {
        int32_t iWindow = 0;
        int iLine = 1;
    };

    Level& Top() { return m_levels.back(); }
    const SchemeTextFields::Field* Awaited() const;
    QString Expectation() const;
    bool Complain(int iLine, const QString& strReason);
    bool End(int iLine, const QString& strReason);
    bool Refuse();
    bool Open(SchemeTextFields::Kind eKind);
    bool Close();
    void CheckRequired(const Level& level);
    bool Take();
    bool CheckDocument();
    void Begin(Scope eScope);
    bool Finish(const Level& level);
    void FinishCell(const Level& level);
    void FinishVideoLink(const Level& level);
    void FinishAlarmOutLink(const Level& level);
    void FinishDoor(const Level& level);
    void FinishRegion(const Level& level);
    void FinishWeek(const Level& level);
    void FinishScheme(const Level& level);

    const SchemeTextStream& m_stream;
    AlarmInfoMap& m_map;
    QVector<SchemeTextProblem>& m_problems;

    std::vector<Level> m_levels;
    int m_iSkipped = 0; ///< levels within something that has been complained of
    bool m_bEnded = false;

    SchemeTextFields::Draft m_draft;
    std::vector<Place> m_cells;  ///< that are not default
    std::vector<Place> m_videos; ///< in the order of the text
    quint64 m_iCellsSeen = 0;
    QSet<QString> m_outputs;
    QSet<QString> m_doors;
    AlarmWeek m_week;
    AlarmWeek m_lastWeek; ///< alike ones share their memory, as alike cells do
    AlarmSplitCells m_lastCells;
    AlarmSchemeTextPool m_pool;
};
