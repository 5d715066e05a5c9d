#include "scheme_services/site/CsvText.h"

#include <csv.h>

#include <algorithm>

namespace {

constexpr size_t BufferStep = 1U << 16U;

class Reader
{
public:
    Reader(char cSeparator, const std::function<bool(const CsvText::Row&)>& take)
        : m_take(take)
    {
        m_bReady = csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI) == 0;
        csv_set_delim(&m_parser, static_cast<unsigned char>(cSeparator));
        // Its buffer grows by so many bytes at a time; by few, a huge cell would be copied again and again.
        csv_set_blk_size(&m_parser, BufferStep);
    }
    ~Reader() { csv_free(&m_parser); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool Read(const QByteArray& text, SiteProblem& problem);

private:
    static void OnCell(void* pText, size_t iLength, void* pSelf);
    static void OnRow(int, void* pSelf);
    bool Feed(const char* pText, int iLength);
    int Fail(SiteProblem& problem) const;

    const std::function<bool(const CsvText::Row&)>& m_take;
    csv_parser m_parser{};
    CsvText::Row m_row;
    bool m_bReady = false;
    bool m_bInRow = false;
    bool m_bStopped = false;
};

void Reader::OnCell(void* pText, size_t iLength, void* pSelf)
{
    auto* pReader = static_cast<Reader*>(pSelf);
    ++pReader->m_row.iCells;
    if (pReader->m_row.cells.size() < CsvText::MostCells) {
        pReader->m_row.cells.append(QByteArray(static_cast<const char*>(pText), static_cast<int>(iLength)));
    }
}

void Reader::OnRow(int, void* pSelf)
{
    auto* pReader = static_cast<Reader*>(pSelf);
    pReader->m_bStopped = pReader->m_bStopped || !pReader->m_take(pReader->m_row);
    pReader->m_row = CsvText::Row();
    pReader->m_bInRow = false;
}

bool Reader::Feed(const char* pText, int iLength)
{
    const auto iWanted = static_cast<size_t>(iLength);
    return csv_parse(&m_parser, pText, iWanted, &Reader::OnCell, &Reader::OnRow, this) == iWanted;
}

bool Reader::Read(const QByteArray& text, SiteProblem& problem)
{
    const auto fail = [&problem](int iLine, const QString& strReason) {
        problem = {iLine, strReason};
        return false;
    };
    if (!m_bReady) {
        return fail(0, SiteExchangeText::tr("there is not enough memory"));
    }
    const auto isBreak = [](char c) { return c == '\n' || c == '\r'; };
    int iLine = 0;
    // Line by line, so that every row knows on which line it begins.
    for (int iAt = 0; iAt < text.size() && !m_bStopped;) {
        const auto itEnd = std::find_if(text.cbegin() + iAt, text.cend(), isBreak);
        int iEnd = static_cast<int>(itEnd - text.cbegin());
        const bool bBlank =
            std::all_of(text.cbegin() + iAt, itEnd, [](char c) { return c == ' ' || c == '\t'; });
        if (iEnd < text.size()) {
            iEnd += text.at(iEnd) == '\r' && iEnd + 1 < text.size() && text.at(iEnd + 1) == '\n' ? 2 : 1;
        }
        ++iLine;
        if (!m_bInRow && !bBlank) {
            m_bInRow = true;
            m_row.iLine = iLine;
        }
        if (m_bInRow && !Feed(text.constData() + iAt, iEnd - iAt)) {
            return fail(iLine,
                        SiteExchangeText::tr("a quotation mark stands where none may; a cell that holds "
                                             "one is written in quotation marks, with its own doubled"));
        }
        iAt = iEnd;
    }
    const int iLast = m_row.iLine;
    if (!m_bStopped && csv_fini(&m_parser, &Reader::OnCell, &Reader::OnRow, this) != 0) {
        return fail(iLast, SiteExchangeText::tr("a closing quotation mark is missing"));
    }
    return true;
}

} // namespace

bool CsvText::Read(const QByteArray& text, char cSeparator, const std::function<bool(const Row&)>& take,
                   SiteProblem& problem)
{
    return Reader(cSeparator, take).Read(text, problem);
}

QByteArray CsvText::Quoted(const QByteArray& cell)
{
    const auto iSize = static_cast<size_t>(cell.size());
    QByteArray quoted(static_cast<int>(csv_write(nullptr, 0, cell.constData(), iSize)), '\0');
    csv_write(quoted.data(), static_cast<size_t>(quoted.size()), cell.constData(), iSize);
    return quoted;
}
