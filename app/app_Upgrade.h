#pragma once

#include <string>

struct app_UpgradeOptions
{
    bool dryRun = false; ///< only tell what would be done
    bool json = false;
};

/// Makes a store of this release of an old one, and prints what changes. There must be no file `newStore`,
/// which may be empty for a dry run. Throws `app_Error` or `rom_StoreException`.
void app_Upgrade(const std::string& oldStore, const std::string& newStore, const app_UpgradeOptions& options);
