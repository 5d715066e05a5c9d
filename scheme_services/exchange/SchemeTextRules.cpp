#include "scheme_services/exchange/SchemeTextRules.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemePlainText.h"

#include <QCoreApplication>

namespace {

QString Translated(const char* szText)
{
    return QCoreApplication::translate("SchemeTextRules", szText);
}

} // namespace

bool SchemeTextRules::HoldsForbidden(const QString& strText)
{
    return strText.contains(QLatin1Char('"')) || strText.contains(QChar(QChar::Null));
}

QString SchemeTextRules::Objection(const QString& strText)
{
    if (HoldsForbidden(strText))
        return Translated(QT_TRANSLATE_NOOP("SchemeTextRules", "holds a double quote or a null character"));
    if (strText.size() > MostCharacters)
        return Translated(QT_TRANSLATE_NOOP("SchemeTextRules", "is longer than %1 characters"))
            .arg(MostCharacters);
    if (NamesColumn(strText))
        return Translated(
            QT_TRANSLATE_NOOP("SchemeTextRules", "is a word that the database keeps for itself"));
    return QString();
}

bool SchemeTextRules::IsDoorNumber(const QString& strText)
{
    bool number = false;
    const qlonglong door = strText.toLongLong(&number);
    return number && strText == QString::number(door);
}
