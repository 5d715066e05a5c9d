#pragma once

#include "scheme_services/exchange/SchemeTextReader.h"
#include "scheme_services/exchange/SchemeTextWriter.h"

#include <QBuffer>
#include <QStringList>

/// Texts of schemes and what becomes of them.
namespace SchemeTexts {

inline QByteArray Write(const AlarmInfoMap& map)
{
    QByteArray text;
    SchemeTextWriter().Write(map, [&text](const QByteArray& piece) {
        text += piece;
        return true;
    });
    return text;
}

/// The problems, each "line: reason"; the map is empty then.
inline QStringList Read(const QByteArray& text, AlarmInfoMap& map)
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly);
    SchemeTextReader reader;
    QStringList problems;
    if (!reader.Read(device, map)) {
        for (const SchemeTextProblem& problem : reader.Problems())
            problems.append(QStringLiteral("%1: %2").arg(problem.iLine).arg(problem.strReason));
    }
    return problems;
}

/// A file of these schemes, a line each.
inline QByteArray File(const QByteArray& schemes)
{
    return "{\"format\":\"alarm-schemes\",\"version\":1,\"schemes\":[\n" + schemes + "\n]}\n";
}

/// A file of one scheme with these fields beside its key.
inline QByteArray Scheme(const QByteArray& fields)
{
    return File("{\"strEventSource\":\"7$1$0$12\",\"AlarmType\":101" +
                (fields.isEmpty() ? "" : "," + fields) + "}");
}

} // namespace SchemeTexts
