#pragma once

/// One row of a module's type table. Its position in the table is the low half of the class id; row 0 is
/// always the reserved row (flags 0, parent 1, no name).
struct typ_Entry
{
    /// 7 in every real row, 0 in row 0.
    unsigned flags;
    /// Class id of the parent type, which may lie in another module; 1 where there is none of interest.
    unsigned parent;
    /// The class's stored name, null in row 0.
    const char* name;
};

/// A module's type table as it is handed to `typ_ArchCompTable`. The rows are not copied and must outlive it.
class typ_ArchCompEntry
{
public:
    /// No rows.
    constexpr typ_ArchCompEntry() = default;

    /// The `count` rows from `rows`, row 0 included.
    constexpr typ_ArchCompEntry(const typ_Entry* rows, unsigned count) : rows(rows), count(count) {}

    constexpr const typ_Entry* Rows() const { return rows; }

    constexpr unsigned Count() const { return count; }

private:
    const typ_Entry* rows = nullptr;
    unsigned count = 0;
};
