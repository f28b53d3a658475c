#include "rfm_RowCopy.h"

#include "rfm_Database.h"
#include "rfm_RowBatch.h"
#include "rfm_Value.h"

#include <algorithm>

namespace
{
constexpr char functionName[] = "rfm_copy_row";
constexpr std::int64_t rowsBetweenReports = 4096;

bool Fits(const rfm_Cell& cell, rfm_ColumnKind kind)
{
    switch (kind)
    {
    case rfm_ColumnKind::Integer:
        return cell.Is(rfm_CellKind::Integer);
    case rfm_ColumnKind::Real:
        return cell.Is(rfm_CellKind::Real) || (cell.Is(rfm_CellKind::Blob) && cell.size == sizeof(double));
    case rfm_ColumnKind::Text:
        return cell.Is(rfm_CellKind::Text);
    case rfm_ColumnKind::Blob:
        return cell.Is(rfm_CellKind::Blob);
    case rfm_ColumnKind::Any:
        break;
    }
    return true;
}
} // namespace

void rfm_ReferenceColumn::NoteOther(std::int64_t classId, std::int64_t oid)
{
    const auto found = std::find_if(ranges.begin(), ranges.end(),
                                    [classId](const Range& range) { return range.classId == classId; });
    last = static_cast<std::size_t>(found - ranges.begin());
    if (found == ranges.end())
        ranges.push_back({classId, oid, oid});
    else
        *found = {classId, std::min(found->low, oid), std::max(found->high, oid)};
}

rfm_CellKind rfm_PlainKindOf(rfm_ColumnKind kind)
{
    switch (kind)
    {
    case rfm_ColumnKind::Integer:
        return rfm_CellKind::Integer;
    case rfm_ColumnKind::Real:
        return rfm_CellKind::Real;
    case rfm_ColumnKind::Text:
        return rfm_CellKind::Text;
    case rfm_ColumnKind::Blob:
        return rfm_CellKind::Blob;
    case rfm_ColumnKind::Any:
        break;
    }
    return rfm_CellKind::Unset;
}

void rfm_RequireKind(const rfm_Database& owner, const rfm_TableForm& form, std::size_t column,
                     std::int64_t oid, const rfm_Cell& cell)
{
    if (Fits(cell, form.columns[column].kind)) [[likely]]
        return;
    owner.Raise(cell.IsNull() ? "The cell holds no value."
                              : "The cell holds another kind of value than its column.",
                form.name, oid, form.columns[column].name);
}

rfm_RowCopy::rfm_RowCopy(rfm_Database& database, Plan newPlan, std::vector<rfm_ReferenceColumn>& references,
                         rfm_RowNumbers& numbers)
    : database(database),
      plan(std::move(newPlan)),
      references(references),
      numbers(numbers),
      sharedCells(CountSharedCells()),
      source(plan.from.columns.size()),
      target(plan.to.columns.size())
{
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
        quick.push_back(QuickOf(plan.columns[i], plan.to.columns[i].kind));
}

void rfm_RowCopy::AddFunction(sqlite3* connection, rfm_RowCopy** place)
{
    sqlite3_create_function_v2(connection, functionName, -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, place, CopyRow,
                               nullptr, nullptr, nullptr);
}

std::size_t rfm_RowCopy::CountSharedCells() const
{
    if (plan.from.checkSeed != plan.to.checkSeed)
        return 0;
    std::size_t count = 0;
    while (count < plan.columns.size() && plan.columns[count].source == static_cast<int>(count))
        ++count;
    return count;
}

rfm_RowCopy::Quick rfm_RowCopy::QuickOf(const rfm_CopyColumn& column, rfm_ColumnKind kind)
{
    if (column.source < 0 || column.use == rfm_CopyColumn::Use::ClassId)
        return {};
    return {static_cast<std::size_t>(column.source), rfm_PlainKindOf(kind)};
}

