#pragma once

#include <cstdint>

namespace VantaModel {

/// Item data roles of every device tree node.
enum NodeRole : int
{
    NodeIdRole = 1057,      ///< the node's 64-bit id (qlonglong)
    NodeKindRole = 1058,    ///< NodeKind (int)
    ChannelKindRole = 1060, ///< channel kind 0 to 6 of a channel node (int), no data on other nodes
    NodeNumberRole = 1061,  ///< number on its device of a channel node (int), no data on other nodes
};

enum NodeKind : int32_t
{
    NodeKindGroup = 1,
    NodeKindDevice = 2,
    NodeKindChannel = 3,
    NodeKindEmap = 4, ///< an electronic map of the site; this host's sites hold none
};

} // namespace VantaModel
