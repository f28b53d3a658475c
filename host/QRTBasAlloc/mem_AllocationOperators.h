#pragma once

#include "mem_Allocation.h"

#include <cstddef>

/// Empty base of the value classes: objects made by `new` come from mem_OperatorNewThrow and go back through
/// mem_Free, so that whoever holds the last share can free them without knowing who made them.
class mem_AllocationOperators
{
public:
    static void* operator new(std::size_t size) { return mem_OperatorNewThrow(size); }
    static void* operator new[](std::size_t size) { return mem_OperatorNewThrow(size); }
    static void operator delete(void* block) noexcept { mem_Free(block); }
    static void operator delete[](void* block) noexcept { mem_Free(block); }

    // A class-level operator new hides the global placement form, which the containers need.
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void*, void*) noexcept {}
};
