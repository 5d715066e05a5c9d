#pragma once

// Operations of a platform interface stand at fixed positions ("slots"): their order of declaration is part
// of the binary contract between host and modules. These macros keep a run of unused slots. Never reorder,
// never remove; give a reserved slot a name only together with every host.

#define LX_RESERVED_SLOT(n)                                                                                  \
    virtual void Reserved##n()                                                                               \
    {                                                                                                        \
    }

#define LX_RESERVED_SLOTS_5(a, b, c, d, e)                                                                   \
    LX_RESERVED_SLOT(a) LX_RESERVED_SLOT(b) LX_RESERVED_SLOT(c) LX_RESERVED_SLOT(d) LX_RESERVED_SLOT(e)

// The ten slots t0 to t9.
#define LX_RESERVED_SLOTS_10(t)                                                                              \
    LX_RESERVED_SLOTS_5(t##0, t##1, t##2, t##3, t##4)                                                        \
    LX_RESERVED_SLOTS_5(t##5, t##6, t##7, t##8, t##9)
