#pragma once

#include "mem_Allocation.h"
#include "omi_SingletonRegistry.h"

#include <cstdlib>
#include <memory>
#include <new>

template <class X>
class omi_Singleton;

/// Base of a class `X` of which there is one object, reached through omi_Singleton<X>. The object is entered
/// in the registry under the name of its class as long as it lives. `X` has a public default constructor, and
/// its name must mean the same in every library: it stands in no anonymous namespace.
template <class X>
class OVR_EXPORT omi_SingletonBase
{
public:
    omi_SingletonBase(const omi_SingletonBase&) = delete;
    omi_SingletonBase& operator=(const omi_SingletonBase&) = delete;

protected:
    /// Makes this object the instance.
    omi_SingletonBase()
    {
        omi_SingletonRegistry::Instance()->Add(omi_SingletonName(typeid(X)).CString(), this);
        *Place() = this;
    }

    ~omi_SingletonBase()
    {
        if (*Place() != this)
            return;
        *Place() = nullptr;
        omi_SingletonRegistry::Instance()->Remove(omi_SingletonName(typeid(X)).CString());
    }

private:
    friend class omi_Singleton<X>;

    /// Where the instance is kept; asked for once in each library.
    static void** Place()
    {
        static void** place = nullptr;
        if (place == nullptr)
            place = omi_SingletonRegistry::Instance()->Place(typeid(X));
        return place;
    }
};

/// Access to the one object of `X`, a class derived from omi_SingletonBase<X>: one for the whole process,
/// whatever library asks.
template <class X>
class OVR_EXPORT omi_Singleton
{
public:
    /// The object, made at the first call. Aborts when the constructor of `X` has left another one in its
    /// place.
    static X* Instance()
    {
        const void* instance = *omi_SingletonBase<X>::Place();
        return instance != nullptr ? Object() : Make();
    }

    /// Deletes the object, if there is one; the next Instance makes a new one.
    static void Finalize()
    {
        X* object = Object();
        if (object == nullptr)
            return;
        std::destroy_at(object);
        mem_Free(object);
    }

private:
    static X* Object()
    {
        return static_cast<X*>(static_cast<omi_SingletonBase<X>*>(*omi_SingletonBase<X>::Place()));
    }

    [[gnu::noinline]] static X* Make()
    {
        void* storage = mem_OperatorNewThrow(sizeof(X));
        X* object = nullptr;
        try
        {
            object = ::new (storage) X;
        }
        catch (...)
        {
            mem_Free(storage);
            throw;
        }
        if (Object() != object)
            std::abort();
        return object;
    }
};
