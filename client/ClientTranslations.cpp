#include "client/ClientTranslations.h"

#include "client/ClientLog.h"

#include <QCoreApplication>
#include <QLibraryInfo>

ClientTranslations::ClientTranslations(const QString& strCode, const QStringList& directories)
{
    // The toolkit's own texts first: the last one installed is asked first.
    QStringList toolkit = directories;
    toolkit.append(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (strCode != QLatin1String("en")) {
        const QString strLocale = strCode == QLatin1String("zh_cn") ? QStringLiteral("zh_CN") : strCode;
        Install(QStringLiteral("qtbase_") + strLocale, toolkit);
    }
    if (!Install(QStringLiteral("acs_") + strCode, directories)) {
        CLIENT_LOG(lxl::LogWarning, "no translation catalogue for \"%s\"", qUtf8Printable(strCode));
    }
}

ClientTranslations::~ClientTranslations()
{
    for (const auto& translator : m_translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
}

bool ClientTranslations::Install(const QString& strName, const QStringList& directories)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& strDirectory : directories) {
        if (translator->load(strName, strDirectory) &&
            QCoreApplication::installTranslator(translator.get())) {
            m_translators.push_back(std::move(translator));
            return true;
        }
    }
    return false;
}

QString ClientTranslations::Choose(const QString& strAsked, const QString& strKept,
                                   const QString& strSystemLocale)
{
    if (!strAsked.isEmpty()) {
        return strAsked;
    }
    if (!strKept.isEmpty()) {
        return strKept;
    }
    return strSystemLocale.startsWith(QLatin1String("zh")) ? QStringLiteral("zh_cn") : QStringLiteral("en");
}

QLocale ClientTranslations::Locale(const QString& strCode, const QLocale& system)
{
    const bool bChinese = strCode == QLatin1String("zh_cn");
    const QLocale::Language eLanguage = bChinese ? QLocale::Chinese : QLocale::English;
    if (system.language() == eLanguage) {
        return system;
    }
    return bChinese ? QLocale(QLocale::Chinese, QLocale::China) : QLocale(QLocale::English);
}
