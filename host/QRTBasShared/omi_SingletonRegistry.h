#pragma once

#include "ovr_Export.h"

#include <typeinfo>

/// The one instance of each singleton class, whichever library made it, and the names under which they are
/// known.
class OVR_EXPORT omi_SingletonRegistry
{
public:
    /// The registry, made at its first use; it lives until the process ends.
    static omi_SingletonRegistry* Instance();

    omi_SingletonRegistry(const omi_SingletonRegistry&) = delete;
    omi_SingletonRegistry& operator=(const omi_SingletonRegistry&) = delete;

    /// Enters an instance under a name, in place of one entered before.
    void Add(const char* name, void* instance);

    /// Takes a name out; what stood under it lives on. An unknown name does nothing.
    void Remove(const char* name);

    /// What stands under a name, or null.
    void* Get(const char* name) const;

    /// Where the instance of a class is kept, for omi_Singleton and its kin: the same place for every
    /// library, good until the process ends, and null at first.
    void** Place(const std::type_info& type);

    /// The same, with a place of its own for each thread.
    static void** ThreadPlace(const std::type_info& type);

    /// Has `deletion` called with `instance` when the calling thread ends; what was made last goes first.
    static void DeleteAtThreadEnd(void* instance, void (*deletion)(void* instance));

private:
    omi_SingletonRegistry();
    ~omi_SingletonRegistry();

    struct Content;
    Content* content;
};

/// A class's name as it is written in the source.
class OVR_EXPORT omi_SingletonName
{
public:
    explicit omi_SingletonName(const std::type_info& type);
    omi_SingletonName(const omi_SingletonName&) = delete;
    omi_SingletonName& operator=(const omi_SingletonName&) = delete;
    ~omi_SingletonName();

    const char* CString() const { return text; }

private:
    char* text;
};
