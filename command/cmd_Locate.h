#pragma once

#include "cmd_Path.h"
#include "cmd_Value.h"
#include "ddr_Model.h"
#include "mdl_NamedObjects.h"

/// An object of a repository.
struct OVR_EXPORT cmd_Located
{
    const cls_Description& description;
    /// Seen as its root class; owned by the repository.
    const void* object;
};

/// The words of the repositories that are plugged into the model, in stored order.
OVR_EXPORT std::vector<std::string> cmd_RepositoryWords(const ddr_Model& model);

/// The repository of this word. Throws `cmd_Error`.
OVR_EXPORT const mdl_NamedObjects& cmd_ConstRepository(const ddr_Model& model, const std::string& word);
/// The same for changing.
OVR_EXPORT mdl_NamedObjects& cmd_Repository(ddr_Model& model, const std::string& word);

/// The object to which the first two steps of the path lead. Throws `cmd_Error`.
OVR_EXPORT cmd_Located cmd_Locate(const ddr_Model& model, const cmd_Path& path);

/// The plain value to which the steps behind the second lead from `object`, the plain value of the object
/// that they begin at. Throws `cmd_Error`.
OVR_EXPORT cls_Value& cmd_FindWithin(cls_Value& object, const cmd_Path& path);

/// The attribute of an object of this class in which the steps behind the second begin, which must be there.
/// Throws `cmd_Error`.
OVR_EXPORT const cls_Attribute& cmd_AttributeAt(const cls_Description& description, const cmd_Path& path);

/// What a script would write for that value.
OVR_EXPORT cmd_Value cmd_ScriptWithin(const cls_Value& object, const cmd_Path& path);
