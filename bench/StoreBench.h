#pragma once

#include "mdl_Extension.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

// A save and a read of many objects, each against hand-written SQLite on the same rows in the same process:
// single-row prepared statements in one transaction for the save, a scan of every column of every row for the
// read. One iteration is one whole store. For one source file of a program.

namespace
{

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "bench: %s\n", what);
    std::abort();
}

/// A file of this process for one side of a benchmark.
std::string FileFor(const char* side)
{
    const char* folder = std::getenv("TMPDIR");
    return std::string(folder ? folder : "/tmp") + "/ovr_bench." + std::to_string(getpid()) + '.' + side;
}

/// A connection that ends with its scope.
class Connection
{
public:
    explicit Connection(const std::string& path)
    {
        Require(sqlite3_open(path.c_str(), &connection) == SQLITE_OK, "cannot open");
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { sqlite3_close(connection); }

    void Run(const std::string& text)
    {
        Require(sqlite3_exec(connection, text.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, text.c_str());
    }

    sqlite3_stmt* Prepare(const std::string& text)
    {
        sqlite3_stmt* statement = nullptr;
        Require(sqlite3_prepare_v2(connection, text.c_str(), -1, &statement, nullptr) == SQLITE_OK,
                text.c_str());
        return statement;
    }

private:
    sqlite3* connection = nullptr;
};

struct Cell
{
    int type;
    sqlite3_int64 integer;
    double real;
    std::string bytes;
};

struct Table
{
    std::string name;
    std::string form;
    int columns = 0;
    std::vector<Cell> cells;
};

std::string TextOf(sqlite3_stmt* statement, int column)
{
    const void* bytes = sqlite3_column_blob(statement, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return std::string(static_cast<const char*>(bytes), size);
}

Cell CellOf(sqlite3_stmt* statement, int column)
{
    Cell cell{sqlite3_column_type(statement, column), 0, 0.0, {}};
    if (cell.type == SQLITE_INTEGER)
        cell.integer = sqlite3_column_int64(statement, column);
    else if (cell.type == SQLITE_FLOAT)
        cell.real = sqlite3_column_double(statement, column);
    else if (cell.type != SQLITE_NULL && sqlite3_column_bytes(statement, column) > 0)
        cell.bytes = TextOf(statement, column);
    return cell;
}

/// Every row of a store, so that the peer stores the very same.
std::vector<Table> RowsOf(const std::string& path)
{
    Connection connection(path);
    std::vector<Table> tables;
    sqlite3_stmt* names = connection.Prepare("SELECT name, sql FROM sqlite_master WHERE type = 'table'");
    while (sqlite3_step(names) == SQLITE_ROW)
        tables.push_back({TextOf(names, 0), TextOf(names, 1), 0, {}});
    sqlite3_finalize(names);
    for (Table& table : tables)
    {
        sqlite3_stmt* rows = connection.Prepare("SELECT * FROM \"" + table.name + "\"");
        table.columns = sqlite3_column_count(rows);
        while (sqlite3_step(rows) == SQLITE_ROW)
        {
            for (int column = 0; column < table.columns; ++column)
                table.cells.push_back(CellOf(rows, column));
        }
        sqlite3_finalize(rows);
    }
    return tables;
}

void Bind(sqlite3_stmt* statement, int position, const Cell& cell)
{
    switch (cell.type)
    {
    case SQLITE_INTEGER:
        sqlite3_bind_int64(statement, position, cell.integer);
        break;
    case SQLITE_FLOAT:
        sqlite3_bind_double(statement, position, cell.real);
        break;
    case SQLITE_TEXT:
        sqlite3_bind_text(statement, position, cell.bytes.data(), static_cast<int>(cell.bytes.size()),
                          SQLITE_STATIC);
        break;
    case SQLITE_BLOB:
        sqlite3_bind_blob(statement, position, cell.bytes.data(), static_cast<int>(cell.bytes.size()),
                          SQLITE_STATIC);
        break;
    default:
        sqlite3_bind_null(statement, position);
    }
}

void InsertRow(sqlite3_stmt* statement, const Table& table, std::size_t row)
{
    for (int column = 0; column < table.columns; ++column)
        Bind(statement, column + 1,
             table.cells[row * static_cast<std::size_t>(table.columns) + static_cast<std::size_t>(column)]);
    Require(sqlite3_step(statement) == SQLITE_DONE, "cannot insert");
    sqlite3_reset(statement);
}

std::string InsertText(const Table& table)
{
    std::string text = "INSERT INTO \"" + table.name + "\" VALUES (?";
    for (int column = 1; column < table.columns; ++column)
        text += ", ?";
    return text + ")";
}

/// The rows by hand: one prepared statement for each table, the rows of all tables by turns, as objects have
/// them.
void SaveByHand(const std::vector<Table>& tables, const std::string& path)
{
    Connection connection(path);
    connection.Run(
        "PRAGMA page_size = 16384; PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL; BEGIN");
    std::vector<sqlite3_stmt*> statements;
    std::size_t mostRows = 0;
    for (const Table& table : tables)
    {
        connection.Run(table.form);
        statements.push_back(connection.Prepare(InsertText(table)));
        mostRows = std::max(mostRows, table.cells.size() / static_cast<std::size_t>(table.columns));
    }
    for (std::size_t row = 0; row < mostRows; ++row)
    {
        for (std::size_t i = 0; i < tables.size(); ++i)
        {
            if (row < tables[i].cells.size() / static_cast<std::size_t>(tables[i].columns))
                InsertRow(statements[i], tables[i], row);
        }
    }
    for (sqlite3_stmt* statement : statements)
        sqlite3_finalize(statement);
    connection.Run("COMMIT");
}

/// Looks at every column of every row once.
void Scan(const std::string& path)
{
    Connection connection(path);
    connection.Run("BEGIN");
    std::vector<std::string> names;
    sqlite3_stmt* list = connection.Prepare("SELECT name FROM sqlite_master WHERE type = 'table'");
    while (sqlite3_step(list) == SQLITE_ROW)
        names.push_back(TextOf(list, 0));
    sqlite3_finalize(list);
    for (const std::string& name : names)
    {
        sqlite3_stmt* rows = connection.Prepare("SELECT * FROM \"" + name + "\"");
        const int columns = sqlite3_column_count(rows);
        while (sqlite3_step(rows) == SQLITE_ROW)
        {
            for (int column = 0; column < columns; ++column)
            {
                const int type = sqlite3_column_type(rows, column);
                if (type == SQLITE_INTEGER)
                    benchmark::DoNotOptimize(sqlite3_column_int64(rows, column));
                else if (type == SQLITE_FLOAT)
                    benchmark::DoNotOptimize(sqlite3_column_double(rows, column));
                else if (type != SQLITE_NULL)
                    benchmark::DoNotOptimize(sqlite3_column_blob(rows, column));
            }
        }
        sqlite3_finalize(rows);
    }
    connection.Run("COMMIT");
}

long PeakMemoryKib()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// Forgets the peak so far, so that the next one is that of what comes.
void ResetPeakMemory()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

long ResidentKib()
{
    std::ifstream status("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    status >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

long PeakResidentKib()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
    {
        if (line.rfind("VmHWM:", 0) == 0)
            return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return PeakMemoryKib();
}

/// A repository of `count` objects, made once.
template <auto Make>
const auto& Made(int count)
{
    static std::map<int, decltype(Make(count))> made;
    const auto found = made.find(count);
    return found != made.end() ? found->second : made.emplace(count, Make(count)).first->second;
}

/// Saves a repository as the one root of a store.
template <class Repository>
void SaveRoot(const Repository& repository, const std::string& path)
{
    rom_StoreWriter writer(path.c_str(), rom_SaveMode::Create);
    writer.WriteRoot("objects", Repository::TypeId(), static_cast<const mdl_Extension*>(&repository));
    writer.Finish();
}

// Benchmarks of a repository that `Make` makes of so many objects as the argument says.

template <auto Make>
void WriteOurs(benchmark::State& state)
{
    const auto& objects = Made<Make>(static_cast<int>(state.range(0)));
    const std::string path = FileFor("ours");
    long extra = 0;
    for (auto _ : state)
    {
        state.PauseTiming();
        std::remove(path.c_str());
        ResetPeakMemory();
        const long before = ResidentKib();
        state.ResumeTiming();
        SaveRoot(objects, path);
        state.PauseTiming();
        extra = std::max(extra, PeakResidentKib() - before);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["extra_MiB"] = static_cast<double>(extra) / 1024.0;
    std::remove(path.c_str());
}

template <auto Make>
void WriteByHand(benchmark::State& state)
{
    const std::string model = FileFor("model");
    const std::string path = FileFor("sqlite");
    std::remove(model.c_str());
    SaveRoot(Made<Make>(static_cast<int>(state.range(0))), model);
    const std::vector<Table> tables = RowsOf(model);
    std::remove(model.c_str());
    for (auto _ : state)
    {
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
        SaveByHand(tables, path);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    std::remove(path.c_str());
}

template <auto Make>
void ReadOurs(benchmark::State& state)
{
    using Repository = std::decay_t<decltype(Made<Make>(0))>;
    const std::string path = FileFor("ours");
    std::remove(path.c_str());
    SaveRoot(Made<Make>(static_cast<int>(state.range(0))), path);
    for (auto _ : state)
    {
        rom_StoreReader reader(path.c_str());
        const cls_ErasedHandle& root = reader.ReadRoot("objects", Repository::TypeId());
        const auto& handle = cow_Restored<mdl_Extension, cow_Virtual<mdl_Extension>>(root);
        Require(static_cast<const Repository&>(*handle).Size() == state.range(0), "wrong size");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    std::remove(path.c_str());
}

template <auto Make>
void ReadByHand(benchmark::State& state)
{
    const std::string path = FileFor("sqlite");
    std::remove(path.c_str());
    SaveRoot(Made<Make>(static_cast<int>(state.range(0))), path);
    for (auto _ : state)
        Scan(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
    std::remove(path.c_str());
}

} // namespace
