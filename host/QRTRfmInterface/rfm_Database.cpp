#include "rfm_Database.h"

#include "rfm_NewFile.h"
#include "rfm_RowCopy.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <sqlite3.h>
#include <sys/stat.h>

namespace
{
/// How long to wait for another program to be done with the file.
constexpr int patienceMilliseconds = 5000;
constexpr int pageSize = 16384;
/// Names that SQLite keeps for itself.
constexpr std::string_view ownPrefix = "sqlite_";

struct Limit
{
    int id;
    int value;
};

/// What no store needs more of. A class has at most a few dozen attributes of two columns each.
constexpr Limit limits[] = {{SQLITE_LIMIT_SQL_LENGTH, 100000}, {SQLITE_LIMIT_COLUMN, 500},
                            {SQLITE_LIMIT_EXPR_DEPTH, 50},     {SQLITE_LIMIT_COMPOUND_SELECT, 3},
                            {SQLITE_LIMIT_VDBE_OP, 25000},     {SQLITE_LIMIT_FUNCTION_ARG, 8},
                            {SQLITE_LIMIT_ATTACHED, 0},        {SQLITE_LIMIT_VARIABLE_NUMBER, 600},
                            {SQLITE_LIMIT_TRIGGER_DEPTH, 1},   {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 50},
                            {SQLITE_LIMIT_WORKER_THREADS, 0}};

struct Setting
{
    int id;
    int value;
};

constexpr Setting settings[] = {
    {SQLITE_DBCONFIG_DEFENSIVE, 1},      {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
    {SQLITE_DBCONFIG_DQS_DDL, 0},        {SQLITE_DBCONFIG_DQS_DML, 0},
    {SQLITE_DBCONFIG_ENABLE_FKEY, 0},    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}};

/// The header of an SQLite file, and where in it numbers stand, highest byte first.
constexpr int headerSize = 100;
constexpr char headerStart[] = "SQLite format 3";
constexpr int writeFormPosition = 18;
constexpr int readFormPosition = 19;
constexpr int encodingPosition = 56;
constexpr int userVersionPosition = 60;
constexpr int applicationIdPosition = 68;
constexpr unsigned char rollbackForm = 1;
constexpr std::uint32_t utf8Encoding = 1;

std::uint32_t NumberAt(const unsigned char* header, int position)
{
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = (number << 8) | header[position + i];
    return number;
}

/// A path that SQLite takes for nothing but a path.
std::string PlainPath(const std::string& path)
{
    return path.starts_with('/') ? path : "./" + path;
}

/// A path that SQLite takes for a file to be read only.
std::string ReadOnlyUri(const std::string& path)
{
    constexpr std::string_view plain = "/._-";
    constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char each : PlainPath(path))
    {
        const auto byte = static_cast<unsigned char>(each);
        const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                             (byte >= '0' && byte <= '9') || plain.find(each) != std::string_view::npos;
        if (isPlain)
            uri += each;
        else
            uri.append("%").append(1, digits[byte >> 4]).append(1, digits[byte & 15]);
    }
    return uri + "?mode=ro";
}

std::string MessageOf(int result, sqlite3* connection)
{
    switch (result & 0xFF)
    {
    case SQLITE_NOTADB:
        return "The file is not a stored model.";
    case SQLITE_CORRUPT:
        return std::string("The file is damaged (") + sqlite3_errmsg(connection) + ").";
    case SQLITE_FULL:
        return "There is no room left on the disk.";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return "The file is in use by another program.";
    case SQLITE_READONLY:
        return "The file can't be written to.";
    case SQLITE_CANTOPEN:
        return "The file can't be opened.";
    case SQLITE_TOOBIG:
        return "A value is bigger than the file that holds it, or than a store can hold.";
    default:
        return std::string("The file can't be used (") + sqlite3_errmsg(connection) + ").";
    }
}

const cow_String& ArrayTable()
{
    static const cow_String name = rfm_TableForm::Arrays().name;
    return name;
}

bool IsOwn(const cow_String& table)
{
    return table == rfm_TableForm::Catalogue().name || table == rfm_TableForm::Roots().name ||
           table == ArrayTable() || table == rfm_Elements::name || table.View().starts_with(ownPrefix);
}