void rfm_RowCopy::Run(const std::function<void(std::int64_t)>& newProgress)
{
    progress = &newProgress;
    plan.expectsNoNull = plan.expectsNoNull && FitsOneStatement();
    appends = plan.expectsNoNull;
    try
    {
        CopyRows();
    }
    catch (const rom_StoreException&)
    {
        RequireSource();
        throw;
    }
    newProgress(untoldRows);
    untoldRows = 0;
}

void rfm_RowCopy::CopyRows()
{
    if (FitsOneStatement())
        RunAsOne();
    else
        RunRowByRow();
}

/// What SQLite finds wrong is told of the connection's own file. If it is the store of the rows that can't be
/// read, that store's own connection meets it as well, and names it.
void rfm_RowCopy::RequireSource()
{
    const int found = sqlite3_errcode(database.Connection()) & 0xFF;
    const bool isReading = found == SQLITE_CORRUPT || found == SQLITE_IOERR || found == SQLITE_NOTADB;
    if (!isReading || plan.owner == &database)
        return;
    rfm_Statement rows(*plan.owner, "SELECT * FROM " + rfm_Quoted(plan.from.name), plan.from.name);
    while (rows.Step())
    {}
}

bool rfm_RowCopy::FitsOneStatement() const
{
    return plan.from.columns.size() + 2 <= mostArguments;
}

std::string rfm_RowCopy::SqlOfColumn(std::size_t position, int& parameter) const
{
    const rfm_CopyColumn& column = plan.columns[position];
    if (column.source < 0)
        return "?" + std::to_string(parameter++);
    const std::string name = rfm_Quoted(plan.from.columns[static_cast<std::size_t>(column.source)].name);
    if (column.use == rfm_CopyColumn::Use::Number)
        return name;
    if (plan.expectsNoNull && (column.use == rfm_CopyColumn::Use::Scalar || plan.changes.empty()))
        return name;
    if (column.use == rfm_CopyColumn::Use::Scalar)
        return "COALESCE(" + name + ",?" + std::to_string(parameter++) + ")";
    std::string sql = "CASE " + name + " WHEN -1 THEN ?" + std::to_string(parameter++);
    for (const rfm_ClassIdChange& change : plan.changes)
        sql += " WHEN " + std::to_string(change.from) + " THEN " + std::to_string(change.to);
    return sql + " ELSE " + name + " END";
}

std::string rfm_RowCopy::SqlOfConditions() const
{
    std::string sql;
    for (const rfm_TableForm& cover : plan.coveredBy)
        sql += std::string(sql.empty() ? " WHERE " : " AND ") + rfm_Quoted(plan.from.keyColumn) +
               " NOT IN (SELECT " + rfm_Quoted(cover.keyColumn) + " FROM " + cover.SqlName() + ")";
    return sql;
}

std::string rfm_RowCopy::SqlOfSourceColumns() const
{
    std::string sql = rfm_Quoted(rfm_CheckColumn) + "," + rfm_Quoted(plan.from.keyColumn);
    for (const rfm_Column& column : plan.from.columns)
        sql += "," + rfm_Quoted(column.name);
    return sql;
}

void rfm_RowCopy::BindParameters(rfm_Statement& statement) const
{
    int parameter = 1;
    for (const rfm_CopyColumn& column : plan.columns)
    {
        const bool isPlain =
            column.use == rfm_CopyColumn::Use::Number ||
            (plan.expectsNoNull && (column.use == rfm_CopyColumn::Use::Scalar || plan.changes.empty()));
        if (column.source < 0 || !isPlain)
            statement.Bind(parameter++, column.fallback);
    }
}

void rfm_RowCopy::RunAsOne()
{
    const std::vector<rfm_ReferenceColumn> referencesBefore = references;
    const rfm_RowNumbers numbersBefore = numbers;
    while (!IsRun())
    {
        references = referencesBefore;
        numbers = numbersBefore;
        rfm_Statement(database, "DELETE FROM " + plan.to.SqlName(), plan.to.name).Run();
    }
}

/// False where the rows are not what the copy expects of them; then it expects less.
bool rfm_RowCopy::IsRun()
{
    hasMetNull = false;
    hasMetHole = false;
    lastAppended = 0;
    try
    {
        RunStatement();
        return true;
    }
    catch (const rom_StoreException&)
    {
        if (!hasMetNull && !hasMetHole)
            throw;
        plan.expectsNoNull = plan.expectsNoNull && !hasMetNull;
        appends = appends && !hasMetHole;
        return false;
    }
}

