#pragma once

#include "TemporaryFolder.h"
#include "rom_StoreException.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <string>

/// A store of one object, in a folder of its own, to be broken by hand and read.
class BrokenStore
{
public:
    void Save(unsigned classId, const void* object) const
    {
        rom_StoreWriter writer(path.c_str());
        writer.WriteRoot("object", classId, object);
        writer.Finish();
    }

    /// Runs SQL that changes one row.
    void Execute(const std::string& sql) const
    {
        sqlite3* connection = nullptr;
        ASSERT_EQ(SQLITE_OK, sqlite3_open(path.c_str(), &connection));
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr))
            << sqlite3_errmsg(connection);
        EXPECT_EQ(1, sqlite3_changes(connection));
        EXPECT_EQ(SQLITE_OK, sqlite3_close(connection));
    }

    /// What is wrong with the store, or "nothing thrown".
    std::string MessageOfReading(unsigned classId) const
    {
        try
        {
            rom_StoreReader reader(path.c_str());
            reader.ReadRoot("object", classId);
        }
        catch (const rom_StoreException& error)
        {
            return error.Message().CString();
        }
        return "nothing thrown";
    }

private:
    TemporaryFolder folder;
    std::string path = folder / "store";
};
