#include "dbc_CellRow.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace
{
using Use = dbc_Form::Use;

bool IsInteger(Use use)
{
    return use == Use::Integer || use == Use::Boolean || use == Use::ClassId || use == Use::RowNumber ||
           use == Use::Base || use == Use::OptionalNumber;
}

bool IsBoolean(Use use)
{
    return use == Use::Boolean;
}

bool IsReal(Use use)
{
    return use == Use::Real;
}

bool IsText(Use use)
{
    return use == Use::Text;
}

bool HoldsValue(const rfm_Cell& cell)
{
    const bool isEmpty = cell.Is(rfm_CellKind::Unset) || cell.IsNull();
    return !isEmpty && !(cell.Is(rfm_CellKind::Integer) && cell.integer == rfm_UnsetReference);
}

/// A double that is stored as its bits, lowest byte first.
double RealOfBits(const rfm_Cell& cell)
{
    std::uint64_t bits = 0;
    for (int i = 0; i < 8; ++i)
        bits |= static_cast<std::uint64_t>(static_cast<unsigned char>(cell.bytes[i])) << (8 * i);
    return std::bit_cast<double>(bits);
}
} // namespace

dbc_CellRow::dbc_CellRow(const rfm_Database& database, const dbc_Form& form, bool isWritable)
    : database(database),
      form(&form),
      isWritable(isWritable),
      cells(static_cast<std::size_t>(form.CellCount()))
{}

void dbc_CellRow::Begin(std::int64_t newOid)
{
    Leave(newOid);
    cells.assign(cells.size(), rfm_Cell());
}

void dbc_CellRow::Begin(std::int64_t newOid, const rfm_Cell* newCells)
{
    Leave(newOid);
    std::copy_n(newCells, cells.size(), cells.begin());
}

void dbc_CellRow::Leave(std::int64_t newOid)
{
    oid = newOid;
    texts.clear();
    if (!copies.empty())
        copies.clear();
}

void dbc_CellRow::KeepTexts()
{
    for (rfm_Cell& cell : cells)
    {
        if (cell.Is(rfm_CellKind::Text) || cell.Is(rfm_CellKind::Blob))
            cell.bytes = copies.emplace_back(cell.View()).data();
    }
}

void dbc_CellRow::TakeFreshUid()
{
    cls_Uid fresh;
    fresh.AllocateUid();
    fresh.ToBytes(uid);
    cells[rom_ClassPlan::UidCell] = rfm_Cell::Blob(uid, sizeof uid);
}

bool dbc_CellRow::HasField(const rfm_FieldHandle& field) const
{
    return form->Find(field.Name().View()).cell >= 0;
}

bool dbc_CellRow::HasValue(const rfm_FieldHandle& field) const
{
    const dbc_Form::Field found = form->Find(field.Name().View());
    if (found.cell < 0)
        return false;
    const rfm_Cell& cell = cells[static_cast<std::size_t>(found.cell)];
    // -1 is a number like any other but in a class id.
    if (form->UseOf(found.cell) == Use::ClassId)
        return HoldsValue(cell);
    return !cell.Is(rfm_CellKind::Unset) && !cell.IsNull();
}

const rfm_Cell& dbc_CellRow::CellOf(const rfm_FieldHandle& field) const
{
    const dbc_Form::Field found = form->Find(field.Name().View());
    if (found.cell < 0 || found.isReference) [[unlikely]]
        Raise(field, "The table has no such field.");
    return cells[static_cast<std::size_t>(found.cell)];
}

std::int64_t dbc_CellRow::GetInt(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = CellOf(field);
    if (!cell.Is(rfm_CellKind::Integer)) [[unlikely]]
        RaiseKind(field, "an integer");
    return cell.integer;
}

bool dbc_CellRow::GetBool(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = CellOf(field);
    if (!cell.Is(rfm_CellKind::Integer) || cell.integer < 0 || cell.integer > 1) [[unlikely]]
        RaiseKind(field, "0 or 1");
    return cell.integer != 0;
}

double dbc_CellRow::GetDouble(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = CellOf(field);
    if (cell.Is(rfm_CellKind::Real))
        return cell.real;
    if (!cell.Is(rfm_CellKind::Blob) || cell.size != sizeof(double)) [[unlikely]]
        RaiseKind(field, "a real number");
    return RealOfBits(cell);
}

cow_String dbc_CellRow::GetText(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = CellOf(field);
    if (!cell.Is(rfm_CellKind::Text)) [[unlikely]]
        RaiseKind(field, "a text");
    if (cell.size > 0 && std::memchr(cell.bytes, 0, cell.size)) [[unlikely]]
        Raise(field, "The text holds a null character.");
    return cow_String(cell.bytes, cell.size);
}

rfm_Cell& dbc_CellRow::CellFor(const rfm_FieldHandle& field, bool isFitting(Use use), const char* kind)
{
    if (!isWritable) [[unlikely]]
        Raise(field, "An input row can't be written to.");
    const dbc_Form::Field found = form->Find(field.Name().View());
    if (found.cell < 0 || found.isReference) [[unlikely]]
        Raise(field, "The table has no such field.");
    if (!isFitting(form->UseOf(found.cell))) [[unlikely]]
        Raise(field, (std::string("The field can't hold ") + kind + ".").c_str());
    return cells[static_cast<std::size_t>(found.cell)];
}

void dbc_CellRow::PutInt(const rfm_FieldHandle& field, std::int64_t value)
{
    CellFor(field, IsInteger, "an integer") = rfm_Cell::Integer(value);
}

void dbc_CellRow::PutBool(const rfm_FieldHandle& field, bool value)
{
    CellFor(field, IsBoolean, "a boolean") = rfm_Cell::Integer(value);
}

void dbc_CellRow::PutDouble(const rfm_FieldHandle& field, double value)
{
    CellFor(field, IsReal, "a double") = rfm_Cell::Real(value);
}

void dbc_CellRow::PutText(const rfm_FieldHandle& field, const cow_String& value)
{
    rfm_Cell& cell = CellFor(field, IsText, "a text");
    texts.push_back(value);
    cell = rfm_Cell::Text(texts.back().View());
}

void dbc_CellRow::PutAbsent(const rfm_FieldHandle& field)
{
    if (!isWritable)
        Raise(field, "An input row can't be written to.");
    const dbc_Form::Field found = form->Find(field.Name().View());
    if (found.cell < 0)
        Raise(field, "The table has no such field.");
    if (!found.isReference)
        Raise(field, "Only an object can be absent.");
    cells[static_cast<std::size_t>(found.cell)] = rfm_Cell::Null();
    cells[static_cast<std::size_t>(found.cell) + 1] = rfm_Cell::Null();
}

void dbc_CellRow::Raise(const rfm_FieldHandle& field, const char* message) const
{
    database.Raise(message, form->Name(), oid, field.Name());
}

void dbc_CellRow::RaiseKind(const rfm_FieldHandle& field, const char* kind) const
{
    Raise(field, (std::string("Expected ") + kind + ".").c_str());
}
