#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>

class QIODevice;

/// A device as RapidJSON reads it, piece by piece, counting lines. At the end of the device, and at a NUL in
/// it, the present character is 0.
class SchemeTextStream
{
public:
    using Ch = char; // as RapidJSON names it
    /// So many bytes are read.
    using Progress = std::function<void(qint64 iDone)>;

    /// A mark of UTF-8 at the beginning is passed over.
    explicit SchemeTextStream(QIODevice& device, const Progress& progress = {});

    Ch Peek() const { return *m_pAt; }
    Ch Take()
    {
        const Ch taken = *m_pAt;
        if (m_pAt == m_pEnd)
            return taken;
        if (taken == '\n')
            ++m_iLine;
        else if (taken != ' ' && taken != '\t' && taken != '\r')
            m_iSolidLine = m_iLine;
        ++m_iTaken;
        if (++m_pAt == m_pEnd)
            Fill();
        return taken;
    }
    size_t Tell() const { return m_iTaken; }

    // RapidJSON asks for these, for streams that are changed in place.
    Ch* PutBegin() { return nullptr; }
    void Put(Ch) {}
    void Flush() {}
    size_t PutEnd(Ch*) { return 0; }

    /// Of the present character; at the end the last one that holds anything.
    int Line() const { return m_pAt == m_pEnd ? m_iSolidLine : m_iLine; }
    bool IsAtEnd() const { return m_pAt == m_pEnd; }
    /// Whether the text begins like one of 16 or 32 bits a character.
    bool IsWide() const { return m_bWide; }
    /// The device's own words; empty when all could be read.
    const QString& Failure() const { return m_strFailure; }

private:
    void Fill();

    QIODevice& m_device;
    Progress m_progress;
    QByteArray m_buffer;
    const char* m_pAt = nullptr;
    const char* m_pEnd = nullptr;
    size_t m_iTaken = 0;
    qint64 m_iRead = 0;
    int m_iLine = 1;
    int m_iSolidLine = 1;
    bool m_bWide = false;
    QString m_strFailure;
};
