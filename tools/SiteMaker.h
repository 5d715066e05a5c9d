#pragma once

#include "platform/SiteLibrary/Site.h"

#include <cstdint>

/// Made-up sites for trying things out at size.
namespace SiteMaker {

constexpr int MaxDoors = 200000;

/// A believable site with exactly this many doors (bounded to 1..MaxDoors): buildings and their floors as
/// groups, on every floor door controllers of four to sixteen doors (fewer only where the whole site has
/// fewer than four), with an exit button, a contact and a lock output for each door, and per building an
/// alarm host, cameras' recorders and an intercom station. About one device in twelve is offline, one in
/// fifty disabled. Every id is used once, from 1 upwards. The same count and seed give the same site on every
/// machine.
Site MakeSite(int iDoors, uint32_t uSeed);

} // namespace SiteMaker
