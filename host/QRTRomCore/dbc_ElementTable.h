#pragma once

#include "dbc_StageTables.h"
#include "rfm_ElementStore.h"

/// One element of a collection as a row: "Key", "Value", "ClassID", "OID".
class dbc_ElementRow final : public dbc_Row
{
public:
    dbc_ElementRow(const rfm_Database& database, bool isWritable) : database(database), isWritable(isWritable)
    {}

    bool HasField(const rfm_FieldHandle& field) const override;
    bool HasValue(const rfm_FieldHandle& field) const override;
    std::int64_t GetInt(const rfm_FieldHandle& field) const override;
    cow_String GetText(const rfm_FieldHandle& field) const override;
    void PutInt(const rfm_FieldHandle& field, std::int64_t value) override;
    void PutText(const rfm_FieldHandle& field, const cow_String& value) override;
    double GetDouble(const rfm_FieldHandle& field) const override;
    bool GetBool(const rfm_FieldHandle& field) const override;
    void PutDouble(const rfm_FieldHandle& field, double value) override;
    void PutBool(const rfm_FieldHandle& field, bool value) override;
    void PutAbsent(const rfm_FieldHandle& field) override;
    std::int64_t Oid() const override { return position; }

    void Begin(std::int64_t newPosition);

    rfm_Element element;

private:
    const rfm_Cell* Find(const rfm_FieldHandle& field) const;
    const rfm_Cell& Get(const rfm_FieldHandle& field) const;
    rfm_Cell& ForWriting(const rfm_FieldHandle& field);
    [[noreturn]] void Raise(const rfm_FieldHandle& field, const char* message) const;

    const rfm_Database& database;
    bool isWritable;
    std::int64_t position = 0;
    cow_String keyText;
    cow_String valueText;
};

/// The elements of one collection that was stored before the stage.
class dbc_StoredElements final : public dbc_Table
{
public:
    /// `isNew` tells a collection that an earlier stage made; `oid` 0 stands for an absent one.
    dbc_StoredElements(dbc_StageContext& context, const cow_String& name, unsigned classId, std::int64_t oid,
                       bool isNew);

    unsigned ClassId() const override { return classId; }
    const cow_String& Name() const override { return name; }
    int Version() const override { return 0; }
    std::int64_t RowCount() const override;
    const dbc_Row* Find(std::int64_t position) const override;
    const dbc_Row* First() const override;
    const dbc_Row* Next() const override;
    dbc_Row& Edit(std::int64_t position) override;
    dbc_Row& NewRow() override;
    dbc_Row& NewRow(std::int64_t position) override;
    void Commit(dbc_Row& row) override;

private:
    [[noreturn]] void RaiseReadOnly() const;

    dbc_StageContext& context;
    cow_String name;
    unsigned classId;
    std::int64_t oid;
    mutable rfm_ElementCursor cursor;
    mutable dbc_ElementRow row;
};

/// A collection that a stage made, when no more elements will come.
struct dbc_FinishedCollection
{
    unsigned classId;
    std::int64_t oid;
    std::int64_t length;
};

/// The elements of a collection in the making. When it is gone, the collection is finished.
class dbc_NewElements final : public dbc_Table
{
public:
    /// `finished` must have room for one more.
    dbc_NewElements(dbc_StageContext& context, const cow_String& name, unsigned classId, std::int64_t oid,
                    rfm_ElementInserter& inserter, std::vector<dbc_FinishedCollection>& finished);
    ~dbc_NewElements() override;

    unsigned ClassId() const override { return classId; }
    const cow_String& Name() const override { return name; }
    int Version() const override { return 0; }
    std::int64_t RowCount() const override { return length; }
    const dbc_Row* Find(std::int64_t position) const override;
    const dbc_Row* First() const override;
    const dbc_Row* Next() const override;
    dbc_Row& Edit(std::int64_t position) override;
    dbc_Row& NewRow() override;
    dbc_Row& NewRow(std::int64_t position) override;
    void Commit(dbc_Row& row) override;

private:
    [[noreturn]] void Raise(const char* message) const;

    dbc_StageContext& context;
    cow_String name;
    unsigned classId;
    std::int64_t oid;
    rfm_ElementInserter& inserter;
    std::vector<dbc_FinishedCollection>& finished;
    dbc_ElementRow row;
    std::int64_t length = 0;
};
