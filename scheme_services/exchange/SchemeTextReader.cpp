#include "scheme_services/exchange/SchemeTextReader.h"

#include "scheme_services/exchange/SchemeTextHandler.h"
#include "scheme_services/exchange/SchemeTextStream.h"

#include <rapidjson/error/error.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <utility>

void SchemeTextReader::SetProgress(Progress progress)
{
    m_progress = std::move(progress);
}

bool SchemeTextReader::Read(QIODevice& device, AlarmInfoMap& map)
{
    map.clear();
    m_problems.clear();
    Parse(device, map);
    if (m_problems.isEmpty())
        return true;
    map.clear();
    // What is found at the end of a scheme may be about a line within; what is about no line comes last.
    std::stable_sort(m_problems.begin(), m_problems.end(),
                     [](const SchemeTextProblem& a, const SchemeTextProblem& b) {
                         return a.iLine != 0 && (b.iLine == 0 || a.iLine < b.iLine);
                     });
    return false;
}

void SchemeTextReader::Parse(QIODevice& device, AlarmInfoMap& map)
{
    using namespace rapidjson;
    SchemeTextStream stream(device, m_progress);
    if (stream.IsWide()) {
        m_problems.append({1, tr("the text is not in UTF-8")});
        return;
    }
    SchemeTextHandler handler(stream, map, m_problems);
    Reader reader;
    constexpr unsigned flags = kParseValidateEncodingFlag | kParseIterativeFlag | kParseNumbersAsStringsFlag;
    const ParseResult result = reader.Parse<flags>(stream, handler);
    if (!stream.Failure().isEmpty()) {
        m_problems.append({0, tr("the text could not be read to its end: %1").arg(stream.Failure())});
        return;
    }
    if (handler.HasEnded())
        return;
    if (!result.IsError()) {
        // RapidJSON takes a NUL for the end of the text.
        if (!stream.IsAtEnd())
            m_problems.append({stream.Line(), tr("something follows after the end")});
        return;
    }
    QString reason;
    switch (result.Code()) {
    case kParseErrorDocumentEmpty:
        reason = tr("the text is empty");
        break;
    case kParseErrorDocumentRootNotSingular:
        reason = tr("something follows after the end");
        break;
    case kParseErrorStringInvalidEncoding:
    case kParseErrorStringEscapeInvalid:
    case kParseErrorStringUnicodeEscapeInvalidHex:
    case kParseErrorStringUnicodeSurrogateInvalid:
        reason =
            tr("a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
        break;
    case kParseErrorNumberTooBig:
        reason = tr("a number has too many digits");
        break;
    default:
        reason = stream.IsAtEnd() ? tr("the text ends too early") : tr("this is not valid JSON");
        break;
    }
    m_problems.append({stream.Line(), reason});
}
