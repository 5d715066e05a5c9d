#pragma once

// Version of the contract between hosts and modules: the interfaces, their slots, and the platform libraries.
// The major number changes when a module built before would no longer run, the minor one when something was
// added. The build reads the numbers from these lines, and a module's metadata carries them.
#define LX_PLATFORM_VERSION_MAJOR 1
#define LX_PLATFORM_VERSION_MINOR 0
