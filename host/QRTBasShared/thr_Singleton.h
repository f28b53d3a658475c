#pragma once

#include "mem_Allocation.h"
#include "omi_SingletonRegistry.h"

#include <new>

namespace thr_detail
{
/// The object kept at `place`, made by its default constructor if there is none yet.
template <class X>
X* InstanceAt(void** place)
{
    if (*place != nullptr)
        return static_cast<X*>(*place);
    void* storage = mem_OperatorNewThrow(sizeof(X));
    try
    {
        *place = ::new (storage) X;
    }
    catch (...)
    {
        mem_Free(storage);
        throw;
    }
    return static_cast<X*>(*place);
}
} // namespace thr_detail
