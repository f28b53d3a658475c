#pragma once

#include "TemporaryFolder.h"
#include "dbc_Upgrade.h"
#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rfm_StoreText.h"

#include <fstream>
#include <map>
#include <sstream>
#include <string>

// Stores as text, before and after an upgrade.

/// The content of a file.
inline std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

/// The rows of a store but for their identities, of which an upgrade makes some.
inline std::string RowsOf(const std::string& store)
{
    rfm_Database database(store.c_str(), rfm_Access::Read);
    return rfm_StoreText(database, {.withUids = false});
}

/// The identity of each row, by class and number.
using Uids = std::map<std::pair<unsigned, std::int64_t>, std::string>;

inline Uids UidsOf(const std::string& store)
{
    Uids uids;
    rfm_Database database(store.c_str(), rfm_Access::Read);
    for (const rfm_TableInfo& table : database.Tables())
    {
        rfm_Cursor cursor(database, rfm_TableForm::Of(table));
        for (bool there = cursor.SeekFrom(INT64_MIN); there; there = cursor.Next())
            uids[{table.classId, cursor.Key()}] = cursor.Cells()[0].View();
    }
    return uids;
}

/// Makes `to` of `from`, a store of an earlier release.
inline void Upgrade(const std::string& from, const std::string& to)
{
    dbc_Upgrade(from.c_str()).Run(to.c_str());
}
