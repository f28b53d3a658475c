#include "app_Load.h"

#include "app_File.h"
#include "rfm_Database.h"
#include "rfm_StoreText.h"

void app_Load(const std::string& rows, const std::string& store, app_SaveMode mode)
{
    const std::string text = app_ReadFile(rows);
    const bool isNew = mode == app_SaveMode::New;
    rfm_Database database(store.c_str(), isNew ? rfm_Access::Create : rfm_Access::Replace);
    if (!isNew)
        database.RemoveContent();
    rfm_ReadStoreText(database, text, rows);
    database.Commit();
}
