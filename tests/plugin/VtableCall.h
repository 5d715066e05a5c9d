#pragma once

// Calls an operation of an interface by its position in the table of virtual functions, as a host does that
// was compiled against its own copy of the interface. Only for compilers of the Itanium C++ ABI.
#if defined(__GNUC__)

#include <cstddef>
#include <cstring>
#include <utility>

/// Where the virtual destructor stands; it takes two entries of the table.
enum class Destructor
{
    AtSlot0,
    AtSlot1
};

inline std::size_t TableEntry(int iSlot, Destructor destructor)
{
    const int destructorSlot = destructor == Destructor::AtSlot0 ? 0 : 1;
    return static_cast<std::size_t>(iSlot > destructorSlot ? iSlot + 1 : iSlot);
}

/// Calls what stands at an entry of the table. `pInterface` is the address of the interface's own part.
template <class Result, class... Arguments>
__attribute__((no_sanitize("undefined"))) Result CallEntry(void* pInterface, std::size_t iEntry,
                                                           Arguments... arguments)
{
    using Operation = Result (*)(void*, Arguments...);
    char* table = nullptr;
    std::memcpy(&table, pInterface, sizeof table);
    Operation operation = nullptr;
    std::memcpy(&operation, table + iEntry * sizeof(void*), sizeof operation);
    return operation(pInterface, std::forward<Arguments>(arguments)...);
}

template <class Result, class... Arguments>
Result CallSlot(void* pInterface, int iSlot, Destructor destructor, Arguments... arguments)
{
    return CallEntry<Result, Arguments...>(pInterface, TableEntry(iSlot, destructor),
                                           std::forward<Arguments>(arguments)...);
}

/// Destroys and frees an object through the second entry of its destructor.
inline void DeleteThroughTable(void* pInterface, int iDestructorSlot)
{
    CallEntry<void>(pInterface, static_cast<std::size_t>(iDestructorSlot) + 1);
}

#endif
