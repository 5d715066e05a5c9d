#include "platform/VantaModel/ACSGroupTreeModel.h"

namespace VantaModel {

ACSGroupTreeModel::ACSGroupTreeModel(VantaLogic::IDeviceManager* pDeviceManager, int iMode, QObject* parent)
    : GroupTreeModel(pDeviceManager, iMode, parent)
{
}

ACSGroupTreeModel::~ACSGroupTreeModel() = default;

} // namespace VantaModel
