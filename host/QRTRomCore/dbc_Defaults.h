#pragma once

#include "rom_ClassPlan.h"
#include "rom_MemoryRows.h"

#include <map>

/// A row of a default object.
struct dbc_DefaultRow
{
    rom_MemoryRows* rows; ///< where it and all that it refers to lie
    unsigned classId;
    std::int64_t oid;
    const rfm_Cell* cells;
};

/// The rows that default objects of the classes of this release have.
class dbc_Defaults
{
public:
    dbc_Defaults();
    ~dbc_Defaults();

    /// The row of a class in a default object of it, or of the first class derived from it where it has no
    /// objects of its own. Null if there is no such object.
    const dbc_DefaultRow* RowOf(unsigned classId);

    /// A row that one of these refers to. Throws if it is not there.
    dbc_DefaultRow Follow(rom_MemoryRows& rows, unsigned classId, std::int64_t oid);

    /// The plan of a class of this release. Throws if there is no such class.
    const rom_ClassPlan& PlanOf(unsigned classId);

private:
    struct Default
    {
        std::unique_ptr<rom_MemoryRows> rows;
        dbc_DefaultRow row;
    };

    std::unique_ptr<Default> Make(unsigned classId);
    static bool Write(const cls_ClassMetadata& metadata, rom_MemoryRows& rows);

    std::map<unsigned, std::unique_ptr<Default>> defaults;
    std::map<unsigned, std::unique_ptr<rom_ClassPlan>> plans;
};
