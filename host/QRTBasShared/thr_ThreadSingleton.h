#pragma once

#include "thr_Singleton.h"

/// One object of `X` for each thread, the same for all libraries. Any class with a default constructor will
/// do.
template <class X>
class OVR_EXPORT thr_ThreadSingleton
{
public:
    /// The calling thread's object, made at the first call; it is never deleted.
    static X* Instance() { return thr_detail::InstanceAt<X>(omi_SingletonRegistry::ThreadPlace(typeid(X))); }
};
