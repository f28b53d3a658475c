#pragma once

#include "cls_Memento.h"

#include <gmock/gmock.h>

// The two ends of a row and of a collection, as mocks: which calls are made, and in which order.

class WriteMementoMock : public cls_MementoWrite
{
public:
    virtual ~WriteMementoMock() = default;

    MOCK_METHOD(int, StartWrite, (unsigned, const cls_Uid&), (override));
    MOCK_METHOD(void, CheckCollectionType, (cls_CollectionType), (override));
    MOCK_METHOD(void, PutInt, (const cls_FieldHandle&, int), (override));
    MOCK_METHOD(void, PutBool, (const cls_FieldHandle&, bool), (override));
    MOCK_METHOD(void, PutDouble, (const cls_FieldHandle&, double), (override));
    MOCK_METHOD(void, PutText, (const cls_FieldHandle&, const cow_String&), (override));
    MOCK_METHOD(void, PutConstText, (const cls_FieldHandle&, const char*), (override));
    MOCK_METHOD(void, PutAbsent, (const cls_FieldHandle&), (override));
    MOCK_METHOD(void, PutDoubles, (const double*, long, int), (override));
    MOCK_METHOD(void, PutInts, (const int*, long), (override));
    MOCK_METHOD(void, PutBools, (const bool*, long), (override));
    MOCK_METHOD(void, PutElementText, (const cow_String&), (override));
    MOCK_METHOD(void, PutElementFloat, (const cow_String&, float), (override));
    MOCK_METHOD(cls_MementoWrite*, OpenElement, (const cow_String&), (override));
    MOCK_METHOD(cls_MementoWrite*, OpenBase, (unsigned), (override));
    MOCK_METHOD(cls_MementoWrite*, OpenField, (const cls_FieldHandle&, const cls_ErasedHandle*), (override));
    MOCK_METHOD(cls_WriteListObj*, OpenList, (int), (override));
    MOCK_METHOD(cls_WriteMapString2Obj*, OpenMapString2Obj, (), (override));
    MOCK_METHOD(cls_WriteMapInt2Obj*, OpenMapInt2Obj, (), (override));
    MOCK_METHOD(void, Close, (), (noexcept, override));
};

class ReadMementoMock : public cls_MementoRead
{
public:
    virtual ~ReadMementoMock() = default;

    MOCK_METHOD(cls_Uid, GetUid, (), (override));
    MOCK_METHOD(unsigned, ClassId, (), (override));
    MOCK_METHOD(void, CheckCollectionType, (cls_CollectionType), (override));
    MOCK_METHOD(int, GetInt, (const cls_FieldHandle&), (override));
    MOCK_METHOD(bool, GetBool, (const cls_FieldHandle&), (override));
    MOCK_METHOD(double, GetDouble, (const cls_FieldHandle&), (override));
    MOCK_METHOD(cow_String, GetText, (const cls_FieldHandle&), (override));
    MOCK_METHOD(const cls_ErasedHandle&, GetObject, (const cls_FieldHandle&, unsigned), (override));
    MOCK_METHOD(long, OpenDoubles, (int&), (override));
    MOCK_METHOD(void, ReadDoubles, (double*), (override));
    MOCK_METHOD(long, OpenInts, (), (override));
    MOCK_METHOD(void, ReadInts, (int*), (override));
    MOCK_METHOD(long, OpenBools, (), (override));
    MOCK_METHOD(void, ReadBools, (bool*), (override));
    MOCK_METHOD(long, OpenElements, (), (override));
    MOCK_METHOD(cow_String, ElementKey, (long), (override));
    MOCK_METHOD(cow_String, ElementText, (long), (override));
    MOCK_METHOD(float, ElementFloat, (long), (override));
    MOCK_METHOD(cls_MementoRead*, OpenElement, (long), (override));
    MOCK_METHOD(cls_MementoRead*, OpenBase, (), (override));
    MOCK_METHOD(cls_MementoRead*, OpenField, (const cls_FieldHandle&), (override));
    MOCK_METHOD(cls_ReadListObj*, OpenList, (), (override));
    MOCK_METHOD(cls_ReadMapString2Obj*, OpenMapString2Obj, (), (override));
    MOCK_METHOD(cls_ReadMapInt2Obj*, OpenMapInt2Obj, (), (override));
    MOCK_METHOD(void, Close, (), (noexcept, override));
};

class WriteListMock : public cls_WriteListObj
{
public:
    virtual ~WriteListMock() = default;

    MOCK_METHOD(cls_MementoWrite*, OpenElement, (), (override));
    MOCK_METHOD(void, PutAbsent, (unsigned), (override));
    MOCK_METHOD(bool, HasMore, (), (const, override));
    MOCK_METHOD(void, Close, (), (override));
};

/// `Writer` is the writer of maps by `Key`, `KeyArgument` how it takes a key.
template <class Writer, class KeyArgument>
class WriteMapMock : public Writer
{
public:
    virtual ~WriteMapMock() = default;

    MOCK_METHOD(cls_MementoWrite*, OpenElement, (KeyArgument), (override));
    MOCK_METHOD(void, PutAbsent, (unsigned, KeyArgument), (override));
    MOCK_METHOD(bool, HasMore, (), (const, override));
    MOCK_METHOD(void, Close, (), (override));
};

class ReadListMock : public cls_ReadListObj
{
public:
    virtual ~ReadListMock() = default;

    MOCK_METHOD(long, Length, (), (override));
    MOCK_METHOD(bool, HasRow, (), (override));
    MOCK_METHOD(const cls_ErasedHandle&, ReadObject, (unsigned), (override));
    MOCK_METHOD(void, Close, (), (override));
};

/// `Reader` is the reader of maps by `Key`.
template <class Reader, class Key>
class ReadMapMock : public Reader
{
public:
    virtual ~ReadMapMock() = default;

    MOCK_METHOD(bool, HasRow, (), (override));
    MOCK_METHOD(const cls_ErasedHandle&, ReadObject, (unsigned), (override));
    MOCK_METHOD(Key, ReadKey, (), (override));
    MOCK_METHOD(void, Close, (), (override));
};
