#pragma once

#include <cstddef>
#include <cstring>

/// The position of a virtual operation among those of its class, from 0 on: a pointer to it is, on the one
/// platform of the library, one more than the operation's offset in the table.
template <class Operation>
std::size_t VirtualSlotOf(Operation operation)
{
    std::size_t offset = 0;
    static_assert(sizeof operation >= sizeof offset);
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*);
}
