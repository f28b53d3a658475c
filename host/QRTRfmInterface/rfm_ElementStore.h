#pragma once

#include "ovr_Export.h"
#include "rfm_RowBatch.h"

/// One element of a collection.
struct rfm_Element
{
    rfm_Cell key;           ///< null, a number or a text
    rfm_Cell value;         ///< null where the element is an object
    rfm_Cell targetClassId; ///< null where the element is a plain value
    rfm_Cell targetOid;     ///< null for an absent object
};

/// Puts elements into collections. They are there for reading after `Flush`.
class OVR_EXPORT rfm_ElementInserter
{
public:
    /// `schema` as for `rfm_TableForm`.
    explicit rfm_ElementInserter(rfm_Database& database, const cow_String& schema = cow_String());

    void Insert(unsigned classId, std::int64_t oid, std::int64_t position, const rfm_Element& element);
    /// The same with a check number that is given: a null cell for an element without one.
    void Insert(unsigned classId, std::int64_t oid, std::int64_t position, const rfm_Element& element,
                const rfm_Cell& check);

    void Flush() { batch.Flush(); }

private:
    rfm_RowBatch batch;
};

/// Goes through the elements of one collection after another, in order of their positions.
class OVR_EXPORT rfm_ElementCursor
{
public:
    explicit rfm_ElementCursor(rfm_Database& database, const cow_String& schema = cow_String());

    void Open(unsigned classId, std::int64_t oid);
    /// Goes to the next element; false if there is none. The key and value of `element` stay until the cursor
    /// goes on. Throws if a position is left out.
    bool Next(rfm_Element& element);
    void Close() noexcept { statement.Reset(); }

private:
    [[noreturn]] void RaiseDamaged(const char* message) const;

    rfm_Database& database;
    rfm_Statement statement;
    unsigned classId = 0;
    std::int64_t oid = 0;
    std::int64_t position = 0;
};
