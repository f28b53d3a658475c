#pragma once

#include "cls_FieldHandle.h"
#include "cls_Types.h"
#include "cls_Uid.h"
#include "ovr_Export.h"

class cls_WriteListObj;
class cls_WriteMapString2Obj;
class cls_WriteMapInt2Obj;
class cls_ReadListObj;
class cls_ReadMapString2Obj;
class cls_ReadMapInt2Obj;

/// The writing end of one row. A visitor owns it and closes it; the store hands it out. A row is written when
/// it is closed, so rows that it refers to are there before it. Every operation throws `rom_StoreException`
/// when the store fails, also for a failure that an earlier closing met.
class OVR_EXPORT cls_MementoWrite
{
public:
    /// Begins the row of class `classId`. Returns zero when the same object is already written (the reference
    /// to its row is then set all the same). Sameness is by `uid` and its address: a copy keeps its source's
    /// identity, yet is an object of its own, so it gets a row of its own under a fresh identity.
    virtual int StartWrite(unsigned classId, const cls_Uid& uid) = 0;
    /// Notes which form of collection the row holds.
    virtual void CheckCollectionType(cls_CollectionType code) = 0;

    virtual void PutInt(const cls_FieldHandle& field, int value) = 0;
    virtual void PutBool(const cls_FieldHandle& field, bool value) = 0;
    virtual void PutDouble(const cls_FieldHandle& field, double value) = 0;
    virtual void PutText(const cls_FieldHandle& field, const cow_String& value) = 0;
    /// A text that outlives the save, as the name of an enumeration's value does.
    virtual void PutConstText(const cls_FieldHandle& field, const char* value) = 0;
    /// Marks a nested object as absent.
    virtual void PutAbsent(const cls_FieldHandle& field) = 0;

    /// The whole content of a list-like row of numbers, row-major; `columns` is 1 for a list.
    virtual void PutDoubles(const double* values, long count, int columns) = 0;
    virtual void PutInts(const int* values, long count) = 0;
    virtual void PutBools(const bool* values, long count) = 0;
    /// One element of a list of texts, in order.
    virtual void PutElementText(const cow_String& value) = 0;
    /// One entry of a map from text to number.
    virtual void PutElementFloat(const cow_String& key, float value) = 0;
    /// The writer for one entry of a map from text to a nested collection.
    virtual cls_MementoWrite* OpenElement(const cow_String& key) = 0;

    /// The writer for the base section of this row.
    virtual cls_MementoWrite* OpenBase(unsigned baseClassId) = 0;
    /// The writer for a nested row; `handle` is the handle that holds the object, or null for a member held
    /// by value.
    virtual cls_MementoWrite* OpenField(const cls_FieldHandle& field, const cls_ErasedHandle* handle) = 0;

    /// Writers for the elements of a collection of objects, owned by this memento and valid until it is
    /// closed. `ordered` is 1 for a list.
    virtual cls_WriteListObj* OpenList(int ordered) = 0;
    virtual cls_WriteMapString2Obj* OpenMapString2Obj() = 0;
    virtual cls_WriteMapInt2Obj* OpenMapInt2Obj() = 0;

    /// Ends the row. Never throws: a failure is kept by the store and thrown by its next operation, at the
    /// latest when the save is finished.
    virtual void Close() noexcept = 0;

protected:
    ~cls_MementoWrite() = default;
};

/// The reading end of one row. Every get throws `rom_StoreException` naming file, table, row and field when
/// the field is missing, holds another type, or refers to a row that is not there.
class OVR_EXPORT cls_MementoRead
{
public:
    /// Identity of this row.
    virtual cls_Uid GetUid() = 0;
    /// Class id of this row.
    virtual unsigned ClassId() = 0;
    /// Throws unless the row holds this form of collection.
    virtual void CheckCollectionType(cls_CollectionType code) = 0;

    virtual int GetInt(const cls_FieldHandle& field) = 0;
    virtual bool GetBool(const cls_FieldHandle& field) = 0;
    virtual double GetDouble(const cls_FieldHandle& field) = 0;
    virtual cow_String GetText(const cls_FieldHandle& field) = 0;
    /// The nested object of class `classId` or of a class derived from it; an empty handle if it is absent.
    /// Reading the same row again gives the same handle. The handle is the store's, valid until its next
    /// operation; turn it back with `cow_Restored` and copy it to take a share.
    virtual const cls_ErasedHandle& GetObject(const cls_FieldHandle& field, unsigned classId) = 0;

