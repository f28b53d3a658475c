#pragma once

#include "thr_Singleton.h"

/// One object of `X` for the whole process, the same for all libraries. Any class with a default constructor
/// will do.
template <class X>
class OVR_EXPORT thr_GlobalSingleton
{
public:
    /// The object, made at the first call; it lives until the process ends.
    static X* Instance()
    {
        static void** place = nullptr;
        if (place == nullptr)
            place = omi_SingletonRegistry::Instance()->Place(typeid(thr_GlobalSingleton));
        return thr_detail::InstanceAt<X>(place);
    }
};
