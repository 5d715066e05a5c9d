#include "tests/translations/Catalogue.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

void ReadTranslation(QXmlStreamReader& xml, CatalogueMessage& message)
{
    message.strState = xml.attributes().value(QLatin1String("type")).toString();
    if (!message.bNumerus) {
        message.translationForms.append(xml.readElementText());
        return;
    }
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("numerusform")) {
            message.translationForms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
}

CatalogueMessage ReadMessage(QXmlStreamReader& xml, const QString& strContext)
{
    CatalogueMessage message;
    message.strContext = strContext;
    message.bNumerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.strSource = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.strComment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            ReadTranslation(xml, message);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

int LineBreaks(const QString& strText)
{
    return strText.count(QLatin1Char('\n'));
}

/// The key of an "&x" in a text, in capitals; null without one.
QChar Mnemonic(const QString& strText)
{
    static const QRegularExpression pattern(QStringLiteral("&([^&\\s])"));
    QString strPlain = strText;
    strPlain.remove(QStringLiteral("&&"));
    const QString strKey = pattern.match(strPlain).captured(1);
    return strKey.isEmpty() ? QChar() : strKey.at(0).toUpper();
}

QString FlawOfForm(const CatalogueMessage& message, const QString& strForm)
{
    if (strForm.trimmed().isEmpty())
        return QStringLiteral("is empty");
    if (Placeholders(strForm) != Placeholders(message.strSource))
        return QStringLiteral("has other placeholders");
    if (LineBreaks(strForm) != LineBreaks(message.strSource))
        return QStringLiteral("has other line breaks");
    if (Mnemonic(strForm).isNull() != Mnemonic(message.strSource).isNull())
        return QStringLiteral("lost or gained its mnemonic");
    return {};
}

QString Flaw(const CatalogueMessage& message, int iForms)
{
    if (!message.strState.isEmpty())
        return QStringLiteral("is ") + message.strState;
    const int iWanted = message.bNumerus ? iForms : 1;
    if (message.translationForms.size() != iWanted)
        return QStringLiteral("has %1 forms instead of %2").arg(message.translationForms.size()).arg(iWanted);
    for (const QString& form : message.translationForms) {
        QString strFlaw = FlawOfForm(message, form);
        if (!strFlaw.isEmpty())
            return strFlaw;
    }
    return {};
}

} // namespace

QString CatalogueMessage::Key() const
{
    const QString strKey = strContext + QStringLiteral(": \"") + strSource + QLatin1Char('"');
    return strComment.isEmpty() ? strKey : strKey + QStringLiteral(" (") + strComment + QLatin1Char(')');
}

Catalogue::Catalogue(const QByteArray& catalogueXml)
{
    QXmlStreamReader xml(catalogueXml);
    if (xml.readNextStartElement() && xml.name() != QLatin1String("TS"))
        xml.raiseError(QStringLiteral("this is no catalogue"));
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("context")) {
            xml.skipCurrentElement();
            continue;
        }
        QString strContext;
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("name")) {
                strContext = xml.readElementText();
            } else if (xml.name() == QLatin1String("message")) {
                m_messages.push_back(ReadMessage(xml, strContext));
            } else {
                xml.skipCurrentElement();
            }
        }
    }
    if (xml.hasError())
        m_strError = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
}

QSet<QString> Catalogue::Keys() const
{
    QSet<QString> keys;
    for (const CatalogueMessage& message : m_messages)
        keys.insert(message.Key());
    return keys;
}

QStringList Catalogue::Problems(int iForms) const
{
    QStringList problems;
    QSet<QString> seen;
    for (const CatalogueMessage& message : m_messages) {
        const QString strKey = message.Key();
        if (seen.contains(strKey))
            problems.append(strKey + QStringLiteral(" stands twice"));
        seen.insert(strKey);
        QString strFlaw = Flaw(message, iForms);
        if (!strFlaw.isEmpty())
            problems.append(strKey + QLatin1Char(' ') + strFlaw);
    }
    return problems;
}

QStringList Placeholders(const QString& strText)
{
    static const QRegularExpression pattern(QStringLiteral("%L?(?:[0-9]{1,2}|n)"));
    QStringList placeholders;
    for (auto match = pattern.globalMatch(strText); match.hasNext();)
        placeholders.append(match.next().captured());
    std::sort(placeholders.begin(), placeholders.end());
    return placeholders;
}
