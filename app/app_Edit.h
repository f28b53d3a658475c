#pragma once

#include "app_Path.h"
#include "app_Store.h"

#include <string>
#include <vector>

/// An attribute that was changed.
struct app_Change
{
    std::string word;
    cls_Value before;
    cls_Value after;
};

/// Sets attributes of the object that the path leads to, or of an object within it; each setting is
/// "word=value" with JSON or plain text as value. Throws `app_Error` or `cls_ValueError`; the model may then
/// hold a part of the changes.
std::vector<app_Change> app_SetValues(ddr_Model& model, const app_Path& path,
                                      const std::vector<std::string>& settings);

/// Adds a new object of a class, with settings as above. Throws as above, also if the name is taken and
/// `replace` is false.
void app_MakeObject(ddr_Model& model, const app_Path& path, const cls_Description& description,
                    const std::vector<std::string>& settings, bool replace);

/// Deletes the object. Throws `app_Error` if it is not there.
void app_DeleteObject(ddr_Model& model, const app_Path& path);

/// Gives the object another name. Throws `app_Error` if it is not there, or if the name is taken and
/// `replace` is false.
void app_RenameObject(ddr_Model& model, const app_Path& path, const std::string& name, bool replace);

/// Changes as a value.
cls_Value app_ValueOfChanges(const std::string& path, const std::vector<app_Change>& changes);

/// How to save to a store: in place if there is one and `force` is given. Throws `app_Error` if there is one
/// otherwise.
app_SaveMode app_SaveModeFor(const std::string& store, bool force);
