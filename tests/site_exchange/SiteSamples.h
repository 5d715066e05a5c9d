#pragma once

#include "platform/SiteLibrary/SiteFile.h"
#include "scheme_services/site/SiteProblem.h"

/// A small site with everything a site can have, names that are hard on a table among it.
inline Site SmallSite()
{
    Site site;
    site.groups = {{1, -1, QStringLiteral("Main building")},
                   {2, 1, QString::fromUtf8("Erdgeschoß, \"links\"; rechts\u00a0一楼")}};
    VantaLogic::DeviceInfo controller;
    controller.iDeviceId = 100;
    controller.iDeviceType = VantaLogic::DeviceTypeAccessControl;
    controller.iGroupId = 2;
    controller.strName = QStringLiteral("  Entrance \"A\" ");
    controller.channels = {
        {101, 100, 1, VantaLogic::ChannelTypeDoor, true, QStringLiteral("Main door")},
        {102, 100, 1, VantaLogic::ChannelTypeAlarmInput, false, QStringLiteral("Fire;contact")},
        {103, 100, 2147483647, 0, true, QStringLiteral("\"")}};
    VantaLogic::DeviceInfo host;
    host.iDeviceId = INT64_MAX;
    host.iDeviceType = 7;
    host.bEnabled = false;
    host.bOnline = false;
    host.strName = QStringLiteral("=1+1");
    site.devices = {controller, host};
    return site;
}

/// The same site reads the same.
inline QByteArray Printed(const Site& site)
{
    return SiteFile::ToText(site);
}

inline QString Printed(const SiteProblems& problems)
{
    QStringList lines;
    for (const SiteProblem& problem : problems.list) {
        lines.append(QStringLiteral("%1: %2").arg(problem.iLine).arg(problem.strReason));
    }
    return lines.join(QLatin1Char('\n'));
}

inline QVector<int> LinesOf(const SiteProblems& problems)
{
    QVector<int> lines;
    for (const SiteProblem& problem : problems.list) {
        lines.append(problem.iLine);
    }
    return lines;
}
