#include "platform/SiteLibrary/SiteReader.h"

#include "platform/SiteLibrary/SiteHandler.h"
#include "platform/SiteLibrary/SiteRules.h"

#include <rapidjson/error/error.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>

namespace {

QString SyntaxReason(rapidjson::ParseErrorCode code)
{
    switch (code) {
    case rapidjson::kParseErrorDocumentEmpty:
        return SiteText::tr("the file is empty");
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return SiteText::tr("something follows after the end of the site");
    case rapidjson::kParseErrorObjectMissName:
        return SiteText::tr("the name of a field is missing");
    case rapidjson::kParseErrorObjectMissColon:
        return SiteText::tr("a colon is missing after the name of a field");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return SiteText::tr("a comma or a closing brace is missing");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return SiteText::tr("a comma or a closing bracket is missing");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
    case rapidjson::kParseErrorStringEscapeInvalid:
        return SiteText::tr("an escape in a text is not valid");
    case rapidjson::kParseErrorStringMissQuotationMark:
        return SiteText::tr("a closing quotation mark is missing");
    case rapidjson::kParseErrorStringInvalidEncoding:
        return SiteText::tr("a text is not valid UTF-8 or holds a control character");
    case rapidjson::kParseErrorNumberTooBig:
    case rapidjson::kParseErrorNumberMissFraction:
    case rapidjson::kParseErrorNumberMissExponent:
        return SiteText::tr("a number is not valid");
    default:
        return SiteText::tr("this is not valid JSON");
    }
}

/// The line on which a position lies; the end of the text counts to the last line that holds anything.
int LineOf(const QByteArray& text, size_t iOffset)
{
    int iEnd = static_cast<int>(qMin(iOffset, static_cast<size_t>(text.size())));
    if (iEnd == text.size())
        iEnd = text.trimmed().isEmpty() ? 0 : text.lastIndexOf(text.trimmed().back());
    return 1 + static_cast<int>(std::count(text.cbegin(), text.cbegin() + iEnd, '\n'));
}

} // namespace

bool ReadSiteText(const QByteArray& text, Site& site, SiteTextError& error)
{
    QByteArray body = text;
    if (body.startsWith("\xEF\xBB\xBF")) // some editors mark UTF-8 so
        body.remove(0, 3);

    rapidjson::MemoryStream stream(body.constData(), static_cast<size_t>(body.size()));
    SiteHandler handler(body, stream);
    rapidjson::Reader reader;
    constexpr unsigned flags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, handler);
    if (!handler.HasFailed() && result.IsError()) {
        // The reader reports a raw control character in a text as a wrong escape.
        const bool bControl = result.Offset() < static_cast<size_t>(body.size()) &&
                              static_cast<unsigned char>(body[static_cast<int>(result.Offset())]) < 0x20;
        const bool bWrongEscape = result.Code() == rapidjson::kParseErrorStringEscapeInvalid;
        error = {LineOf(body, result.Offset()),
                 SyntaxReason(bControl && bWrongEscape ? rapidjson::kParseErrorStringInvalidEncoding
                                                       : result.Code())};
        return false;
    }
    // The reader takes a NUL for the end of the text.
    if (!handler.HasFailed() && stream.Tell() != static_cast<size_t>(body.size())) {
        error = {LineOf(body, stream.Tell()), SyntaxReason(rapidjson::kParseErrorDocumentRootNotSingular)};
        return false;
    }
    if (handler.HasFailed() || !handler.CheckReferences()) {
        error = handler.Error();
        return false;
    }
    site = handler.TakeSite();
    return true;
}
