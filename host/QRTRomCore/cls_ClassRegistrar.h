#pragma once

#include "cls_ClassMetadata.h"

#include <memory>
#include <unordered_map>

/// A set of class descriptions, by class id. Owns them.
class OVR_EXPORT cls_ClassRegistrar
{
public:
    cls_ClassRegistrar();
    cls_ClassRegistrar(const cls_ClassRegistrar&) = delete;
    cls_ClassRegistrar& operator=(const cls_ClassRegistrar&) = delete;
    ~cls_ClassRegistrar();

    /// Takes ownership of `metadata`, in place of an earlier description of the same class, and returns it.
    cls_ClassMetadata* AddClassMD(cls_ClassMetadata* metadata);
    /// Builds and adds a description in one step.
    cls_ClassMetadata* CreateClassMD(const cow_String& name, unsigned classId, int version,
                                     cls_ClassMetadata::PlainConstructor plainConstructor,
                                     unsigned baseClassId);
    /// Drops the description of a class that no longer stands by itself; nothing if it is not there under
    /// that name.
    void DeleteClass(const cow_String& name, unsigned classId);

    /// The description of a class, or null.
    const cls_ClassMetadata* Find(unsigned classId) const;
    /// Count of descriptions.
    std::size_t Count() const { return order.size(); }

    /// The description at a position below `Count()`, in the order in which their classes were first added.
    const cls_ClassMetadata* At(std::size_t position) const { return Find(order[position]); }

private:
    std::unordered_map<unsigned, std::unique_ptr<cls_ClassMetadata>> byId;
    std::vector<unsigned> order;
};