std::string rfm_RowCopy::SqlToRun() const
{
    int parameter = 1;
    const char* deed = plan.onConflict == rfm_OnConflict::Replace ? "REPLACE" : "INSERT";
    std::string sql =
        std::string(deed) + " INTO " + plan.to.SqlName() + " (" + rfm_Quoted(plan.to.keyColumn) + ",";
    for (const rfm_Column& column : plan.to.columns)
        sql += rfm_Quoted(column.name) + ",";
    // With all columns in the table's order SQLite makes the record where it puts the values.
    sql += rfm_Quoted(rfm_CheckColumn) + ") SELECT " + (appends ? "NULL" : rfm_Quoted(plan.from.keyColumn)) +
           ",";
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
        sql += SqlOfColumn(i, parameter) + ",";
    return sql + functionName + "(" + SqlOfSourceColumns() + ") FROM " + plan.from.SqlName() +
           SqlOfConditions();
}

void rfm_RowCopy::RunStatement()
{
    failure = nullptr;
    rfm_Statement statement(database, SqlToRun(), plan.from.name);
    BindParameters(statement);
    database.SetRowCopy(this);
    try
    {
        statement.Run();
    }
    catch (...)
    {
        database.SetRowCopy(nullptr);
        if (failure)
            std::rethrow_exception(failure);
        throw;
    }
    database.SetRowCopy(nullptr);
    if (lastAppended > 0)
        database.RequireLastRow(plan.to, lastAppended);
}

void rfm_RowCopy::RunRowByRow()
{
    rfm_Statement rows(database,
                       "SELECT " + SqlOfSourceColumns() + " FROM " + plan.from.SqlName() + SqlOfConditions(),
                       plan.from.name);
    rfm_RowBatch batch(database, plan.to, plan.onConflict == rfm_OnConflict::Replace ? "REPLACE" : "INSERT");
    std::vector<rfm_Cell> row(target.size() + 2);
    while (rows.Step())
    {
        const std::int64_t oid = rows.Column(1).integer;
        const std::int64_t check = Convert(oid, rows.Column(0),
                                           [&rows](std::size_t i, rfm_Check& found)
                                           { return rows.Column(static_cast<int>(i + 2), found); });
        row.front() = rfm_Cell::Integer(oid);
        std::copy_n(newRow, target.size(), row.begin() + 1);
        row.back() = rfm_Cell::Integer(check);
        batch.Add(row.data());
    }
    batch.Flush();
}

void rfm_RowCopy::CopyRow(sqlite3_context* context, int count, sqlite3_value** arguments)
{
    rfm_RowCopy* copy = *static_cast<rfm_RowCopy**>(sqlite3_user_data(context));
    if (!copy || static_cast<std::size_t>(count) != copy->source.size() + 2)
    {
        sqlite3_result_error(context, "No rows are being copied.", -1);
        return;
    }
    try
    {
        sqlite3_value** cells = arguments + 2;
        const std::int64_t check = copy->Convert(sqlite3_value_int64(arguments[1]), rfm_CellOf(arguments[0]),
                                                 [cells](std::size_t i, rfm_Check& found)
                                                 { return rfm_CheckedCellOf(cells[i], found); });
        sqlite3_result_int64(context, check);
    }
    catch (...)
    {
        copy->failure = std::current_exception();
        sqlite3_result_error(context, "The row can't be copied.", -1);
    }
}