    /// Count of numbers in a list-like row, and its columns; the numbers follow by the matching Read call.
    virtual long OpenDoubles(int& columns) = 0;
    virtual void ReadDoubles(double* values) = 0;
    virtual long OpenInts() = 0;
    virtual void ReadInts(int* values) = 0;
    virtual long OpenBools() = 0;
    virtual void ReadBools(bool* values) = 0;
    /// Count of elements of a list of texts or of a map of plain values; each is then reached by its
    /// position.
    virtual long OpenElements() = 0;
    virtual cow_String ElementKey(long position) = 0;
    virtual cow_String ElementText(long position) = 0;
    virtual float ElementFloat(long position) = 0;
    /// The reader for one entry of a map from text to a nested collection.
    virtual cls_MementoRead* OpenElement(long position) = 0;

    /// The reader for the base section of this row.
    virtual cls_MementoRead* OpenBase() = 0;
    /// The reader for the row to which a field refers. Throws if the field is absent.
    virtual cls_MementoRead* OpenField(const cls_FieldHandle& field) = 0;

    /// Readers for the elements of a collection of objects, owned by this memento and valid until it is
    /// closed.
    virtual cls_ReadListObj* OpenList() = 0;
    virtual cls_ReadMapString2Obj* OpenMapString2Obj() = 0;
    virtual cls_ReadMapInt2Obj* OpenMapInt2Obj() = 0;

    /// Ends the reading of this row.
    virtual void Close() noexcept = 0;

protected:
    ~cls_MementoRead() = default;
};

/// Writes the elements of a list of objects.
class OVR_EXPORT cls_WriteListObj
{
public:
    virtual cls_MementoWrite* OpenElement() = 0;
    /// An element whose handle is empty; `classId` is the root class of the elements.
    virtual void PutAbsent(unsigned classId) = 0;
    /// Whether a closing step is due.
    virtual bool HasMore() const = 0;
    virtual void Close() = 0;

protected:
    ~cls_WriteListObj() = default;
};

/// Writes the entries of a map of objects by text.
class OVR_EXPORT cls_WriteMapString2Obj
{
public:
    virtual cls_MementoWrite* OpenElement(const cow_String& key) = 0;
    virtual void PutAbsent(unsigned classId, const cow_String& key) = 0;
    virtual bool HasMore() const = 0;
    virtual void Close() = 0;

protected:
    ~cls_WriteMapString2Obj() = default;
};

/// Writes the entries of a map of objects by number.
class OVR_EXPORT cls_WriteMapInt2Obj
{
public:
    virtual cls_MementoWrite* OpenElement(int key) = 0;
    virtual void PutAbsent(unsigned classId, int key) = 0;
    virtual bool HasMore() const = 0;
    virtual void Close() = 0;

protected:
    ~cls_WriteMapInt2Obj() = default;
};

/// Reads the elements of a list of objects in order: `while (HasRow()) ReadObject(id)`.
class OVR_EXPORT cls_ReadListObj
{
public:
    virtual long Length() = 0;
    virtual bool HasRow() = 0;
    /// The next element, empty if it was written as absent.
    virtual const cls_ErasedHandle& ReadObject(unsigned classId) = 0;
    virtual void Close() = 0;

protected:
    ~cls_ReadListObj() = default;
};

/// Reads the entries of a map of objects by text, in stored order: the object, then its key.
class OVR_EXPORT cls_ReadMapString2Obj
{
public:
    virtual bool HasRow() = 0;
    virtual const cls_ErasedHandle& ReadObject(unsigned classId) = 0;
    /// Key of the entry whose object was read last.
    virtual cow_String ReadKey() = 0;
    virtual void Close() = 0;

protected:
    ~cls_ReadMapString2Obj() = default;
};

/// Reads the entries of a map of objects by number, in stored order: the object, then its key.
class OVR_EXPORT cls_ReadMapInt2Obj
{
public:
    virtual bool HasRow() = 0;
    virtual const cls_ErasedHandle& ReadObject(unsigned classId) = 0;
    virtual int ReadKey() = 0;
    virtual void Close() = 0;

protected:
    ~cls_ReadMapInt2Obj() = default;
};
