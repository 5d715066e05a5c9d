#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// The catalogues of one language, installed in the application for the life of this object.
class ClientTranslations
{
public:
    /// `strCode` is "en" or "zh_cn". A catalogue that is missing leaves the source texts and is logged.
    ClientTranslations(const QString& strCode, const QStringList& directories);
    ~ClientTranslations();
    ClientTranslations(const ClientTranslations&) = delete;
    ClientTranslations& operator=(const ClientTranslations&) = delete;

    int InstalledCatalogues() const { return static_cast<int>(m_translators.size()); }

    /// The language to start with: what was asked for, else what is kept, else what the system speaks.
    static QString Choose(const QString& strAsked, const QString& strKept, const QString& strSystemLocale);

    /// How dates and numbers are written in a language: as the system does where it speaks the language, else
    /// as is usual in it.
    static QLocale Locale(const QString& strCode, const QLocale& system);

private:
    bool Install(const QString& strName, const QStringList& directories);
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
