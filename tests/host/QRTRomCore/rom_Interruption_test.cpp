// Saves and upgrades that are cut short: at every write, sync, truncation and removal of a file the process
// is killed, the power fails, or the operation does, until one gets through. The file then holds the old
// model or the new one, whole; an upgrade leaves the old file as it was, and no new one or all of it.

#include "dbc_Upgrade.h"
#include "rom_StoreException.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"
#include "tst_Store.h"
#include "tst_Upgrade.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using Handle = tst_Part::Handle;

enum class Fault
{
    None,
    Kill,      ///< the process ends, what it wrote stays
    PowerLoss, ///< the process ends, and what was not synced is lost
    DiskFull,
    WriteError
};

/// What is to happen, and when. The file system below asks it before each operation that changes a file.
struct Plan
{
    Fault fault = Fault::None;
    int remaining = 0; ///< operations until then
    bool hasHappened = false;
};

Plan plan;

constexpr int killedStatus = 77;

/// A file of the default file system, with what would be lost if the power failed: the content at the last
/// sync.
struct FaultyFile
{
    sqlite3_file base;
    sqlite3_file* real;
    std::string* name;
    std::string* synced;
};

std::map<std::string, FaultyFile*>& OpenFiles()
{
    static std::map<std::string, FaultyFile*> files;
    return files;
}

sqlite3_vfs* Default()
{
    static sqlite3_vfs* const vfs = sqlite3_vfs_find("unix");
    return vfs;
}

FaultyFile& Of(sqlite3_file* file)
{
    return *reinterpret_cast<FaultyFile*>(file);
}

[[noreturn]] void LoseUnsynced()
{
    for (const auto& [name, file] : OpenFiles())
        tst_WriteFile(name, *file->synced);
    _exit(killedStatus);
}

/// The result with which an operation is to fail, or SQLITE_OK for it to be done.
int Happen()
{
    if (plan.fault == Fault::None || plan.remaining-- > 0)
        return SQLITE_OK;
    plan.hasHappened = true;
    switch (plan.fault)
    {
    case Fault::Kill:
        _exit(killedStatus);
    case Fault::PowerLoss:
        LoseUnsynced();
    case Fault::DiskFull:
        return SQLITE_FULL;
    case Fault::WriteError:
    case Fault::None:
        break;
    }
    return SQLITE_IOERR_WRITE;
}

int Close(sqlite3_file* file)
{
    FaultyFile& faulty = Of(file);
    OpenFiles().erase(*faulty.name);
    const int result = faulty.real->pMethods->xClose(faulty.real);
    sqlite3_free(faulty.real);
    delete faulty.name;
    delete faulty.synced;
    return result;
}

int Read(sqlite3_file* file, void* buffer, int count, sqlite3_int64 offset)
{
    return Of(file).real->pMethods->xRead(Of(file).real, buffer, count, offset);
}

