#pragma once

#include "ovr_Export.h"
#include "rfm_Check.h"
#include "rfm_Inserter.h"
#include "rfm_Statement.h"
#include "rfm_TableForm.h"

#include <exception>
#include <functional>
#include <vector>

struct sqlite3;
struct sqlite3_context;
struct sqlite3_value;

/// Stands in the class id of a reference that nothing was put into yet.
inline constexpr std::int64_t rfm_UnsetReference = -1;

/// One column of the rows that a copy makes.
struct rfm_CopyColumn
{
    /// What its cells may be beside what the column is declared to hold.
    enum class Use
    {
        Scalar,  ///< nothing else; NULL takes the value of `fallback`
        ClassId, ///< NULL, or `rfm_UnsetReference`, which takes the value of `fallback`
        Number   ///< NULL: the row number of a reference, or an optional integer
    };

    int source = -1; ///< the column that is copied; -1 for none, which leaves `fallback`
    Use use = Use::Scalar;
    /// A text or blob must stay as long as the copy.
    rfm_Cell fallback = rfm_Cell::Null();
};

/// The class ids of a reference that changes.
struct rfm_ClassIdChange
{
    std::int64_t from;
    std::int64_t to;
};

/// Row numbers that were met in one reference column, by class id.
class OVR_EXPORT rfm_ReferenceColumn
{
public:
    struct Range
    {
        std::int64_t classId;
        std::int64_t low;
        std::int64_t high;
    };

    /// `classCell` is -1 where all references lead to rows of `classId`.
    rfm_ReferenceColumn(int classCell, int oidCell, std::int64_t classId = 0)
        : classCell(classCell), oidCell(oidCell), fixedClassId(classId)
    {}

    /// Takes the reference of a row.
    void Note(const rfm_Cell* cells)
    {
        const rfm_Cell& oid = cells[oidCell];
        if (oid.Is(rfm_CellKind::Integer)) [[likely]]
            Note(classCell < 0 ? fixedClassId : cells[classCell].integer, oid.integer);
        else if (classCell < 0 || cells[classCell].IsNull())
            ++nulls;
        else if (cells[classCell].integer == rfm_UnsetReference)
            ++unset;
        else
            ++classesAlone;
    }

    int ClassCell() const { return classCell; }
    int OidCell() const { return oidCell; }
    std::int64_t FixedClassId() const { return fixedClassId; }
    const std::vector<Range>& Ranges() const { return ranges; }
    /// Count of references that are absent.
    std::int64_t Nulls() const { return nulls; }
    /// Count of references that are still to be made.
    std::int64_t Unset() const { return unset; }
    /// Count of references with a class and no row, such as absent elements.
    std::int64_t ClassesAlone() const { return classesAlone; }

private:
    void Note(std::int64_t classId, std::int64_t oid)
    {
        if (last < ranges.size() && ranges[last].classId == classId) [[likely]]
        {
            Range& range = ranges[last];
            if (oid < range.low)
                range.low = oid;
            if (oid > range.high)
                range.high = oid;
            return;
        }
        NoteOther(classId, oid);
    }
    void NoteOther(std::int64_t classId, std::int64_t oid);

    int classCell;
    int oidCell;
    std::int64_t fixedClassId;
    std::vector<Range> ranges;
    std::size_t last = 0;
    std::int64_t nulls = 0;
    std::int64_t unset = 0;
    std::int64_t classesAlone = 0;
};

/// The numbers of the rows of a table.
struct rfm_RowNumbers
{
    std::int64_t count = 0;
    std::int64_t low = 0;
    std::int64_t high = 0;

    void Note(std::int64_t oid)
    {
        low = count == 0 || oid < low ? oid : low;
        high = count == 0 || oid > high ? oid : high;
        ++count;
    }

    bool AreWithoutHoles() const { return count > 0 && high - low == count - 1; }
};

/// The kind of cell that a column is made for; `Unset`, which no stored cell is, where there are several.
OVR_EXPORT rfm_CellKind rfm_PlainKindOf(rfm_ColumnKind kind);

/// Throws, naming the store, unless a cell holds what its column is declared to; NULL is nothing that it may
/// hold.
OVR_EXPORT void rfm_RequireKind(const rfm_Database& owner, const rfm_TableForm& form, std::size_t column,
                                std::int64_t oid, const rfm_Cell& cell);

