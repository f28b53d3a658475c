#include "omi_SingletonRegistry.h"

#include <cstdlib>
#include <cxxabi.h>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

struct omi_SingletonRegistry::Content
{
    std::unordered_map<std::string, void*> byName;
    std::unordered_map<std::type_index, void*> byType;
};

namespace
{
/// What one thread has of its own.
struct ThreadContent
{
    ThreadContent() = default;
    ThreadContent(const ThreadContent&) = delete;
    ThreadContent& operator=(const ThreadContent&) = delete;

    ~ThreadContent()
    {
        for (auto last = deletions.rbegin(); last != deletions.rend(); ++last)
            last->second(last->first);
    }

    std::unordered_map<std::type_index, void*> places;
    std::vector<std::pair<void*, void (*)(void*)>> deletions;
};

thread_local ThreadContent threadContent;
} // namespace

omi_SingletonRegistry::omi_SingletonRegistry() : content(new Content) {}

omi_SingletonRegistry::~omi_SingletonRegistry()
{
    delete content;
}

omi_SingletonRegistry* omi_SingletonRegistry::Instance()
{
    // Never deleted: singletons that outlive the finalizers are still found, and left, by whatever runs last.
    static omi_SingletonRegistry* const registry = new omi_SingletonRegistry;
    return registry;
}

void omi_SingletonRegistry::Add(const char* name, void* instance)
{
    content->byName[name] = instance;
}

void omi_SingletonRegistry::Remove(const char* name)
{
    content->byName.erase(name);
}

void* omi_SingletonRegistry::Get(const char* name) const
{
    const auto found = content->byName.find(name);
    return found == content->byName.end() ? nullptr : found->second;
}

void** omi_SingletonRegistry::Place(const std::type_info& type)
{
    return &content->byType[type];
}

void** omi_SingletonRegistry::ThreadPlace(const std::type_info& type)
{
    return &threadContent.places[type];
}

void omi_SingletonRegistry::DeleteAtThreadEnd(void* instance, void (*deletion)(void* instance))
{
    threadContent.deletions.emplace_back(instance, deletion);
}

omi_SingletonName::omi_SingletonName(const std::type_info& type)
{
    int status = 0;
    text = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    if (text == nullptr)
        throw std::bad_alloc();
}

omi_SingletonName::~omi_SingletonName()
{
    std::free(text);
}
