#pragma once

#include "cow_String.h"
#include "ovr_Export.h"
#include "rfm_ElementStore.h"
#include "rfm_TableInfo.h"
#include "rfm_Type.h"

/// Where the writing mementos put rows: a file or memory. Tables are named by the position that `AddTable`
/// gave them.
class OVR_EXPORT rom_RowSink
{
public:
    virtual ~rom_RowSink();

    /// Name of the store in errors.
    virtual cow_String Name() const = 0;
    virtual int AddTable(const rfm_TableInfo& table) = 0;
    /// `cells` are as many as the table has columns.
    virtual void InsertRow(int table, std::int64_t oid, const rfm_Cell* cells) = 0;
    virtual void InsertElement(unsigned classId, std::int64_t oid, std::int64_t position,
                               const rfm_Element& element) = 0;
    /// Adds an array and returns its handle.
    virtual std::int64_t InsertArray(rfm_Type type, const void* values, std::int64_t length) = 0;
    virtual void InsertRoot(const cow_String& name, unsigned classId, std::int64_t oid) = 0;
};

/// A row that stands open for reading.
struct rom_OpenRow
{
    const rfm_Cell* cells = nullptr; ///< as many as the table has columns
    void* place = nullptr;           ///< the source's own
};

/// Where the reading mementos get rows from. Everything missing or damaged throws `rom_StoreException`.
class OVR_EXPORT rom_RowSource
{
public:
    virtual ~rom_RowSource();

    /// Name of the store in errors.
    virtual cow_String Name() const = 0;
    /// Bytes that the store takes: no count in it can be larger.
    virtual std::int64_t Size() const = 0;

    /// Position of the table of a class. Throws unless it is there in just this form.
    virtual int FindTable(const rfm_TableInfo& table) = 0;
    /// False if there is no such row. The row stays as it is until it is closed.
    virtual bool OpenRow(int table, std::int64_t oid, rom_OpenRow& row) = 0;
    virtual void CloseRow(int table, const rom_OpenRow& row) noexcept = 0;

    /// The elements of a collection, in order; the result is handed to the two below.
    virtual void* OpenElements(unsigned classId, std::int64_t oid) = 0;
    /// False if there is none left. The element's texts stay until the next call or the closing.
    virtual bool NextElement(void* place, rfm_Element& element) = 0;
    virtual void CloseElements(void* place) noexcept = 0;

    /// Goes to an array and returns its length; `ReadArray` copies its numbers.
    virtual std::int64_t OpenArray(std::int64_t handle, rfm_Type type) = 0;
    virtual void ReadArray(void* values) = 0;
};
