// An upgrade of a big table, against SQLite's own INSERT INTO ... SELECT from the same file into one of the
// same form, each from file to file and synced. One iteration is one whole store. `peakMiB` is what a process
// of its own takes.

#include "QRTRomCore.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassRegistrar.h"
#include "dbc_Row.h"
#include "dbc_Upgrade.h"
#include "rfm_Database.h"
#include "rom_ClassPlan.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace
{

constexpr unsigned classId = 0xFD0001;
constexpr int oldVersion = 203;
constexpr int newVersion = 424;

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "bench: %s\n", what);
    std::abort();
}

std::string FileFor(const std::string& side)
{
    const char* folder = std::getenv("TMPDIR");
    return std::string(folder ? folder : "/tmp") + "/rom_Upgrade_bench." + std::to_string(getpid()) + "." +
           side;
}

/// A class of eight attributes; the old form has one more, and `time` by another name.
void Describe(cls_ClassMetadata& metadata, const char* timeName)
{
    int index = 0;
    const auto add = [&](const char* name, cls_AttributeType type)
    { metadata.AddAttribute(cls_FieldHandle(index++, name), type, cls_RootId, cls_CollectionNone); };
    add("label", cls_TypeText);
    add(timeName, cls_TypeEnum);
    add("count", cls_TypeInt);
    add("smooth", cls_TypeDouble);
    add("begin", cls_TypeDouble);
    add("interval", cls_TypeDouble);
    add("isFixed", cls_TypeBool);
    if (metadata.Version() == oldVersion)
        add("value", cls_TypeEnum);
}

void* RenameTime(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle timeSpan("timeSpan", -1);
    static const rfm_FieldHandle time("time", -1);
    if (input.HasField(timeSpan) && input.HasValue(timeSpan))
        return nullptr;
    output.PutText(timeSpan, input.GetText(time));
    return nullptr;
}

enum class Step
{
    WithoutFunction,
    WithFunction
};

class OldVersion final : public dbc_OldClassVersion
{
public:
    explicit OldVersion(Step step) : step(step) {}
    void InitializeMetadata(cls_ClassRegistrar& registrar) override
    {
        Describe(*registrar.CreateClassMD("bench_Class", classId, oldVersion, nullptr, cls_RootId),
                 step == Step::WithFunction ? "time" : "timeSpan");
    }
    void SchemaChanges(dbc_DatabaseConverter& converter) override
    {
        dbc_ClassConverter& declared =
            converter.GetConverter(newVersion).Upgrade("bench_Class", classId, oldVersion);
        if (step == Step::WithFunction)
            declared.BindConversionFunction(RenameTime, "RenameTime");
    }

private:
    Step step;
};

void RegisterClasses(Step step)
{
    static int tally = 0;
    if (tally == 0)
    {
        QRTRomCore_initialize(tally);
        omi_Singleton<cls_MetadataRegistrar>::Instance()->initClassMetadata(
            [](cls_ClassRegistrar& registrar) {
                Describe(*registrar.CreateClassMD("bench_Class", classId, newVersion, nullptr, cls_RootId),
                         "timeSpan");
            });
    }
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
    omi_Singleton<dbc_OldClassRegistrar>::Instance()->Register(
        cow_NewHolder<dbc_OldClassVersion>(new OldVersion(step)), 4);
}

void FillTable(rfm_Database& database, const rfm_TableInfo& table, std::int64_t rows)
{
    rfm_Inserter inserter(database, rfm_TableForm::Of(table));
    for (std::int64_t i = 1; i <= rows; ++i)
    {
        cls_Uid uid;
        uid.AllocateUid();
        unsigned char bytes[cls_Uid::Size];
        uid.ToBytes(bytes);
        const std::string label = "Amplitude-" + std::to_string(i);
        const auto number = static_cast<double>(i);
        const rfm_Cell cells[] = {rfm_Cell::Blob(bytes, sizeof bytes),
                                  rfm_Cell::Text(label),
                                  rfm_Cell::Text(i % 2 == 0 ? "STEP" : "TOTAL"),
                                  rfm_Cell::Integer(i),
                                  rfm_Cell::Real(0.1 * number),
                                  rfm_Cell::Real(0.25 + number),
                                  rfm_Cell::Real(1.0 / number),
                                  rfm_Cell::Integer(i % 2),
                                  rfm_Cell::Text("RELATIVE")};
        inserter.Insert(i, cells);
    }
    inserter.Flush();
}

