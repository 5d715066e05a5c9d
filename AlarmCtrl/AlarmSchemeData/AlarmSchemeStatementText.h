#pragma once

#include <QString>

#include <cstdint>
#include <initializer_list>
#include <optional>

/// One value for a numbered placeholder of a statement: a text as it stands, a number in decimal, a bool as 1
/// or 0.
class StatementArgument
{
public:
    StatementArgument(const QString& strText)
        : m_strText(strText)
    {
    }
    StatementArgument(int32_t iNumber)
        : m_strText(QString::number(iNumber))
    {
    }
    StatementArgument(int64_t iNumber)
        : m_strText(QString::number(iNumber))
    {
    }
    StatementArgument(bool bFlag)
        : m_strText(QString::number(bFlag ? 1 : 0))
    {
    }
    StatementArgument(const char*) = delete; // would become a bool

    const QString& Text() const { return m_strText; }
    /// Whether the text may stand between the double quotes of a statement. One that holds a double quote
    /// would end the literal and run what follows; a NUL would cut the statement off.
    bool IsSafe() const;

private:
    QString m_strText;
};

/// Whether a statement can be handed to SQLite whole.
bool IsWholeStatement(const QString& strSql);

/// Replaces "%1" to "%9" in one pass, so that an argument that itself holds "%1" stays as it is. Placeholders
/// without an argument stay too. Nothing when an argument is not safe.
std::optional<QString> FillStatement(const char* szTemplate,
                                     std::initializer_list<StatementArgument> arguments);
