#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

/// Expected texts, a line each.
inline QStringList Lines(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* const line : lines)
        texts.append(QLatin1String(line));
    return texts;
}
