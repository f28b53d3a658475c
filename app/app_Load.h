#pragma once

#include "app_Store.h"

#include <string>

/// Makes a store of the text that `dump` prints, whatever the versions and classes in it. Throws `app_Error`
/// and `rom_StoreException`; the file is then as before.
void app_Load(const std::string& rows, const std::string& store, app_SaveMode mode);
