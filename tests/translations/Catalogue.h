#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// One message of a translation catalogue.
struct CatalogueMessage
{
    QString strContext;
    QString strSource;
    QString strComment;           ///< tells apart messages with the same source; usually empty
    QString strState;             ///< "unfinished", "vanished", "obsolete", or empty: finished
    bool bNumerus = false;        ///< has one form for each grammatical number
    QStringList translationForms; ///< exactly one unless bNumerus

    /// Identifies the message among all catalogues; also says it in failures.
    QString Key() const;
};

/// A translation catalogue (.ts), read with every flaw it may have, so that a test can name them.
class Catalogue
{
public:
    /// \param catalogueXml  content of a .ts file; what cannot be read leaves an Error().
    explicit Catalogue(const QByteArray& catalogueXml);

    /// Empty when the content was read to its end and is a catalogue.
    const QString& Error() const { return m_strError; }
    const std::vector<CatalogueMessage>& Messages() const { return m_messages; }

    QSet<QString> Keys() const;

    /// One line for each message that is not ready to be shown, one for each message that stands twice.
    /// \param iForms  how many grammatical numbers the language has, from 1 on.
    QStringList Problems(int iForms) const;

private:
    std::vector<CatalogueMessage> m_messages;
    QString m_strError;
};

/// The places of a text that are filled in at run time ("%1", "%L2", "%n"), sorted, repeated ones repeated.
QStringList Placeholders(const QString& strText);