int Write(sqlite3_file* file, const void* buffer, int count, sqlite3_int64 offset)
{
    sqlite3_file* real = Of(file).real;
    if (const int result = Happen(); result != SQLITE_OK)
    {
        // Half of it is done.
        real->pMethods->xWrite(real, buffer, count / 2, offset);
        return result;
    }
    return real->pMethods->xWrite(real, buffer, count, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    if (const int result = Happen(); result != SQLITE_OK)
        return result;
    return Of(file).real->pMethods->xTruncate(Of(file).real, size);
}

int Sync(sqlite3_file* file, int flags)
{
    if (const int result = Happen(); result != SQLITE_OK)
        return result;
    const int result = Of(file).real->pMethods->xSync(Of(file).real, flags);
    if (result == SQLITE_OK && plan.fault == Fault::PowerLoss)
        *Of(file).synced = tst_ReadFile(*Of(file).name);
    return result;
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return Of(file).real->pMethods->xFileSize(Of(file).real, size);
}

int Lock(sqlite3_file* file, int level)
{
    return Of(file).real->pMethods->xLock(Of(file).real, level);
}

int Unlock(sqlite3_file* file, int level)
{
    return Of(file).real->pMethods->xUnlock(Of(file).real, level);
}

int CheckReservedLock(sqlite3_file* file, int* isLocked)
{
    return Of(file).real->pMethods->xCheckReservedLock(Of(file).real, isLocked);
}

int FileControl(sqlite3_file* file, int operation, void* argument)
{
    return Of(file).real->pMethods->xFileControl(Of(file).real, operation, argument);
}

int SectorSize(sqlite3_file* file)
{
    return Of(file).real->pMethods->xSectorSize(Of(file).real);
}

int Characteristics(sqlite3_file* file)
{
    return Of(file).real->pMethods->xDeviceCharacteristics(Of(file).real);
}

const sqlite3_io_methods methods = {1,
                                    Close,
                                    Read,
                                    Write,
                                    Truncate,
                                    Sync,
                                    FileSize,
                                    Lock,
                                    Unlock,
                                    CheckReservedLock,
                                    FileControl,
                                    SectorSize,
                                    Characteristics,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    FaultyFile& faulty = Of(file);
    faulty.base.pMethods = nullptr;
    faulty.real = static_cast<sqlite3_file*>(sqlite3_malloc(Default()->szOsFile));
    std::memset(faulty.real, 0, static_cast<std::size_t>(Default()->szOsFile));
    const int result = Default()->xOpen(Default(), name, faulty.real, flags, outFlags);
    if (result != SQLITE_OK)
    {
        sqlite3_free(faulty.real);
        return result;
    }
    faulty.base.pMethods = &methods;
    faulty.name = new std::string(name ? name : "");
    faulty.synced = new std::string(tst_ReadFile(*faulty.name));
    OpenFiles()[*faulty.name] = &faulty;
    return SQLITE_OK;
}

int Delete(sqlite3_vfs*, const char* name, int syncFolder)
{
    if (const int result = Happen(); result != SQLITE_OK)
        return SQLITE_IOERR_DELETE;
    return Default()->xDelete(Default(), name, syncFolder);
}

/// Puts the faulty file system in the place of the default one while it lives.
class FaultyFileSystem
{
public:
    FaultyFileSystem() : vfs(*Default())
    {
        vfs.szOsFile = sizeof(FaultyFile);
        vfs.zName = "faulty";
        vfs.xOpen = Open;
        vfs.xDelete = Delete;
        sqlite3_vfs_register(&vfs, 1);
    }
    FaultyFileSystem(const FaultyFileSystem&) = delete;
    FaultyFileSystem& operator=(const FaultyFileSystem&) = delete;
    ~FaultyFileSystem()
    {
        sqlite3_vfs_unregister(&vfs);
        plan = {};
    }

private:
    sqlite3_vfs vfs;
};

std::unique_ptr<tst_Node> Model(int count)
{
    tst_RequireClasses();
    auto root = std::make_unique<tst_Node>();
    root->number = count;
    for (int i = 0; i < count; ++i)
        root->byNumber.emplace_back(i, Handle(tst_NewOddWhole()));
    return root;
}

class Interruption : public testing::TestWithParam<Fault>
{
protected:
    using Deed = std::function<void()>;

    /// Does `deed`, which writes to `path`; true if the fault came before it was through.
    bool IsInterrupted(const std::string& path, const Deed& deed, int operations) const
    {
        if (GetParam() == Fault::DiskFull || GetParam() == Fault::WriteError)
            return Fails(path, deed, operations);
        const pid_t child = fork();
        if (child == 0)
        {
            Fails(path, deed, operations);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_TRUE(WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == killedStatus);
        return WEXITSTATUS(status) == killedStatus;
    }

    bool Fails(const std::string& path, const Deed& deed, int operations) const
    {
        const FaultyFileSystem fileSystem;
        plan = {GetParam(), operations, false};
        try
        {
            deed();
        }
        catch (const rom_StoreException& error)
        {
            EXPECT_TRUE(plan.hasHappened) << error.what();
            EXPECT_STREQ(path.c_str(), error.StoreFile().CString());
            return true;
        }
        // A fault in what follows the commit, as the removal of a journal that is empty, need not be told.
        return plan.hasHappened && GetParam() != Fault::DiskFull && GetParam() != Fault::WriteError;
    }

    tst_Folder folder;
};

constexpr int mostOperations = 5000;

TEST_P(Interruption, OfASaveInPlaceLeavesTheOldOrTheNewModel)
{
    const std::string path = folder / "store";
    const std::unique_ptr<tst_Node> before = Model(30);
    const std::unique_ptr<tst_Node> after = Model(31);
    tst_Save(path, *before);
    const std::string original = tst_ReadFile(path);
    const std::string oldModel = tst_Describe(before.get());
    const std::string newModel = tst_Describe(after.get());
    int operations = 0;
    while (IsInterrupted(
        path, [&] { tst_Save(path, *after); }, operations))
    {
        const std::string found = tst_Describe(tst_Load(path).ConstGet());
        EXPECT_TRUE(found == oldModel || found == newModel) << "after " << operations << " operations";
        // A journal that nothing was saved to yet may stay until the next save.
        std::filesystem::remove(path + "-journal");
        EXPECT_EQ("store", folder.Names()) << "after " << operations << " operations";
        EXPECT_EQ(found, tst_Describe(tst_Load(path).ConstGet())) << "the journal was still needed";
        tst_WriteFile(path, original);
        ASSERT_LT(++operations, mostOperations);
    }
    EXPECT_GT(operations, 10);
    EXPECT_EQ(newModel, tst_Describe(tst_Load(path).ConstGet()));
    EXPECT_EQ("store", folder.Names());
}

TEST_P(Interruption, OfANewStoreLeavesNoneOrAllOfIt)
{
    const std::string path = folder / "store";
    const std::unique_ptr<tst_Node> model = Model(30);
    const std::string expected = tst_Describe(model.get());
    int operations = 0;
    while (IsInterrupted(
        path, [&] { tst_Save(path, *model); }, operations))
    {
        EXPECT_FALSE(std::filesystem::exists(path)) << "after " << operations << " operations";
        ASSERT_LT(++operations, mostOperations);
    }
    EXPECT_GT(operations, 5);
    EXPECT_EQ(expected, tst_Describe(tst_Load(path).ConstGet()));
    EXPECT_EQ("store", folder.Names()) << "what earlier saves left is taken over";
}

void* RenameLabel(const dbc_Row& input, dbc_Row& output, int)
{
    output.PutText(rfm_FieldHandle("label", -1), input.GetText(rfm_FieldHandle("name", -1)));
    return nullptr;
}

TEST_P(Interruption, OfAnUpgradeLeavesTheOldFileAndNoNewOneOrAllOfIt)
{
    constexpr unsigned classId = 0xFD0001;
    const tst_Form oldForm{"upg_Shape", classId, 1, cls_RootId, {{"name", cls_TypeText}}};
    const std::string old = folder / "old";
    const std::string path = folder / "store";
    tst_MakeStore(old, {oldForm});
    // Texts that fill many pages.
    tst_Execute(old, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                     "INSERT INTO upg_Shape SELECT i, randomblob(16), printf('%01200d', i), NULL FROM n");
    const std::string before = tst_ReadFile(old);
    tst_Release release;
    release.Had({oldForm, tst_Step("upg_Shape", classId, 1, 2, RenameLabel)});
    release.Has({"upg_Shape", classId, 2, cls_RootId, {{"label", cls_TypeText}}});
    int operations = 0;
    while (IsInterrupted(
        path, [&] { dbc_Upgrade(old.c_str()).Run(path.c_str()); }, operations))
    {
        EXPECT_FALSE(std::filesystem::exists(path)) << "after " << operations << " operations";
        EXPECT_TRUE(before == tst_ReadFile(old)) << "after " << operations << " operations";
        ASSERT_LT(++operations, mostOperations);
    }
    EXPECT_GT(operations, 200);
    RecordProperty("operations", operations);
    EXPECT_EQ("ok", tst_Query(path, "PRAGMA integrity_check"));
    EXPECT_EQ(tst_QueryAll(old, "SELECT OID, \"##Uid\", name FROM upg_Shape"),
              tst_QueryAll(path, "SELECT OID, \"##Uid\", label FROM upg_Shape"));
    EXPECT_TRUE(before == tst_ReadFile(old));
    EXPECT_EQ("old store", folder.Names());
}

std::string NameOf(const testing::TestParamInfo<Fault>& info)
{
    constexpr const char* names[] = {"None", "Kill", "PowerLoss", "DiskFull", "WriteError"};
    return names[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(By, Interruption,
                         testing::Values(Fault::Kill, Fault::PowerLoss, Fault::DiskFull, Fault::WriteError),
                         NameOf);

} // namespace
