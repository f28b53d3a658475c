#pragma once

#include "app_Model.h"

#include <string>

/// Reads the model of a store. Throws `rom_StoreException`.
ddr_ModelHandle app_ReadStore(const std::string& path);

/// What becomes of a store that is there already.
enum class app_SaveMode
{
    New,    ///< There must be none.
    InPlace ///< Its model is replaced; it holds the old or the new one at any time.
};

/// Writes a model to a store. Throws `rom_StoreException`.
void app_WriteStore(const ddr_ModelHandle& model, const std::string& path, app_SaveMode mode);

/// Reads a model from a store or from a JSON file, whichever the file is. Throws `app_Error` or
/// `rom_StoreException`.
ddr_ModelHandle app_ReadModel(const std::string& path);

/// Reads a model from a JSON text. Throws `app_Error`, which names `source` and the line.
ddr_ModelHandle app_ReadJsonModel(const std::string& text, const std::string& source);

/// A model as JSON, which reads back as the same model.
std::string app_WriteJsonModel(const ddr_Model& model);

/// Whether a file is to be read as JSON: its name says so, or its first character opens an object or array.
bool app_IsJsonFile(const std::string& path);