/// The old store with so many rows, made once.
const std::string& OldStore(Step step, std::int64_t rows)
{
    static std::map<std::pair<Step, std::int64_t>, std::string> made;
    std::string& path = made[{step, rows}];
    if (!path.empty())
        return path;
    path = FileFor((step == Step::WithFunction ? "function" : "plain") + std::to_string(rows));
    unlink(path.c_str());
    cls_ClassMetadata metadata("bench_Class", classId, oldVersion, nullptr, cls_RootId);
    Describe(metadata, step == Step::WithFunction ? "time" : "timeSpan");
    rfm_Database database(path.c_str(), rfm_Access::Create);
    const std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(metadata);
    database.CreateTable(plan->Table());
    FillTable(database, plan->Table(), rows);
    database.Commit();
    std::atexit(
        []
        {
            for (const auto& [place, file] : made)
                unlink(file.c_str());
        });
    return path;
}

void Upgrade(const std::string& oldStore, const std::string& newStore)
{
    dbc_Upgrade(oldStore.c_str()).Run(newStore.c_str());
}

/// Peak memory of a process that does nothing but the upgrade.
double PeakMiB(const std::string& oldStore, const std::string& newStore)
{
    const pid_t child = fork();
    if (child == 0)
    {
        Upgrade(oldStore, newStore);
        _exit(0);
    }
    int status = 0;
    rusage usage = {};
    Require(wait4(child, &status, 0, &usage) == child && status == 0, "the upgrade failed");
    unlink(newStore.c_str());
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

template <Step step>
void UpgradeStore(benchmark::State& state)
{
    RegisterClasses(step);
    const std::string& oldStore = OldStore(step, state.range(0));
    const std::string newStore = FileFor("new");
    state.counters["peakMiB"] = PeakMiB(oldStore, newStore);
    for (auto _ : state)
    {
        Upgrade(oldStore, newStore);
        state.PauseTiming();
        unlink(newStore.c_str());
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// What SQLite alone takes.
void InsertSelect(const std::string& oldStore, const std::string& newStore, const char* timeName)
{
    sqlite3* connection = nullptr;
    Require(sqlite3_open(newStore.c_str(), &connection) == SQLITE_OK, "cannot open");
    const std::string sql =
        "PRAGMA page_size = 16384; PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA;"
        "PRAGMA cache_size = 1000; ATTACH '" +
        oldStore +
        "' AS old; BEGIN IMMEDIATE;"
        "CREATE TABLE bench_Class (OID INTEGER PRIMARY KEY, \"##Uid\" BLOB, label TEXT, timeSpan TEXT, "
        "count INTEGER, smooth REAL, begin REAL, interval REAL, isFixed INTEGER, \"##Check\" INTEGER);"
        "INSERT INTO bench_Class SELECT OID, \"##Uid\", label, " +
        timeName + ", count, smooth, begin, interval, isFixed, \"##Check\" FROM old.bench_Class; COMMIT";
    Require(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK,
            sqlite3_errmsg(connection));
    sqlite3_close(connection);
}

template <Step step>
void PlainSqlite(benchmark::State& state)
{
    RegisterClasses(step);
    const std::string& oldStore = OldStore(step, state.range(0));
    const std::string newStore = FileFor("peer");
    for (auto _ : state)
    {
        InsertSelect(oldStore, newStore, step == Step::WithFunction ? "time" : "timeSpan");
        state.PauseTiming();
        unlink(newStore.c_str());
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(UpgradeStore<Step::WithoutFunction>)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(PlainSqlite<Step::WithoutFunction>)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(UpgradeStore<Step::WithFunction>)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(PlainSqlite<Step::WithFunction>)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
