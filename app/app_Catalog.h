#pragma once

#include "cls_Description.h"

#include <string>

/// All that the library has registered: modules with their types and messages, classes with their words and
/// attributes, enumerations, labels and old versions.
cls_Value app_Catalog();

/// One class of the catalogue, as it stands under "classes".
cls_Value app_CatalogOfClass(const cls_Description& description);

/// The class of this stored name or constructor word. Throws `app_Error`.
const cls_Description& app_FindClass(const std::string& nameOrWord);

/// The catalogue as JSON, a line for each attribute.
std::string app_CatalogJson(const cls_Value& catalog);

/// The modules with their classes, for people.
std::string app_CatalogText();
/// One class with all of its attributes, those of its bases first, for people.
std::string app_CatalogTextOfClass(const cls_Description& description);
