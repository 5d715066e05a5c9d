#pragma once

#include <QJsonObject>
#include <QString>

class QTextStream;

/// Writes a JSON object with a list in it, one element a line, without ever holding the list.
class JsonList
{
public:
    /// {"format":"<format>","version":1,"<list>":[
    JsonList(QTextStream& out, const QString& strFormat, const QString& strList);
    ~JsonList();
    JsonList(const JsonList&) = delete;
    JsonList& operator=(const JsonList&) = delete;

    void Add(const QJsonObject& element);
    /// Ends the list; the fields follow it. Called by the destructor at the latest.
    void End(const QJsonObject& fields = {});

    /// One object as a text of its own.
    static QString Text(const QJsonObject& object);

private:
    QTextStream& m_out;
    bool m_bFirst = true;
    bool m_bEnded = false;
};
