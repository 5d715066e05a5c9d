#include "scheme_services/exchange/SchemeTextWriter.h"

#include "scheme_services/exchange/SchemeJson.h"
#include "scheme_services/exchange/SchemeTextRules.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int PieceSize = 64 * 1024;
constexpr int SchemesBetweenLooks = 256;

bool AreTextsSound(const AlarmSourceKey& key, const AlarmInfo& info)
{
    const auto& outputs = info.listAlarmOut;
    const auto& channels = info.videoSplit.videoLinks;
    const auto& doors = info.listDoor;
    return !SchemeTextRules::HoldsForbidden(key.strEventSource) &&
           std::none_of(outputs.cbegin(), outputs.cend(),
                        [](const AlarmLinkAlarmOut& link) {
                            return SchemeTextRules::HoldsForbidden(link.strLinkAlarmID);
                        }) &&
           std::none_of(channels.cbegin(), channels.cend(),
                        [](const AlarmLinkVideo& link) {
                            return SchemeTextRules::HoldsForbidden(link.strLinkDevID);
                        }) &&
           std::none_of(doors.cbegin(), doors.cend(), [](const AlarmLinkDoor& link) {
               return SchemeTextRules::HoldsForbidden(link.strDoorID);
           });
}

} // namespace

SchemeTextWriter::SchemeTextWriter()
    : m_json(std::make_unique<SchemeJson>())
{
}

SchemeTextWriter::~SchemeTextWriter() = default;

void SchemeTextWriter::SetProgress(Progress progress)
{
    m_progress = std::move(progress);
}

QByteArray SchemeTextWriter::Line(const AlarmSourceKey& key, const AlarmInfo& info)
{
    m_json->Clear();
    m_json->Write(key, info);
    return QByteArray(m_json->Text(), m_json->Size());
}

bool SchemeTextWriter::Write(const AlarmInfoMap& map, const Sink& sink)
{
    m_strFailure.clear();
    QByteArray piece("{\"format\":\"alarm-schemes\",\"version\":1,\"schemes\":[");
    int done = 0;
    for (auto scheme = map.cbegin(); scheme != map.cend(); ++scheme, ++done) {
        if (!AreTextsSound(scheme.key(), scheme.value())) {
            m_strFailure = tr("A text of the scheme %1, event type %2, holds a double quote or a null "
                              "character, which cannot be written.")
                               .arg(scheme.key().strEventSource)
                               .arg(scheme.key().AlarmType);
            return false;
        }
        piece += done == 0 ? "\n" : ",\n";
        m_json->Clear();
        m_json->Write(scheme.key(), scheme.value());
        piece.append(m_json->Text(), m_json->Size());
        if (m_progress && done % SchemesBetweenLooks == 0)
            m_progress(done, map.size());
        if (piece.size() >= PieceSize) {
            if (!sink(piece))
                return false;
            piece.resize(0); // keeps the memory
        }
    }
    piece += done == 0 ? "]}\n" : "\n]}\n";
    return sink(piece);
}
