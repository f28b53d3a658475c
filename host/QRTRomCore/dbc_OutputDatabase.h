#pragma once

#include "cls_Types.h"
#include "dbc_Table.h"
#include "rfm_Array.h"

#include <memory>
#include <vector>

/// The store as the stage that is running leaves it.
class OVR_EXPORT dbc_OutputDatabase
{
public:
    virtual ~dbc_OutputDatabase();

    /// The table of a class, which is made if there is none; it has the form that the class has after this
    /// stage. Throws if the class has none. It stays until the stage ends.
    virtual dbc_TableRfm* GetOutputTable(unsigned classId) = 0;
    /// A table beside the store's, of the form that the class had at just this version; the same one when
    /// asked for again in the same stage. Null if the class never had that form. It stays until the stage
    /// ends.
    virtual dbc_TableMem* GetTempTable(unsigned classId, int version) = 0;
    /// The array of doubles under a handle, or a new one for handle 0.
    virtual rfm_Array<double, rfm_TypeDouble> ArrayDouble(std::int64_t handle) = 0;
    /// A new collection of class `classId`, whose number `oid` takes, for elements to be added to. It is
    /// finished when the result is gone. `name` is for errors.
    virtual std::unique_ptr<dbc_Table> NewElements(const cow_String& name, unsigned classId,
                                                   cls_CollectionType code, std::int64_t& oid) = 0;
    /// A new collection of doubles, row by row; returns its number in the table of `cls_ListTypeId`.
    virtual std::int64_t NewNumbers(cls_CollectionType code, const std::vector<double>& values,
                                    int columns) = 0;
};
