#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatementText.h"

#include <algorithm>

bool StatementArgument::IsSafe() const
{
    return !m_strText.contains(QLatin1Char('"')) && !m_strText.contains(QChar(0));
}

bool IsWholeStatement(const QString& strSql)
{
    return !strSql.contains(QChar(0));
}

std::optional<QString> FillStatement(const char* szTemplate,
                                     std::initializer_list<StatementArgument> arguments)
{
    if (!std::all_of(arguments.begin(), arguments.end(), [](const auto& one) { return one.IsSafe(); }))
        return std::nullopt;

    QString sql;
    for (const char* at = szTemplate; *at != '\0'; ++at) {
        const int number = at[0] == '%' ? at[1] - '0' : 0;
        if (number < 1 || number > 9 || static_cast<size_t>(number) > arguments.size()) {
            sql += QLatin1Char(*at);
            continue;
        }
        sql += arguments.begin()[number - 1].Text();
        ++at;
    }
    return sql;
}
