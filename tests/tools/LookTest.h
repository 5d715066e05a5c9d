#pragma once

#include "tests/scheme_evaluation/EvaluationSite.h"
#include "tests/tools/CommandKit.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QObject>

#include <memory>

/// What the tests of the commands that only look have in common: a site with five schemes, one of them with
/// everything that a scheme can do and one with faults.
class LookTest : public QObject
{
protected:
    static QString Text(const char* szUtf8) { return QString::fromUtf8(szUtf8); }

    static AlarmWeek WorkingHours()
    {
        AlarmWeek week;
        for (int day = 0; day < 7; ++day)
            week[day] = {};
        for (int day = 1; day < 6; ++day)
            week[day] = {{8 * 3600, 12 * 3600}, {13 * 3600, 86399}};
        return week;
    }

    /// The lobby's main door forced open: everything that a scheme can do, in working hours.
    static AlarmInfo RichScheme()
    {
        AlarmInfo info;
        info.bOpen = true;
        info.bOpenSound = true;
        info.bSendEmail = true;
        info.listAlarmOut = {{Text("104$3$0$0"), true, 45}, {Text("302$3$0$0"), false, 20}};
        info.listDoor = {{Text("102"), true}};
        info.videoSplit.SplitRow = 1;
        info.videoSplit.SplitCloum = 2;
        info.videoSplit.SplitCount = 2;
        info.videoSplit.videoLinks.insert(1, AlarmLinkVideo{Text("400$1$0$401"), 3, 0, true, true, 30});
        info.defenceTime = WorkingHours();
        return info;
    }

    static AlarmInfoMap Schemes()
    {
        AlarmInfo always;
        always.bOpen = true;
        always.bEmapTwinkle = true;
        AlarmInfo faulty;
        faulty.bOpen = true;
        faulty.listAlarmOut = {{Text("104$3$0$0"), true, 3}, {Text("999$3$0$0"), true, 20}};
        faulty.defenceTime[0] = {{0, 3600}, {3600, 7200}};
        faulty.defenceTime[6] = {{0, 3600}, {1800, 7200}};
        return {{{Text("100$1$0$101"), 101}, RichScheme()},
                {{Text("100$1$0$-1"), 22}, always},
                {{Text("100$3$1$103"), 2}, always},
                {{Text("100$1$0$102"), 201}, AlarmInfo()},
                {{Text("200$1$0$201"), 101}, faulty}};
    }

    static QJsonObject Json(const QString& strText)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(strText.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError)
            qWarning("%s", qPrintable(error.errorString()));
        return document.object();
    }

    /// Makes the data where it is not made yet, or was changed since.
    void MakeData()
    {
        QLocale::setDefault(QLocale::c());
        if (m_data != nullptr && !m_bChanged)
            return;
        m_data.reset();
        m_data = std::make_unique<ClientData>(EvaluationSite(), Schemes());
        m_bChanged = false;
    }

    Run Look(const char* szLine, const QStringList& further = {}) const
    {
        return Run(Words(szLine) + further, m_data->Directory());
    }

    /// For tests that change the data, which is made anew for the next one.
    ClientData& Changed()
    {
        m_bChanged = true;
        return *m_data;
    }

    std::unique_ptr<ClientData> m_data;

private:
    bool m_bChanged = false;
};
