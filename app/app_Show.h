#pragma once

#include "app_Model.h"

#include <string>

/// The objects of a model, a line for each, for people.
std::string app_ShowModel(const ddr_Model& model, const std::string& source);
/// The same as a value: repositories of objects with name, class, label and digest.
cls_Value app_ValueOfList(const ddr_Model& model);

/// One object with its attributes by word, its curve if it stands for one, and whether its rules hold, for
/// people.
std::string app_ShowObject(const app_Object& object);

/// The same of an object within an object, given as its plain value.
std::string app_ShowPart(const std::string& path, const cls_Value& part);

/// A value on one line, for people: a text as it is, an attribute that is not set as such.
std::string app_ShortText(const cls_Value& value);
/// The same, with no more than the size of what is no scalar.
std::string app_DigestText(const cls_Value& value);