/// Copies the rows of one table into another of other columns, within one statement where that can be. Each
/// row's check number is compared, and the new row gets its own. Rows are refused that hold another kind of
/// value than their column is declared to.
class OVR_EXPORT rfm_RowCopy
{
public:
    /// What the library takes, less the two for check number and row.
    static constexpr int mostArguments = 127;

    struct Plan
    {
        rfm_Database* owner; ///< the store that is named where its rows are damaged
        rfm_TableForm from;
        rfm_TableForm to;
        std::vector<rfm_CopyColumn> columns; ///< one for each of `to`
        std::vector<rfm_ClassIdChange> changes;
        /// Tables whose rows stand in place of those of the same number here.
        std::vector<rfm_TableForm> coveredBy;
        rfm_OnConflict onConflict = rfm_OnConflict::Fail;
        /// That no scalar should be NULL, and nothing was in `to` before: where one is NULL all the same, the
        /// copy begins anew. Saves SQLite a look at each cell.
        bool expectsNoNull = false;
    };

    /// `references` take the references of the new rows, and `numbers` their numbers; they may be shared by
    /// several copies.
    rfm_RowCopy(rfm_Database& database, Plan plan, std::vector<rfm_ReferenceColumn>& references,
                rfm_RowNumbers& numbers);
    rfm_RowCopy(const rfm_RowCopy&) = delete;
    rfm_RowCopy& operator=(const rfm_RowCopy&) = delete;

    /// Calls `progress` now and then with the count of rows copied since.
    void Run(const std::function<void(std::int64_t)>& progress);

    /// Adds the function by which statements call the copy at `place`.
    static void AddFunction(sqlite3* connection, rfm_RowCopy** place);

private:
    /// Where a column's cell comes from, and the kind of cell that goes over without another look: `Unset`,
    /// which no stored cell is, for none.
    struct Quick
    {
        std::size_t source = 0;
        rfm_CellKind kind = rfm_CellKind::Unset;
    };

    static Quick QuickOf(const rfm_CopyColumn& column, rfm_ColumnKind kind);
    static void CopyRow(sqlite3_context* context, int count, sqlite3_value** arguments);

    void CopyRows();
    void RequireSource();
    bool FitsOneStatement() const;
    std::size_t CountSharedCells() const;
    std::string SqlOfColumn(std::size_t column, int& parameter) const;
    std::string SqlOfConditions() const;
    std::string SqlOfSourceColumns() const;
    void BindParameters(rfm_Statement& statement) const;
    void RunAsOne();
    bool IsRun();
    std::string SqlToRun() const;
    void RunStatement();
    void RunRowByRow();
    /// Makes the new row of a source row, whose cells `takeCell` gives and enters into a check number, and
    /// returns the new one's.
    template <class TakeCell>
    std::int64_t Convert(std::int64_t oid, const rfm_Cell& check, const TakeCell& takeCell);
    bool MakeTarget(std::int64_t oid);
    rfm_Cell CellOf(std::size_t column, std::int64_t oid, bool& isSame);
    [[noreturn]] void RaiseNull(std::int64_t oid, std::size_t column);
    [[noreturn]] void RaiseHole(std::int64_t oid);
    void CountRow(std::int64_t oid);
    [[noreturn]] void RaiseDamaged(std::int64_t oid) const;

    rfm_Database& database;
    Plan plan;
    std::vector<rfm_ReferenceColumn>& references;
    rfm_RowNumbers& numbers;
    std::vector<Quick> quick;
    /// Cells at the beginning of a row that enter the check numbers of both rows alike if they stay.
    std::size_t sharedCells;
    bool hasMetNull = false;
    /// Rows that are numbered from 1 on without holes take the numbers that SQLite gives, and it need not
    /// look for each whether it is there.
    bool appends = false;
    bool hasMetHole = false;
    std::int64_t lastAppended = 0;
    const std::function<void(std::int64_t)>* progress = nullptr;
    std::vector<rfm_Cell> source;
    std::vector<rfm_Cell> target;
    const rfm_Cell* newRow = nullptr; ///< of the last row: `target`, or `source` where that begins with it
    std::int64_t untoldRows = 0;
    std::exception_ptr failure;
};
