#pragma once

#include "cls_Description.h"

#include <string>
#include <vector>

/// What a repository of objects by name offers to code that does not know their class. Objects are passed as
/// pointers to their root class; changes count as changes of the repository.
class OVR_EXPORT mdl_NamedObjects
{
public:
    /// The root class of the objects.
    virtual const cls_Description& ObjectRoot() const = 0;
    /// The names, in the repository's order.
    virtual std::vector<std::string> ObjectNames() const = 0;
    /// The object, owned by the repository; null if the name is absent or holds no object.
    virtual const void* ConstObject(const std::string& name) const = 0;
    /// The same for changing, private to this repository.
    virtual void* Object(const std::string& name) = 0;
    /// Takes the object over under this name, in place of one that has it already. Its class must be
    /// `ObjectRoot()` or derive from it. False if the repository refuses.
    virtual bool InsertObject(const std::string& name, cls_AnyObject object) = 0;
    /// True if the name was there.
    virtual bool RemoveObject(const std::string& name) = 0;
    /// Gives the object another name, its identity kept, in place of an object that has that name already.
    /// False if `from` is absent.
    virtual bool RenameObject(const std::string& from, const std::string& to) = 0;

protected:
    mdl_NamedObjects() = default;
    mdl_NamedObjects(const mdl_NamedObjects&) = default;
    mdl_NamedObjects& operator=(const mdl_NamedObjects&) = default;
    ~mdl_NamedObjects() = default;
};
