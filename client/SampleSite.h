#pragma once

#include "platform/SiteLibrary/Site.h"

/// The site that a first start writes, so that there is something to look at and to try out: two buildings
/// with floors, access controllers with doors, alarm inputs and outputs (one of them offline, one with a
/// disabled door), an alarm host, a virtual device with outputs, and cameras; names in several scripts.
Site MakeSampleSite();
