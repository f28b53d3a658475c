#include "rfm_RowCopy.h"

#include "rfm_Check.h"
#include "rfm_Database.h"
#include "rfm_RowBatch.h"

#include <algorithm>
#include <sqlite3.h>

namespace
{
constexpr char functionName[] = "rfm_copy_row";
constexpr std::int64_t rowsBetweenReports = 4096;

rfm_Cell CellOf(sqlite3_value* value)
{
    switch (sqlite3_value_type(value))
    {
    case SQLITE_INTEGER:
        return rfm_Cell::Integer(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return rfm_Cell::Real(sqlite3_value_double(value));
    case SQLITE_TEXT:
    {
        const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
        return rfm_Cell::Text({bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))});
    }
    case SQLITE_BLOB:
    {
        const void* bytes = sqlite3_value_blob(value);
        return rfm_Cell::Blob(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
    default:
        return rfm_Cell::Null();
    }
}

/// The kind of cell that a column is made for; `Unset` where there are several.
rfm_CellKind KindFor(rfm_ColumnKind kind)
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
      keepsOrder(KeepsOrder()),
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

/// Whether a row whose cells stay has the check number of its source.
bool rfm_RowCopy::KeepsOrder() const
{
    if (plan.from.checkSeed != plan.to.checkSeed || plan.from.columns.size() != plan.to.columns.size())
        return false;
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
    {
        if (plan.columns[i].source != static_cast<int>(i))
            return false;
    }
    return true;
}

rfm_RowCopy::Quick rfm_RowCopy::QuickOf(const rfm_CopyColumn& column, rfm_ColumnKind kind)
{
    if (column.source < 0 || column.use == rfm_CopyColumn::Use::ClassId)
        return {};
    return {static_cast<std::size_t>(column.source), KindFor(kind)};
}

void rfm_RowCopy::Run(const std::function<void(std::int64_t)>& newProgress)
{
    progress = &newProgress;
    plan.expectsNoNull = plan.expectsNoNull && FitsOneStatement();
    appends = plan.expectsNoNull;
    if (FitsOneStatement())
        RunAsOne();
    else
        RunRowByRow();
    newProgress(untoldRows);
    untoldRows = 0;
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
    const std::string key = appends ? "" : rfm_Quoted(plan.to.keyColumn) + ",";
    const char* deed = plan.onConflict == rfm_OnConflict::Replace ? "REPLACE" : "INSERT";
    std::string sql = std::string(deed) + " INTO " + plan.to.SqlName() + " (" + key;
    for (const rfm_Column& column : plan.to.columns)
        sql += rfm_Quoted(column.name) + ",";
    sql += rfm_Quoted(rfm_CheckColumn) + ") SELECT ";
    if (!appends)
        sql += rfm_Quoted(plan.from.keyColumn) + ",";
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
        for (std::size_t i = 0; i < source.size(); ++i)
            source[i] = rows.Column(static_cast<int>(i + 2));
        const std::int64_t check = Convert(oid, rows.Column(0));
        row.front() = rfm_Cell::Integer(oid);
        std::copy(target.begin(), target.end(), row.begin() + 1);
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
        for (int i = 2; i < count; ++i)
            copy->source[static_cast<std::size_t>(i - 2)] = ::CellOf(arguments[i]);
        sqlite3_result_int64(context,
                             copy->Convert(sqlite3_value_int64(arguments[1]), ::CellOf(arguments[0])));
    }
    catch (...)
    {
        copy->failure = std::current_exception();
        sqlite3_result_error(context, "The row can't be copied.", -1);
    }
}

std::int64_t rfm_RowCopy::Convert(std::int64_t oid, const rfm_Cell& check)
{
    rfm_Check expected(plan.from.checkSeed, oid);
    if (!check.IsNull() || keepsOrder)
    {
        for (const rfm_Cell& cell : source)
            expected.Add(cell);
        if (!check.IsNull() && (!check.Is(rfm_CellKind::Integer) || check.integer != expected.Number()))
            RaiseDamaged(oid);
    }
    bool isSame = keepsOrder;
    for (std::size_t i = 0; i < target.size(); ++i)
    {
        const rfm_Cell& cell = source[quick[i].source];
        target[i] = cell.Is(quick[i].kind) ? cell : CellOf(i, oid, isSame);
    }
    for (rfm_ReferenceColumn& reference : references)
        reference.Note(target.data());
    CountRow(oid);
    if (appends && oid != ++lastAppended)
        RaiseHole(oid);
    if (isSame)
        return expected.Number();
    rfm_Check made(plan.to.checkSeed, oid);
    for (const rfm_Cell& cell : target)
        made.Add(cell);
    return made.Number();
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
        cell = rfm_Cell::Real(static_cast<double>(cell.integer));
        isSame = false;
    }
    rfm_RequireKind(*plan.owner, plan.to, position, oid, cell);
    return cell;
}

void rfm_RowCopy::CountRow(std::int64_t oid)
{
    numbers.Note(oid);
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
