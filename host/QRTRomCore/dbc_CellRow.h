#pragma once

#include "dbc_Form.h"
#include "dbc_Row.h"
#include "rfm_Database.h"
#include "rfm_RowCopy.h"

#include <deque>
#include <string>

/// A row of cells in one form of a class. A cell that nothing was put into is `Unset`.
class dbc_CellRow final : public dbc_Row
{
public:
    /// `database` names the store in errors.
    dbc_CellRow(const rfm_Database& database, const dbc_Form& form, bool isWritable);

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
    std::int64_t Oid() const override { return oid; }

    const dbc_Form& Form() const { return *form; }

    /// Makes it another row, with all cells unset.
    void Begin(std::int64_t newOid);
    /// The same, with these cells.
    void Begin(std::int64_t newOid, const rfm_Cell* newCells);
    /// Copies the texts and blobs, so that they stay when their source goes on.
    void KeepTexts();
    /// Gives the row an identity of its own.
    void TakeFreshUid();

    /// The cells, as many as the form has.
    rfm_Cell* Cells() { return cells.data(); }
    const rfm_Cell* Cells() const { return cells.data(); }

private:
    void Leave(std::int64_t newOid);
    const rfm_Cell& CellOf(const rfm_FieldHandle& field) const;
    rfm_Cell& CellFor(const rfm_FieldHandle& field, bool isFitting(dbc_Form::Use use), const char* kind);
    [[noreturn]] void Raise(const rfm_FieldHandle& field, const char* message) const;
    [[noreturn]] void RaiseKind(const rfm_FieldHandle& field, const char* kind) const;

    const rfm_Database& database;
    const dbc_Form* form;
    bool isWritable;
    std::int64_t oid = 0;
    std::vector<rfm_Cell> cells;
    std::vector<cow_String> texts;  ///< keeps what was put
    std::deque<std::string> copies; ///< keeps what `KeepTexts` copied
    unsigned char uid[cls_Uid::Size] = {};
};
