#include "rfm_Statement.h"

#include "rfm_Database.h"
#include "rfm_Value.h"

#include <algorithm>
#include <bit>

namespace
{
static_assert(SQLITE_INTEGER == static_cast<int>(rfm_CellKind::Integer));
static_assert(SQLITE_FLOAT == static_cast<int>(rfm_CellKind::Real));
static_assert(SQLITE_TEXT == static_cast<int>(rfm_CellKind::Text));
static_assert(SQLITE_BLOB == static_cast<int>(rfm_CellKind::Blob));
static_assert(SQLITE_NULL == static_cast<int>(rfm_CellKind::Null));

int BindReal(sqlite3_stmt* statement, int position, double value)
{
    if (!rfm_NeedsBits(value)) [[likely]]
        return sqlite3_bind_double(statement, position, value);
    unsigned char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    if constexpr (std::endian::native == std::endian::big)
        std::reverse(bytes, bytes + sizeof bytes);
    return sqlite3_bind_blob(statement, position, bytes, sizeof bytes, SQLITE_TRANSIENT);
}
} // namespace

rfm_Statement::rfm_Statement(rfm_Database& database, const std::string& sql, const cow_String& table)
    : database(database), table(table)
{
    const int result =
        sqlite3_prepare_v3(database.Connection(), sql.c_str(), static_cast<int>(sql.size() + 1),
                           SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK)
        database.Raise(result, table);
}

rfm_Statement::~rfm_Statement()
{
    sqlite3_finalize(statement);
}

void rfm_Statement::Bind(int position, const rfm_Cell& cell)
{
    int result = SQLITE_OK;
    switch (cell.kind)
    {
    case rfm_CellKind::Integer:
        result = sqlite3_bind_int64(statement, position, cell.integer);
        break;
    case rfm_CellKind::Real:
        result = BindReal(statement, position, cell.real);
        break;
    case rfm_CellKind::Text:
        result = sqlite3_bind_text64(statement, position, cell.bytes, cell.size, SQLITE_STATIC, SQLITE_UTF8);
        break;
    case rfm_CellKind::Blob:
        result = sqlite3_bind_blob64(statement, position, cell.bytes, cell.size, SQLITE_STATIC);
        break;
    case rfm_CellKind::Null:
    case rfm_CellKind::Unset:
        result = sqlite3_bind_null(statement, position);
        break;
    }
    if (result != SQLITE_OK)
        database.Raise(result, table);
}

void rfm_Statement::Bind(int position, std::int64_t number)
{
    const int result = sqlite3_bind_int64(statement, position, number);
    if (result != SQLITE_OK)
        database.Raise(result, table);
}

bool rfm_Statement::Step(std::int64_t sought)
{
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    database.Raise(result, table, sought);
}

void rfm_Statement::Run(std::int64_t sought)
{
    while (Step(sought))
    {}
    Reset();
}

void rfm_Statement::Reset() noexcept
{
    sqlite3_reset(statement);
}

rfm_Cell rfm_Statement::Column(int column) const
{
    return rfm_CellOf(sqlite3_column_value(statement, column));
}

rfm_Cell rfm_Statement::Column(int column, rfm_Check& check) const
{
    return rfm_CheckedCellOf(sqlite3_column_value(statement, column), check);
}

int rfm_Statement::ColumnCount() const
{
    return sqlite3_column_count(statement);
}
