#include "tst_Store.h"

#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sqlite3.h>
#include <stdexcept>
#include <vector>

void tst_Save(const std::string& path, const tst_Part& part)
{
    tst_RequireClasses();
    rom_StoreWriter writer(path.c_str());
    writer.WriteRoot("model", part.DynTypeId(), &part);
    writer.Finish();
}

tst_Part::Handle tst_Load(const std::string& path)
{
    tst_RequireClasses();
    rom_StoreReader reader(path.c_str());
    return cow_Restored<tst_Part, cow_Virtual<tst_Part>>(reader.ReadRoot("model", tst_Part::TypeId()));
}

namespace
{
class Connection
{
public:
    explicit Connection(const std::string& path)
    {
        if (sqlite3_open_v2(path.c_str(), &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) !=
            SQLITE_OK)
            Raise();
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { sqlite3_close(connection); }

    std::string Run(const std::string& sql)
    {
        std::string first;
        const char* rest = sql.c_str();
        while (*rest)
        {
            sqlite3_stmt* statement = nullptr;
            if (sqlite3_prepare_v2(connection, rest, -1, &statement, &rest) != SQLITE_OK)
                Raise();
            int result = SQLITE_ROW;
            while (statement && (result = sqlite3_step(statement)) == SQLITE_ROW)
            {
                if (const unsigned char* text = sqlite3_column_text(statement, 0); text && first.empty())
                    first = reinterpret_cast<const char*>(text);
            }
            if (sqlite3_finalize(statement) != SQLITE_OK)
                Raise();
        }
        return first;
    }

    std::string All(const std::string& sql)
    {
        std::string rows;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            Raise();
        while (sqlite3_step(statement) == SQLITE_ROW)
        {
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
            {
                const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, i));
                rows += std::to_string(sqlite3_column_type(statement, i)) + ":";
                rows.append(bytes ? bytes : "",
                            static_cast<std::size_t>(sqlite3_column_bytes(statement, i))) += "|";
            }
            rows += "\n";
        }
        if (sqlite3_finalize(statement) != SQLITE_OK)
            Raise();
        return rows;
    }

private:
    [[noreturn]] void Raise() { throw std::runtime_error(sqlite3_errmsg(connection)); }

    sqlite3* connection = nullptr;
};
} // namespace

void tst_Execute(const std::string& path, const std::string& sql)
{
    Connection(path).Run(sql);
}

std::string tst_Query(const std::string& path, const std::string& sql)
{
    return Connection(path).Run(sql);
}

std::string tst_QueryAll(const std::string& path, const std::string& sql)
{
    return Connection(path).All(sql);
}

std::string tst_ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : 0;
    std::string content(static_cast<std::size_t>(std::max<std::streamoff>(size, 0)), '\0');
    file.seekg(0);
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

void tst_WriteFile(const std::string& path, const std::string& content)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}