/// The check number goes through the cells in order, so that of the new row begins as that of its source.
template <class TakeCell>
std::int64_t rfm_RowCopy::Convert(std::int64_t oid, const rfm_Cell& check, const TakeCell& takeCell)
{
    rfm_Check found(plan.from.checkSeed, oid);
    rfm_Cell* cells = source.data();
    bool isShared = true;
    for (std::size_t i = 0; i < sharedCells; ++i)
    {
        cells[i] = takeCell(i, found);
        isShared = isShared && cells[i].Is(quick[i].kind);
    }
    rfm_Check made = found;
    for (std::size_t i = sharedCells; i < source.size(); ++i)
        cells[i] = takeCell(i, found);
    if (!check.IsNull() && (!check.Is(rfm_CellKind::Integer) || check.integer != found.Number()))
        RaiseDamaged(oid);
    newRow = cells;
    if (!isShared || sharedCells < target.size())
    {
        const std::size_t same = MakeTarget(oid) ? sharedCells : 0;
        if (same == 0)
            made = rfm_Check(plan.to.checkSeed, oid);
        for (std::size_t i = same; i < target.size(); ++i)
            made.Add(target[i]);
        newRow = target.data();
    }
    for (rfm_ReferenceColumn& reference : references)
        reference.Note(newRow);
    CountRow(oid);
    return made.Number();
}

/// Returns whether the cells that the new row shares with its source stayed as they were.
bool rfm_RowCopy::MakeTarget(std::int64_t oid)
{
    std::size_t firstChanged = target.size();
    for (std::size_t i = 0; i < target.size(); ++i)
    {
        const rfm_Cell& cell = source[quick[i].source];
        if (cell.Is(quick[i].kind)) [[likely]]
        {
            target[i] = cell;
            continue;
        }
        bool isSame = true;
        target[i] = CellOf(i, oid, isSame);
        if (!isSame)
            firstChanged = std::min(firstChanged, i);
    }
    return firstChanged >= sharedCells;
}

/// What the column's expression in SQL gives as well.
rfm_Cell rfm_RowCopy::CellOf(std::size_t position, std::int64_t oid, bool& isSame)
{
    const rfm_CopyColumn& column = plan.columns[position];
    const rfm_ColumnKind kind = plan.to.columns[position].kind;
    rfm_Cell cell = column.source < 0 ? column.fallback : source[static_cast<std::size_t>(column.source)];
    if (cell.IsNull())
    {
        if (column.use != rfm_CopyColumn::Use::Scalar)
            return cell;
        cell = column.fallback;
        isSame = false;
        if (plan.expectsNoNull && column.source >= 0)
            RaiseNull(oid, position);
    }
    else if (column.use == rfm_CopyColumn::Use::ClassId && cell.Is(rfm_CellKind::Integer) &&
             column.source >= 0)
    {
        const auto change =
            std::find_if(plan.changes.begin(), plan.changes.end(),
                         [&cell](const rfm_ClassIdChange& each) { return each.from == cell.integer; });
        if (change != plan.changes.end())
        {
            cell.integer = change->to;
            isSame = false;
        }
        else if (cell.integer == rfm_UnsetReference)
        {
            isSame = false;
            return column.fallback;
        }
    }
    // A column that is declared to hold real numbers makes them of integers.
    if (kind == rfm_ColumnKind::Real && cell.Is(rfm_CellKind::Integer))
    {
        cell = rfm_AsReal(cell);
        isSame = false;
    }
    rfm_RequireKind(*plan.owner, plan.to, position, oid, cell);
    return cell;
}

void rfm_RowCopy::CountRow(std::int64_t oid)
{
    numbers.Note(oid);
    if (appends && oid != ++lastAppended)
        RaiseHole(oid);
    if (++untoldRows < rowsBetweenReports)
        return;
    (*progress)(untoldRows);
    untoldRows = 0;
}

void rfm_RowCopy::RaiseDamaged(std::int64_t oid) const
{
    plan.owner->Raise("The row does not fit its check number: the file is damaged.", plan.from.name, oid,
                      rfm_CheckColumn);
}

void rfm_RowCopy::RaiseNull(std::int64_t oid, std::size_t column)
{
    hasMetNull = true;
    plan.owner->Raise("The cell holds no value.", plan.from.name, oid, plan.to.columns[column].name);
}

void rfm_RowCopy::RaiseHole(std::int64_t oid)
{
    hasMetHole = true;
    plan.owner->Raise("The row does not follow the one before.", plan.from.name, oid);
}