cow_String TextOf(const rfm_Cell& cell)
{
    return cell.Is(rfm_CellKind::Text) ? cow_String(cell.bytes, cell.size) : cow_String();
}

bool IsInRange(const rfm_Cell& cell, std::int64_t low, std::int64_t high)
{
    return cell.Is(rfm_CellKind::Integer) && cell.integer >= low && cell.integer <= high;
}

rfm_ColumnKind KindOf(const cow_String& declaration)
{
    if (declaration == "INTEGER")
        return rfm_ColumnKind::Integer;
    if (declaration == "REAL")
        return rfm_ColumnKind::Real;
    if (declaration == "TEXT")
        return rfm_ColumnKind::Text;
    if (declaration == "BLOB")
        return rfm_ColumnKind::Blob;
    return rfm_ColumnKind::Any;
}

/// One column as the file's own description has it.
struct DescribedColumn
{
    cow_String name;
    cow_String declaration;
    std::int64_t keyPosition; ///< from 1 on; 0 for a column that is not part of the key
    bool isHidden;
};

std::vector<DescribedColumn> Describe(rfm_Database& database, const cow_String& table)
{
    std::vector<DescribedColumn> columns;
    rfm_Statement statement(database, "PRAGMA table_xinfo(" + rfm_Quoted(table) + ")", table);
    while (statement.Step())
        columns.push_back({TextOf(statement.Column(1)), TextOf(statement.Column(2)).ToUpper(),
                           statement.Column(5).integer, statement.Column(6).integer != 0});
    return columns;
}
} // namespace

rfm_Database::rfm_Database(const cow_String& path, rfm_Access access) : path(path), access(access)
{
    try
    {
        Open();
    }
    catch (...)
    {
        CloseConnection();
        throw;
    }
}

rfm_Database::~rfm_Database()
{
    CloseConnection();
}

void rfm_Database::Open()
{
    if (path.IsEmpty())
        Raise("A store needs the name of a file.");
    switch (access)
    {
    case rfm_Access::Read:
        OpenForReading();
        break;
    case rfm_Access::Replace:
        OpenForReplacing();
        break;
    case rfm_Access::Create:
        OpenNew();
        break;
    }
}

void rfm_Database::OpenForReading()
{
    RequireFile();
    OpenConnection(path.CString(), SQLITE_OPEN_READONLY);
    CheckHeader();
    if (!BeginReading())
    {
        Recover();
        OpenConnection(path.CString(), SQLITE_OPEN_READONLY);
        if (!BeginReading())
            Raise("A save was interrupted, and the file can't be brought back to what it was before.");
    }
    CheckHeader();
    SetCacheSize();
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH,
                  static_cast<int>(std::clamp<std::int64_t>(fileSize, 100000, 1000000000)));
}

void rfm_Database::OpenForReplacing()
{
    RequireFile();
    OpenConnection(path.CString(), SQLITE_OPEN_READWRITE);
    CheckHeader();
    if (sqlite3_db_readonly(connection, "main") != 0)
        Raise("The file can't be written to.");
    BeginWriting();
    CheckHeader();
    SetCacheSize();
}

