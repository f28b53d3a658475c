#pragma once

#include "cow_String.h"
#include "ovr_Export.h"
#include "rfm_Array.h"
#include "rfm_TableInfo.h"
#include "rom_StoreException.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class rfm_NewFile;
class rfm_RowCopy;
struct sqlite3;

/// A named object from which a store is read.
struct rfm_Root
{
    cow_String name;
    unsigned classId;
    std::int64_t oid;
};

/// How a store's file is opened.
enum class rfm_Access
{
    Read,    ///< An existing store, in one read transaction that lasts as long as the database is open.
    Replace, ///< An existing store, whose content is taken out; the old one stays until `Commit`.
    Create   ///< A new store; there must be no file of that name, and there is none until `Commit`.
};

/// The SQLite file of one store. A file is taken for a store only if it says that it is one; nothing else in
/// it is trusted. All failures are `rom_StoreException`s.
class OVR_EXPORT rfm_Database
{
public:
    /// Marks a file as a store of ours: "OvrS".
    static constexpr std::int64_t ApplicationId = 0x4F767253;
    /// The newest form of file that this reader knows, and the oldest that the content it writes needs.
    static constexpr std::int64_t FormatVersion = 1;

    rfm_Database(const cow_String& path, rfm_Access access);
    rfm_Database(const rfm_Database&) = delete;
    rfm_Database& operator=(const rfm_Database&) = delete;
    /// Undoes everything since the opening unless `Commit` succeeded.
    ~rfm_Database();

    const cow_String& Path() const { return path; }
    /// Bytes of the file when it was opened.
    std::int64_t FileSize() const { return fileSize; }

    /// Makes the new content the store's, whole; it is on the disk when this returns. All statements, cursors
    /// and inserters must be gone, and nothing else may be done with the database afterwards.
    void Commit();

    /// The tables of classes by ascending class id, with the columns that they really have.
    const std::vector<rfm_TableInfo>& Tables();
    /// The table of a class, or null.
    const rfm_TableInfo* FindTable(unsigned classId);
    /// Tables, views and triggers that no store has, by name.
    std::vector<cow_String> ForeignParts();
    /// Whether the store has one of its own tables. Throws if it has something else under the name.
    bool HasTable(const cow_String& ownTable);
    /// Throws unless the store has its table of elements in the right form.
    void RequireElements();
    /// Whether the store has its table of elements, or of arrays, which it needs only when it has any. Throws
    /// if such a table has another form.
    bool HasElements();
    bool HasArrays();

    /// Makes the tables of `old`, a store opened for reading, reachable under `rfm_OldSchema`, for reading
    /// alone, and opens `rfm_ScratchSchema`. This database must be a new one.
    void AttachForConversion(const rfm_Database& old);
    /// What is copying rows right now; its function is called for each row. Null for nothing.
    void SetRowCopy(rfm_RowCopy* newCopy) { rowCopy = newCopy; }
    /// Adds a table that is not entered in the catalogue: one of another schema.
    void CreateTable(const rfm_TableForm& form);
    void DropTable(const rfm_TableForm& form);

    /// Takes everything out that a store holds. Throws if there are foreign parts.
    void RemoveContent();
    /// Adds the table of a class. A check number that is given stands in the catalogue in place of the right
    /// one: a null cell for none.
    void CreateTable(const rfm_TableInfo& table, const rfm_Cell& check = {});

    std::vector<rfm_Root> Roots();
    void InsertRoot(const rfm_Root& root);

    /// The arrays of the store.
    rfm_ArrayStore& Arrays();
    /// The array under a handle, or a new one for handle 0.
    rfm_Array<double, rfm_TypeDouble> ArrayDouble(std::int64_t handle) { return {Arrays(), handle}; }

    /// The connection, for the statements of this layer.
    sqlite3* Connection() const { return connection; }
    /// Throws unless the row that was put in last, into this table, has this number: for rows that take the
    /// numbers that SQLite gives.
    void RequireLastRow(const rfm_TableForm& form, std::int64_t oid) const;
    /// Throws for a result code of SQLite.
    [[noreturn]] void Raise(int result, const cow_String& table,
                            std::int64_t row = rom_StoreException::NoRow) const;
    /// Throws with a message of this layer.
    [[noreturn]] void Raise(const std::string& message, const cow_String& table = cow_String(),
                            std::int64_t row = rom_StoreException::NoRow,
                            const cow_String& field = cow_String()) const;

private:
    void Open();
    void OpenForReading();
    void OpenForReplacing();
    void OpenNew();
    void RequireFile();
    void OpenConnection(const std::string& file, int flags);
    void Defend();
    void SetCacheSize();
    void CloseConnection() noexcept;
    void CheckHeader();
    bool BeginReading();
    void Recover();
    void CreateContent();
    void BeginWriting();
    std::vector<rfm_TableInfo> ReadCatalogue();
    std::vector<rfm_Column> ReadColumns(const cow_String& table);
    void RequireTable(const cow_String& table, bool isElements);
    bool HasName(const cow_String& table);
    void Execute(const std::string& sql);

    cow_String path;
    rfm_Access access;
    std::unique_ptr<rfm_NewFile> newFile;
    sqlite3* connection = nullptr;
    std::int64_t fileSize = 0;
    std::optional<std::vector<rfm_TableInfo>> tables;
    std::unique_ptr<rfm_ArrayStore> arrays;
    std::unique_ptr<rfm_Inserter> rootInserter;
    std::int64_t rootCount = 0;
    rfm_RowCopy* rowCopy = nullptr;
};
