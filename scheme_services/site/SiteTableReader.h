#pragma once

#include "scheme_services/site/CsvText.h"
#include "scheme_services/site/SiteTable.h"
#include "scheme_services/site/SiteTableFields.h"

#include <array>

/// Makes a site of the rows of a table. Goes on behind a row that is wrong, so that a person sees all that is
/// wrong at once.
class SiteTableReader
{
public:
    /// Both must outlive the reader.
    SiteTableReader(const Site& before, SiteTable::Parsed& parsed);

    /// The first row names the columns. False when nothing of the rest can be understood, or when there are
    /// so many problems that the rest is of no interest.
    bool Take(const CsvText::Row& row);
    /// After the last row: what rows say of each other.
    void Finish();

    /// How many cells of a row are names of columns.
    static int KnownColumns(const CsvText::Row& row);

private:
    struct Row
    {
        int iLine = 0;
        std::array<QString, SiteTableFields::columnNames.size()> cells;
        const QString& Cell(SiteTableFields::Column column) const { return cells.at(column); }
    };
    struct Known ///< what a record is so far
    {
        bool bEnabled = true;
        bool bOnline = false;
    };
    struct WaitingChannel
    {
        VantaLogic::ChannelInfo info;
        int iLine = 0;
    };

    bool TakeHeading(const CsvText::Row& row);
    bool Split(const CsvText::Row& row, Row& split);
    void TakeGroup(const Row& row);
    void TakeDevice(const Row& row);
    void TakeChannel(const Row& row);
    bool TakeId(const Row& row, int64_t& iId);
    bool TakeParent(const Row& row, int64_t& iParent);
    bool TakeName(const Row& row, QString& strName);
    bool TakeType(const Row& row, SiteTableFields::Record record, int32_t& iType);
    bool TakeFlag(const Row& row, SiteTableFields::Column column, bool bOtherwise, bool& bFlag);
    bool MustBeEmpty(const Row& row, std::initializer_list<SiteTableFields::Column> columns,
                     SiteTableFields::Record record);
    bool Fail(int iLine, const QString& strReason);
    void AttachChannels();
    void CheckGroups();

    SiteTable::Parsed& m_parsed;
    QHash<int64_t, Known> m_before;
    bool m_bHeading = false;
    bool m_bUnreadable = false;
    std::array<int, SiteTableFields::columnNames.size()> m_places{}; ///< of each column, -1 for none
    int m_iColumns = 0;
    QHash<int64_t, int> m_badIds; ///< ids of rows that could not be used otherwise; no further complaints
    QVector<WaitingChannel> m_channels;
};
