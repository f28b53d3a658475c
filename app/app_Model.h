#pragma once

#include "cmd_Path.h"
#include "ddr_Model.h"
#include "mdl_NamedObjects.h"

#include <functional>
#include <string>
#include <vector>

/// One object of a model.
struct app_Object
{
    std::string repositoryWord;
    std::string name;
    const cls_Description& description; ///< Of the object's actual class.
    const void* object;                 ///< Seen as its root class; owned by the model.
};

/// Path of a named object, as "amplitudes['ramp']".
std::string app_PathOf(const std::string& repositoryWord, const std::string& name);

/// The repository of this word. Throws `cls_ValueError` if the model has none.
mdl_NamedObjects& app_Repository(ddr_Model& model, const std::string& word);

/// Count of all objects.
int app_ObjectCount(const ddr_Model& model);

using app_Visit = std::function<void(const app_Object&)>;

/// Calls `visit` with each object of each repository, in order.
void app_ForEachObject(const ddr_Model& model, const app_Visit& visit);
/// The same for the objects of one repository.
void app_ForEachObjectOf(const ddr_Model& model, const std::string& repositoryWord, const app_Visit& visit);

/// The object of the model that the path begins with. Throws `cmd_Error` if it is not there.
app_Object app_FindObject(const ddr_Model& model, const cmd_Path& path);

/// Puts the object that `value` describes into the model. Throws `cls_ValueError`, also if the name is taken.
void app_InsertValue(ddr_Model& model, const std::string& repositoryWord, const std::string& name,
                     const cls_Value& value);

/// The object that `value` describes, of the registered class that it names. Throws `cls_ValueError`.
cls_AnyObject app_ObjectOfValue(const cls_Value& value);
