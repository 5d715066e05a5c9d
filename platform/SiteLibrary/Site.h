#pragma once

#include "platform/VantaLogic/Records.h"
#include "sitelibrary_export.h"

#include <QString>
#include <QVector>

/// The devices of a site as its site file holds them, in the file's order.
struct Site
{
    QVector<VantaLogic::GroupInfo> groups;
    QVector<VantaLogic::DeviceInfo> devices;
};
