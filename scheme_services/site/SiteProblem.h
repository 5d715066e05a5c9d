#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

/// Why a line of a site to import cannot be used.
struct SiteProblem
{
    int iLine = 0;     ///< from 1; 0 when it is about the whole text
    QString strReason; ///< translated
};

/// The problems of a text in the order of its lines. Beyond the limit they are only counted.
struct SiteProblems
{
    static constexpr int Limit = 1000;

    QVector<SiteProblem> list;
    int iFurther = 0; ///< problems that are not listed

    void Add(int iLine, const QString& strReason)
    {
        if (list.size() < Limit) {
            list.append({iLine, strReason});
        } else {
            ++iFurther;
        }
    }
    bool IsEmpty() const { return list.isEmpty(); }
};

/// Texts of site import and export for people.
struct SiteExchangeText
{
    Q_DECLARE_TR_FUNCTIONS(SiteExchange)
};
