#include "client/store/SchemeHistoryPacking.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

namespace {

constexpr quint8 FormatVersion = 1;
// A million changes take some 40 MB before they are compressed; what claims to be longer was not made here.
constexpr quint32 MostBytes = 1U << 30;

void SetUp(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_12);
    stream.setByteOrder(QDataStream::LittleEndian);
}

} // namespace

QByteArray SchemeHistoryPacking::Pack(const QVector<PackedSchemeChange>& changes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    SetUp(stream);
    stream << FormatVersion << quint32(changes.size());
    const QString* source = nullptr;
    for (const PackedSchemeChange& change : changes) {
        const bool same = source != nullptr && *source == change.key.strEventSource;
        stream << same;
        if (!same)
            stream << change.key.strEventSource;
        source = &change.key.strEventSource;
        stream << change.key.AlarmType << change.iBefore << change.iAfter;
    }
    return qCompress(bytes);
}

std::optional<QVector<PackedSchemeChange>> SchemeHistoryPacking::Unpack(const QByteArray& bytes)
{
    const QByteArray plain = Uncompress(bytes);
    QDataStream stream(plain);
    SetUp(stream);
    quint8 version = 0;
    quint32 count = 0;
    stream >> version >> count;
    if (version != FormatVersion)
        return std::nullopt;
    QVector<PackedSchemeChange> changes;
    QString source;
    for (quint32 at = 0; at < count && stream.status() == QDataStream::Ok; ++at) {
        bool same = false;
        stream >> same;
        if (!same)
            stream >> source;
        PackedSchemeChange change;
        change.key.strEventSource = source;
        stream >> change.key.AlarmType >> change.iBefore >> change.iAfter;
        if (change.iBefore < 0 || change.iAfter < 0)
            return std::nullopt;
        changes.append(change);
    }
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return changes;
}

QByteArray SchemeHistoryPacking::Uncompress(const QByteArray& bytes)
{
    // The length that a compressed block claims is taken from the memory before a byte is looked at; no block
    // becomes a thousand times longer and a little.
    if (bytes.size() < 4)
        return QByteArray();
    const quint64 claimed = qFromBigEndian<quint32>(bytes.constData());
    const quint64 possible = 1100 * static_cast<quint64>(bytes.size()) + 1024;
    return claimed > MostBytes || claimed > possible ? QByteArray() : qUncompress(bytes);
}
