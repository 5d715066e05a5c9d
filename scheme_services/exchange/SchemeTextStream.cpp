#include "scheme_services/exchange/SchemeTextStream.h"

#include <QIODevice>

namespace {

constexpr int PieceSize = 64 * 1024;

} // namespace

SchemeTextStream::SchemeTextStream(QIODevice& device, const Progress& progress)
    : m_device(device)
    , m_progress(progress)
{
    Fill();
    const QByteArray start = m_buffer.left(2);
    m_bWide = start == QByteArray("\xFF\xFE") || start == QByteArray("\xFE\xFF") || start.contains('\0');
    if (m_buffer.startsWith("\xEF\xBB\xBF")) // some editors mark UTF-8 so
        m_pAt += 3;
    if (m_pAt == m_pEnd)
        Fill();
}

void SchemeTextStream::Fill()
{
    m_buffer.resize(PieceSize);
    const qint64 size = m_strFailure.isEmpty() ? m_device.read(m_buffer.data(), PieceSize) : 0;
    if (size < 0)
        m_strFailure = m_device.errorString();
    m_buffer.resize(static_cast<int>(qMax<qint64>(size, 0)));
    // The byte after the last one is a NUL, which stands for the end.
    m_pAt = m_buffer.constData();
    m_pEnd = m_pAt + m_buffer.size();
    m_iRead += m_buffer.size();
    if (m_progress)
        m_progress(m_iRead);
}
