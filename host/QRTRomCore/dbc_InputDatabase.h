#pragma once

#include "dbc_Table.h"
#include "rfm_Array.h"

#include <memory>

/// The store as it stood before the stage that is running.
class OVR_EXPORT dbc_InputDatabase
{
public:
    virtual ~dbc_InputDatabase();

    /// Whether the store has a table of this class, be it without rows.
    virtual bool HasInputTable(unsigned classId) const = 0;
    /// The table of a class, or null. It stays until the stage ends.
    virtual dbc_TableRfm* GetInputTable(unsigned classId) = 0;
    /// The array of doubles under a handle.
    virtual rfm_Array<double, rfm_TypeDouble> ArrayDouble(std::int64_t handle) = 0;
    /// The elements of the collection that stands in row `oid` of the table of `classId`; none for row 0.
    /// `name` is for errors.
    virtual std::unique_ptr<dbc_Table> ElementsOf(const cow_String& name, unsigned classId,
                                                  std::int64_t oid) = 0;
};