void rfm_Database::OpenNew()
{
    newFile = std::make_unique<rfm_NewFile>(path);
    OpenConnection(newFile->TemporaryPath(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    Execute("PRAGMA page_size = " + std::to_string(pageSize));
    Execute("PRAGMA encoding = 'UTF-8'");
    Execute("PRAGMA auto_vacuum = NONE");
    BeginWriting();
    Execute("PRAGMA application_id = " + std::to_string(ApplicationId));
    Execute("PRAGMA user_version = " + std::to_string(FormatVersion));
    CreateContent();
    SetCacheSize();
}

/// For after the file was checked, as this reads it. The size is in pages: one in bytes would be reckoned
/// with the page size of before.
void rfm_Database::SetCacheSize()
{
    Execute("PRAGMA cache_size = 1000");
}

void rfm_Database::RequireFile()
{
    struct stat found = {};
    if (stat(path.CString(), &found) != 0)
        Raise(std::string("The file can't be opened (") + std::strerror(errno) + ").");
    if (S_ISDIR(found.st_mode))
        Raise("This is a folder, not a stored model.");
    if (!S_ISREG(found.st_mode))
        Raise("This is no ordinary file, so it is not a stored model.");
}

void rfm_Database::OpenConnection(const std::string& file, int flags)
{
    const int result = sqlite3_open_v2(PlainPath(file).c_str(), &connection,
                                       flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI, nullptr);
    if (result != SQLITE_OK)
        Raise(result, cow_String());
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(connection, patienceMilliseconds);
    Defend();
}

void rfm_Database::Defend()
{
    for (const Limit& limit : limits)
        sqlite3_limit(connection, limit.id, limit.value);
    for (const Setting& setting : settings)
        sqlite3_db_config(connection, setting.id, setting.value, nullptr);
    // None of these reads the file.
    Execute("PRAGMA cell_size_check = ON");
    Execute("PRAGMA mmap_size = 0");
    Execute("PRAGMA temp_store = MEMORY");
}

void rfm_Database::CloseConnection() noexcept
{
    rootInserter.reset();
    arrays.reset();
    if (connection && sqlite3_get_autocommit(connection) == 0)
        sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close_v2(connection);
    connection = nullptr;
}

// The header is read through the connection's own file: to open and close the file beside it would give up
// the locks that this process holds on it.
void rfm_Database::CheckHeader()
{
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (!file || !file->pMethods)
        Raise("The file can't be opened.");
    sqlite3_int64 size = 0;
    if (const int result = file->pMethods->xFileSize(file, &size); result != SQLITE_OK)
        Raise(result, cow_String());
    fileSize = size;
    unsigned char header[headerSize] = {};
    if (size < headerSize)
        Raise("The file is not a stored model: it is too short.");
    if (const int result = file->pMethods->xRead(file, header, headerSize, 0); result != SQLITE_OK)
        Raise(result, cow_String());
    if (std::memcmp(header, headerStart, sizeof headerStart) != 0 ||
        NumberAt(header, applicationIdPosition) != ApplicationId)
        Raise("The file is not a stored model.");
    const std::uint32_t version = NumberAt(header, userVersionPosition);
    if (version > FormatVersion)
        Raise("The file needs a newer release: it has form " + std::to_string(version) +
              ", and this release reads forms up to " + std::to_string(FormatVersion) + ".");
    if (version == 0)
        Raise("The file is damaged: it has no form number.");
    if (header[writeFormPosition] != rollbackForm || header[readFormPosition] != rollbackForm)
        Raise("The file is set to write-ahead logging, which a stored model must not be; "
              "\"PRAGMA journal_mode = DELETE\" sets it back.");
    if (NumberAt(header, encodingPosition) != utf8Encoding)
        Raise("The file is damaged: its texts are not UTF-8.");
}

/// False if an interrupted save must be undone first.
bool rfm_Database::BeginReading()
{
    Execute("BEGIN");
    char* message = nullptr;
    const int result =
        sqlite3_exec(connection, "SELECT 1 FROM sqlite_schema LIMIT 1", nullptr, nullptr, &message);
    sqlite3_free(message);
    if (result == SQLITE_OK)
        return true;
    const int extended = sqlite3_extended_errcode(connection);
    if (extended == SQLITE_READONLY_ROLLBACK || extended == SQLITE_READONLY_RECOVERY)
        return false;
    Raise(extended, cow_String());
}

void rfm_Database::Recover()
{
    CloseConnection();
    OpenConnection(path.CString(), SQLITE_OPEN_READWRITE);
    Execute("SELECT 1 FROM sqlite_schema LIMIT 1");
    CloseConnection();
}

void rfm_Database::BeginWriting()
{
    Execute("PRAGMA journal_mode = DELETE");
    Execute("PRAGMA synchronous = EXTRA");
    Execute("PRAGMA fullfsync = ON");
    Execute("PRAGMA secure_delete = OFF");
    Execute("BEGIN IMMEDIATE");
}

void rfm_Database::CreateContent()
{
    Execute(rfm_TableForm::Catalogue().SqlToCreate());
    Execute(rfm_TableForm::Roots().SqlToCreate());
    Execute(rfm_Elements::SqlToCreate());
    Execute(rfm_TableForm::Arrays().SqlToCreate());
    tables.emplace();
}

void rfm_Database::RemoveContent()
{
    const std::vector<cow_String> foreign = ForeignParts();
    if (!foreign.empty())
        Raise("The file holds parts that this release does not know, and a save would lose them.",
              foreign[0]);
    std::vector<cow_String> names;
    {
        rfm_Statement statement(*this, "SELECT name FROM sqlite_schema WHERE type = 'table'");
        while (statement.Step())
        {
            const cow_String name = TextOf(statement.Column(0));
            if (!name.View().starts_with(ownPrefix))
                names.push_back(name);
        }
    }
    for (const cow_String& name : names)
        Execute("DROP TABLE " + rfm_Quoted(name));
    CreateContent();
}

void rfm_Database::AttachForConversion(const rfm_Database& old)
{
    constexpr int attachedFiles = 2;
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, attachedFiles);
    sqlite3_limit(connection, SQLITE_LIMIT_FUNCTION_ARG, rfm_RowCopy::mostArguments);
    rfm_Statement attach(*this, "ATTACH ? AS old");
    const std::string uri = ReadOnlyUri(old.Path().CString());
    attach.Bind(1, rfm_Cell::Text(uri));
    attach.Run();
    // A file that is gone when it is closed; in memory it could grow beyond bounds.
    Execute("PRAGMA temp_store = FILE");
    Execute("ATTACH '' AS scratch");
    Execute("PRAGMA scratch.page_size = " + std::to_string(pageSize));
    // What is copied is read but once, from start to end, and written likewise: few pages stay near at hand.
    Execute("PRAGMA old.cache_size = 50");
    Execute("PRAGMA main.cache_size = 200");
    Execute("PRAGMA scratch.cache_size = 1000");
    Execute(rfm_Elements::SqlToCreate(rfm_ScratchSchema));
    rfm_RowCopy::AddFunction(connection, &rowCopy);
}

void rfm_Database::CreateTable(const rfm_TableForm& form)
{
    Execute(form.SqlToCreate());
}

void rfm_Database::DropTable(const rfm_TableForm& form)
{
    Execute("DROP TABLE " + form.SqlName());
}

void rfm_Database::RequireLastRow(const rfm_TableForm& form, std::int64_t oid) const
{
    const std::int64_t given = sqlite3_last_insert_rowid(connection);
    if (given != oid)
        Raise("The row was put in as row " + std::to_string(given) + ".", form.name, oid, form.keyColumn);
}

void rfm_Database::Commit()
{
    if (rootInserter)
        rootInserter->Flush();
    if (arrays)
        arrays->Flush();
    rootInserter.reset();
    arrays.reset();
    Execute("COMMIT");
    CloseConnection();
    if (newFile)
        newFile->Publish();
}

const std::vector<rfm_TableInfo>& rfm_Database::Tables()
{
    if (!tables)
        tables = ReadCatalogue();
    return *tables;
}

const rfm_TableInfo* rfm_Database::FindTable(unsigned classId)
{
    const std::vector<rfm_TableInfo>& all = Tables();
    const auto found =
        std::lower_bound(all.begin(), all.end(), classId,
                         [](const rfm_TableInfo& table, unsigned id) { return table.classId < id; });
    return found != all.end() && found->classId == classId ? &*found : nullptr;
}

std::vector<rfm_TableInfo> rfm_Database::ReadCatalogue()
{
    const rfm_TableForm form = rfm_TableForm::Catalogue();
    RequireTable(form.name, false);
    std::vector<rfm_TableInfo> catalogue;
    rfm_Cursor cursor(*this, form);
    for (bool there = cursor.SeekFrom(0); there; there = cursor.Next())
    {
        const rfm_Cell* cells = cursor.Cells();
        if (cursor.Key() > UINT_MAX)
            Raise("Expected a class id of 32 bits.", form.name, cursor.Key(), form.keyColumn);
        if (!cells[0].Is(rfm_CellKind::Text) || cells[0].size == 0 || IsOwn(TextOf(cells[0])))
            Raise("Expected the name of a class.", form.name, cursor.Key(), "Name");
        if (!IsInRange(cells[1], INT_MIN, INT_MAX))
            Raise("Expected a schema version.", form.name, cursor.Key(), "Version");
        if (!IsInRange(cells[2], 0, UINT_MAX))
            Raise("Expected a class id of 32 bits.", form.name, cursor.Key(), "BaseClassID");
        catalogue.push_back({TextOf(cells[0]),
                             static_cast<unsigned>(cursor.Key()),
                             static_cast<int>(cells[1].integer),
                             static_cast<unsigned>(cells[2].integer),
                             {}});
    }
    for (rfm_TableInfo& table : catalogue)
        table.columns = ReadColumns(table.name);
    return catalogue;
}

std::vector<rfm_Column> rfm_Database::ReadColumns(const cow_String& table)
{
    RequireTable(table, false);
    std::vector<rfm_Column> columns;
    bool hasKey = false;
    bool hasCheck = false;
    for (const DescribedColumn& column : Describe(*this, table))
    {
        if (column.isHidden)
            Raise("The column is not an ordinary one.", table, rom_StoreException::NoRow, column.name);
        if (column.name == rfm_OidColumn)
            hasKey = column.keyPosition == 1 && column.declaration == "INTEGER";
        else if (column.name == rfm_CheckColumn)
            hasCheck = true;
        else
            columns.push_back({column.name, KindOf(column.declaration)});
    }
    if (!hasKey)
        Raise("The table needs this column as its INTEGER PRIMARY KEY.", table, rom_StoreException::NoRow,
              rfm_OidColumn);
    if (!hasCheck)
        Raise("The table lacks this column.", table, rom_StoreException::NoRow, rfm_CheckColumn);
    return columns;
}

/// Virtual tables and views run code that the file names, so only plain tables will do; and a search by any
/// but the key would take time out of all proportion.
void rfm_Database::RequireTable(const cow_String& table, bool isElements)
{
    rfm_Statement statement(
        *this, "SELECT type, wr FROM pragma_table_list WHERE schema = 'main' AND name = ?", table);
    statement.Bind(1, rfm_Cell::Text(table.View()));
    if (!statement.Step())
        Raise("The table is missing.", table);
    const bool isPlain = TextOf(statement.Column(0)) == "table";
    const bool isWithoutRowId = statement.Column(1).integer != 0;
    if (!isPlain || isWithoutRowId != isElements)
        Raise("This is not a table of the form that a store has.", table);
}

bool rfm_Database::HasTable(const cow_String& ownTable)
{
    rfm_Statement statement(*this, "SELECT 1 FROM sqlite_schema WHERE name = ?", ownTable);
    statement.Bind(1, rfm_Cell::Text(ownTable.View()));
    if (!statement.Step())
        return false;
    if (ownTable == rfm_Elements::name)
        RequireElements();
    else
        RequireTable(ownTable, false);
    return true;
}

bool rfm_Database::HasName(const cow_String& table)
{
    rfm_Statement statement(*this, "SELECT 1 FROM sqlite_schema WHERE name = ?", table);
    statement.Bind(1, rfm_Cell::Text(table.View()));
    return statement.Step();
}

bool rfm_Database::HasElements()
{
    if (!HasName(rfm_Elements::name))
        return false;
    RequireElements();
    return true;
}

bool rfm_Database::HasArrays()
{
    if (!HasName(ArrayTable()))
        return false;
    RequireTable(ArrayTable(), false);
    return true;
}

void rfm_Database::RequireElements()
{
    RequireTable(rfm_Elements::name, true);
    const std::vector<DescribedColumn> found = Describe(*this, rfm_Elements::name);
    for (int i = 0; i < rfm_Elements::ColumnCount; ++i)
    {
        const int keyPosition = i < rfm_Elements::keyColumns ? i + 1 : 0;
        const auto column =
            std::find_if(found.begin(), found.end(),
                         [i](const DescribedColumn& each) { return each.name == rfm_Elements::columns[i]; });
        if (column == found.end() || column->keyPosition != keyPosition)
            Raise("The table lacks this column, or has it at another place of its key.", rfm_Elements::name,
                  rom_StoreException::NoRow, rfm_Elements::columns[i]);
    }
}

std::vector<cow_String> rfm_Database::ForeignParts()
{
    std::vector<cow_String> parts;
    rfm_Statement statement(*this, "SELECT type, name FROM sqlite_schema ORDER BY name");
    while (statement.Step())
    {
        const cow_String type = TextOf(statement.Column(0));
        const cow_String name = TextOf(statement.Column(1));
        const auto hasName = [&name](const rfm_TableInfo& table) { return table.name == name; };
        const bool isKnown = IsOwn(name) || std::any_of(Tables().begin(), Tables().end(), hasName);
        if (type != "index" && !(type == "table" && isKnown))
            parts.push_back(name);
    }
    return parts;
}

void rfm_Database::CreateTable(const rfm_TableInfo& table, const rfm_Cell& check)
{
    Execute(rfm_TableForm::Of(table).SqlToCreate());
    rfm_Inserter catalogue(*this, rfm_TableForm::Catalogue());
    const rfm_Cell cells[] = {rfm_Cell::Text(table.name.View()), rfm_Cell::Integer(table.version),
                              rfm_Cell::Integer(table.baseClassId)};
    if (check.Is(rfm_CellKind::Unset))
        catalogue.Insert(table.classId, cells);
    else
        catalogue.Insert(table.classId, cells, check);
    catalogue.Flush();
    tables.reset();
}

std::vector<rfm_Root> rfm_Database::Roots()
{
    const rfm_TableForm form = rfm_TableForm::Roots();
    RequireTable(form.name, false);
    std::vector<rfm_Root> roots;
    rfm_Cursor cursor(*this, form);
    for (bool there = cursor.SeekFrom(INT64_MIN); there; there = cursor.Next())
    {
        const rfm_Cell* cells = cursor.Cells();
        if (!cells[0].Is(rfm_CellKind::Text))
            Raise("Expected a name.", form.name, cursor.Key(), "Name");
        if (!IsInRange(cells[1], 0, UINT_MAX))
            Raise("Expected a class id of 32 bits.", form.name, cursor.Key(), "Target#ClassID");
        if (!cells[2].Is(rfm_CellKind::Integer))
            Raise("Expected the number of a row.", form.name, cursor.Key(), "Target#OID");
        const cow_String name = TextOf(cells[0]);
        if (std::any_of(roots.begin(), roots.end(),
                        [&name](const rfm_Root& root) { return root.name == name; }))
            Raise("The name stands twice.", form.name, cursor.Key(), "Name");
        roots.push_back({name, static_cast<unsigned>(cells[1].integer), cells[2].integer});
    }
    return roots;
}

void rfm_Database::InsertRoot(const rfm_Root& root)
{
    if (!rootInserter)
        rootInserter = std::make_unique<rfm_Inserter>(*this, rfm_TableForm::Roots());
    const rfm_Cell cells[] = {rfm_Cell::Text(root.name.View()), rfm_Cell::Integer(root.classId),
                              rfm_Cell::Integer(root.oid)};
    rootInserter->Insert(++rootCount, cells);
}

rfm_ArrayStore& rfm_Database::Arrays()
{
    if (!arrays)
        arrays = std::make_unique<rfm_ArrayStore>(*this);
    return *arrays;
}

void rfm_Database::Execute(const std::string& sql)
{
    rfm_Statement(*this, sql).Run();
}

void rfm_Database::Raise(int result, const cow_String& table, std::int64_t row) const
{
    Raise(MessageOf(result, connection), table, row);
}

void rfm_Database::Raise(const std::string& message, const cow_String& table, std::int64_t row,
                         const cow_String& field) const
{
    rom_StoreException(path, table, row, field, message.c_str()).Throw(__FILE__, __LINE__);
}
