#pragma once

#include "platform/VantaModel/GroupTreeModel.h"

namespace VantaModel {

/// The device tree of access-control pages.
class VANTAMODEL_EXPORT ACSGroupTreeModel : public GroupTreeModel
{
    Q_OBJECT

public:
    ACSGroupTreeModel(VantaLogic::IDeviceManager* pDeviceManager, int iMode, QObject* parent = nullptr);
    ~ACSGroupTreeModel() override;
};

} // namespace VantaModel
