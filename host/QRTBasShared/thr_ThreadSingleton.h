#pragma once

#include "thr_Singleton.h"

#include <memory>

/// One object of `X` for each thread, the same for all libraries. Any class with a default constructor will
/// do.
template <class X>
class OVR_EXPORT thr_ThreadSingleton
{
public:
    /// The calling thread's object, made at the first call and deleted when the thread ends.
    static X* Instance()
    {
        void** place = omi_SingletonRegistry::ThreadPlace(typeid(X));
        if (*place != nullptr)
            return static_cast<X*>(*place);
        X* made = thr_detail::InstanceAt<X>(place);
        omi_SingletonRegistry::DeleteAtThreadEnd(made, Delete);
        return made;
    }

private:
    static void Delete(void* instance)
    {
        std::destroy_at(static_cast<X*>(instance));
        mem_Free(instance);
    }
};
