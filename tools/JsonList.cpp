#include "tools/JsonList.h"

#include <QJsonDocument>
#include <QTextStream>

namespace {

QString Compact(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

JsonList::JsonList(QTextStream& out, const QString& strFormat, const QString& strList)
    : m_out(out)
{
    m_out << QStringLiteral("{\"format\":\"%1\",\"version\":1,\"%2\":[").arg(strFormat, strList);
}

JsonList::~JsonList()
{
    if (!m_bEnded)
        End();
}

void JsonList::Add(const QJsonObject& element)
{
    m_out << (m_bFirst ? "\n" : ",\n") << Compact(element);
    m_bFirst = false;
}

void JsonList::End(const QJsonObject& fields)
{
    m_bEnded = true;
    m_out << (m_bFirst ? "]" : "\n]");
    if (!fields.isEmpty())
        m_out << ',' << Compact(fields).mid(1).chopped(1);
    m_out << "}\n";
}

QString JsonList::Text(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented));
}
