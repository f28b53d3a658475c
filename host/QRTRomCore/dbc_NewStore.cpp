#include "dbc_NewStore.h"

#include "dbc_Reach.h"
#include "mdl_Repository.h"
#include "typ_ArchCompTable.h"

#include <algorithm>
#include <climits>

namespace
{
using Use = dbc_Form::Use;

rfm_CopyColumn::Use CopyUseOf(Use use)
{
    switch (use)
    {
    case Use::ClassId:
        return rfm_CopyColumn::Use::ClassId;
    case Use::Base:
    case Use::RowNumber:
    case Use::OptionalNumber:
        return rfm_CopyColumn::Use::Number;
    default:
        return rfm_CopyColumn::Use::Scalar;
    }
}

/// A plan that copies a table as it is.
rfm_RowCopy::Plan WholeCopy(rfm_Database& owner, const rfm_TableForm& from, const char* schema)
{
    rfm_RowCopy::Plan plan{&owner, from, from, {}, {}, {}};
    plan.from.schema = schema;
    for (std::size_t i = 0; i < from.columns.size(); ++i)
        plan.columns.push_back({static_cast<int>(i), rfm_CopyColumn::Use::Scalar, rfm_Cell::Null()});
    return plan;
}

std::string Described(std::int64_t classId)
{
    const char* name =
        classId > 0 && classId <= UINT_MAX ? typ_ArchCompTable::GetName(static_cast<unsigned>(classId)) : "";
    return *name ? name : "unknown class " + std::to_string(classId);
}
} // namespace

dbc_NewStore::dbc_NewStore(const dbc_Stores& stores, const dbc_Forms& forms,
                           const std::vector<rfm_ClassIdChange>& changes,
                           std::function<void(std::int64_t)> progress)
    : stores(stores), forms(forms), changes(changes), progress(std::move(progress))
{}

dbc_NewStore::~dbc_NewStore() = default;

void dbc_NewStore::TakeArrays()
{
    if (!stores.old.HasArrays())
        return;
    std::vector<rfm_ReferenceColumn> none;
    rfm_RowNumbers numbers;
    rfm_RowCopy(stores.working, WholeCopy(stores.old, rfm_TableForm::Arrays(), rfm_OldSchema), none, numbers)
        .Run(progress);
}

void dbc_NewStore::TakeElements()
{
    elementReferences.emplace_back(4, 5);
    if (stores.old.HasElements())
        CopyElements(stores.old, rfm_OldSchema);
    CopyElements(stores.working, rfm_ScratchSchema);
}

void dbc_NewStore::CopyElements(rfm_Database& owner, const char* schema)
{
    constexpr int optionalFrom = 2;
    constexpr int classIdAt = 4;
    rfm_RowCopy::Plan plan = WholeCopy(owner, rfm_Elements::Form(), schema);
    for (std::size_t i = optionalFrom; i < plan.columns.size(); ++i)
        plan.columns[i].use = i == classIdAt ? rfm_CopyColumn::Use::ClassId : rfm_CopyColumn::Use::Number;
    plan.changes = changes;
    rfm_RowNumbers numbers;
    rfm_RowCopy(stores.working, std::move(plan), elementReferences, numbers).Run(progress);
}

void dbc_NewStore::TakeRoots()
{
    for (rfm_Root root : stores.old.Roots())
    {
        for (const rfm_ClassIdChange& change : changes)
        {
            if (change.from != root.classId)
                continue;
            root.classId = static_cast<unsigned>(change.to);
            break;
        }
        const auto table = tables.find(root.classId);
        if (table == tables.end())
            stores.old.Raise(std::string("The object of the name \"") + root.name.CString() +
                                 "\" is of a class that has no table.",
                             rfm_TableForm::Roots().name);
        rfm_Cursor cursor(stores.working, table->second.physical);
        if (!cursor.Seek(root.oid))
            stores.old.Raise(std::string("The object of the name \"") + root.name.CString() +
                                 "\" has no row.",
                             table->second.form->Name(), root.oid);
        stores.working.InsertRoot(root);
        roots.push_back(root);
    }
}

std::vector<rfm_ReferenceColumn> dbc_NewStore::ReferencesOf(const dbc_Form& form)
{
    std::vector<rfm_ReferenceColumn> references;
    for (int i = 0; i < form.CellCount(); ++i)
    {
        if (form.UseOf(i) == Use::Base)
            references.emplace_back(-1, i, form.Table().baseClassId);
        else if (form.UseOf(i) == Use::ClassId)
            references.emplace_back(i, i + 1);
    }
    return references;
}

dbc_NewStore::Table& dbc_NewStore::OpenTable(const dbc_Form& form)
{
    Table& table = tables[form.ClassId()];
    table.form = &form;
    table.physical = rfm_TableForm::Of(form.Table());
    table.references = ReferencesOf(form);
    stores.working.CreateTable(form.Table());
    return table;
}

dbc_NewStore::Table& dbc_NewStore::TableOf(unsigned classId)
{
    const auto found = tables.find(classId);
    if (found != tables.end())
        return found->second;
    const dbc_Form* form = forms.Current(classId);
    if (!form)
        stores.working.Raise("A default object is of a class that has no table: " + Described(classId) + ".");
    return OpenTable(*form);
}

void dbc_NewStore::TakeTable(const dbc_TableState& state)
{
    const auto begun = tables.find(state.form->ClassId());
    Table& table = begun == tables.end() ? OpenTable(*state.form) : begun->second;
    for (std::size_t i = table.isBegun ? 1 : 0; i < state.layers.size(); ++i)
        CopyLayer(table, state, i);
}

dbc_RowSink dbc_NewStore::BeginTable(const dbc_Form& form)
{
    Table& table = OpenTable(form);
    table.isBegun = true;
    table.cells.resize(table.physical.columns.size());
    dbc_Layer layer{table.physical, {}};
    for (int i = 0; i < form.CellCount(); ++i)
        layer.source.push_back(i);
    for (int i = 0; i < form.CellCount(); ++i)
    {
        const rfm_CopyColumn column = ColumnFor(form, layer, i);
        const bool isPlain = column.use != rfm_CopyColumn::Use::ClassId;
        const rfm_ColumnKind kind = table.physical.columns[static_cast<std::size_t>(i)].kind;
        table.begunColumns.push_back(column);
        table.plainKinds.push_back(isPlain ? rfm_PlainKindOf(kind) : rfm_CellKind::Unset);
    }
    return {std::move(layer),
            [this, &table](std::int64_t oid, const rfm_Cell* cells) { PutRow(table, oid, cells); },
            [&table] { table.Flush(); }};
}

void dbc_NewStore::PutRow(Table& table, std::int64_t oid, const rfm_Cell* cells)
{
    for (std::size_t i = 0; i < table.cells.size(); ++i)
    {
        const bool isPlain = cells[i].Is(table.plainKinds[i]) && !cells[i].Is(rfm_CellKind::Unset);
        table.cells[i] = isPlain ? cells[i] : CellToPut(table, i, oid, cells[i]);
    }
    Insert(table, oid, table.cells);
}

/// A reference that nothing was put into stays marked, or becomes absent, as its default says.
rfm_Cell dbc_NewStore::CellToPut(const Table& table, std::size_t position, std::int64_t oid,
                                 const rfm_Cell& cell) const
{
    using Use = rfm_CopyColumn::Use;
    const rfm_CopyColumn& column = table.begunColumns[position];
    const bool isUnset =
        cell.Is(rfm_CellKind::Unset) ||
        (column.use == Use::ClassId && cell.Is(rfm_CellKind::Integer) && cell.integer == rfm_UnsetReference);
    if (column.use != Use::Scalar && (isUnset || cell.IsNull()))
        return isUnset && column.use == Use::ClassId ? column.fallback : rfm_Cell::Null();
    const rfm_Cell& taken = isUnset || cell.IsNull() ? column.fallback : cell;
    rfm_RequireKind(stores.old, table.physical, position, oid, taken);
    return taken;
}

void dbc_NewStore::Table::Flush()
{
    if (inserter)
        inserter->Flush();
}

void dbc_NewStore::CopyLayer(Table& table, const dbc_TableState& state, std::size_t position)
{
    const dbc_Layer& layer = state.layers[position];
    const bool isOld = layer.physical.schema == rfm_OldSchema;
    rfm_RowCopy::Plan plan{
        isOld ? &stores.old : &stores.working, layer.physical, table.physical, {}, changes, {}};
    for (int i = 0; i < state.form->CellCount(); ++i)
        plan.columns.push_back(ColumnFor(*state.form, layer, i));
    for (std::size_t i = position + 1; i < state.layers.size(); ++i)
        plan.coveredBy.push_back(state.layers[i].physical);
    plan.onConflict = table.isBegun ? rfm_OnConflict::Replace : rfm_OnConflict::Fail;
    plan.expectsNoNull = isOld && position == 0 && !table.isBegun;
    table.Flush();
    rfm_RowCopy(stores.working, std::move(plan), table.references, table.numbers).Run(progress);
}

/// Columns of references that nothing was put into stay marked where the default is an object: that is made
/// when all tables are there.
rfm_CopyColumn dbc_NewStore::ColumnFor(const dbc_Form& form, const dbc_Layer& layer, int cell)
{
    rfm_CopyColumn column{layer.source[static_cast<std::size_t>(cell)], CopyUseOf(form.UseOf(cell)),
                          rfm_Cell::Null()};
    if (column.use == rfm_CopyColumn::Use::Number)
        return column;
    const rfm_Cell standard = DefaultOf(form, cell);
    if (column.use == rfm_CopyColumn::Use::Scalar)
        column.fallback = standard;
    else if (!standard.IsNull())
        column.fallback = rfm_Cell::Integer(rfm_UnsetReference);
    return column;
}

rfm_Cell dbc_NewStore::DefaultOf(const dbc_Form& form, int cell)
{
    const bool hasDefault = form.UseOf(cell) != Use::Uid && !form.Plan().IsCollection();
    const dbc_DefaultRow* row = hasDefault ? defaults.RowOf(form.ClassId()) : nullptr;
    return row ? row->cells[cell] : rfm_Cell::Null();
}

/// Rows of before the last stage may refer to classes that have ended since.
bool dbc_NewStore::NeedsPass(const Table& table) const
{
    const bool needsDefaults =
        std::any_of(table.references.begin(), table.references.end(),
                    [](const rfm_ReferenceColumn& column)
                    { return column.Unset() > 0 || (column.ClassCell() < 0 && column.Nulls() > 0); });
    return needsDefaults || (table.isBegun && !changes.empty() && !table.references.empty());
}

void dbc_NewStore::FillDefaults()
{
    Flush();
    std::vector<unsigned> incomplete;
    for (const auto& [classId, table] : tables)
    {
        if (NeedsPass(table))
            incomplete.push_back(classId);
    }
    for (const unsigned classId : incomplete)
        FillTable(tables.at(classId));
    Flush();
}

void dbc_NewStore::FillTable(Table& table)
{
    rfm_Cursor cursor(stores.working, table.physical);
    rfm_Inserter replacer(stores.working, table.physical, rfm_OnConflict::Replace);
    std::vector<rfm_Cell> cells(table.physical.columns.size());
    table.references = ReferencesOf(*table.form);
    for (bool isThere = cursor.SeekFrom(INT64_MIN); isThere; isThere = cursor.Next())
    {
        std::copy_n(cursor.Cells(), cells.size(), cells.begin());
        const bool isChanged = ChangeClassIds(table, cells);
        const bool isFilled = FillRow(table, cells);
        for (rfm_ReferenceColumn& reference : table.references)
            reference.Note(cells.data());
        if (isChanged || isFilled)
            replacer.Insert(cursor.Key(), cells.data());
    }
    replacer.Flush();
}

bool dbc_NewStore::ChangeClassIds(const Table& table, std::vector<rfm_Cell>& cells) const
{
    bool isChanged = false;
    for (const rfm_ReferenceColumn& reference : table.references)
    {
        if (reference.ClassCell() < 0)
            continue;
        rfm_Cell& classId = cells[static_cast<std::size_t>(reference.ClassCell())];
        for (const rfm_ClassIdChange& change : changes)
        {
            if (!classId.Is(rfm_CellKind::Integer) || classId.integer != change.from)
                continue;
            classId.integer = change.to;
            isChanged = true;
            break;
        }
    }
    return isChanged;
}

bool dbc_NewStore::FillRow(Table& table, std::vector<rfm_Cell>& cells)
{
    bool isFilled = false;
    for (const rfm_ReferenceColumn& reference : table.references)
    {
        const auto oidAt = static_cast<std::size_t>(reference.OidCell());
        const bool isBase = reference.ClassCell() < 0;
        const auto classAt = static_cast<std::size_t>(isBase ? reference.OidCell() : reference.ClassCell());
        const bool isMissing =
            isBase ? cells[oidAt].IsNull()
                   : cells[classAt].Is(rfm_CellKind::Integer) && cells[classAt].integer == rfm_UnsetReference;
        if (!isMissing)
            continue;
        const dbc_DefaultRow* row = defaults.RowOf(table.form->ClassId());
        if (!row)
            stores.working.Raise("The class has no default object to take an attribute from.",
                                 table.form->Name(), rom_StoreException::NoRow,
                                 table.form->ColumnName(reference.OidCell()));
        const auto classId =
            isBase ? table.form->Table().baseClassId : static_cast<unsigned>(row->cells[classAt].integer);
        const dbc_DefaultRow target = defaults.Follow(*row->rows, classId, row->cells[oidAt].integer);
        if (!isBase)
            cells[classAt] = rfm_Cell::Integer(target.classId);
        cells[oidAt] = rfm_Cell::Integer(MakeRow(target));
        isFilled = true;
    }
    return isFilled;
}

/// Makes a row like that of a default object, with all that it refers to, and returns its number.
std::int64_t dbc_NewStore::MakeRow(const dbc_DefaultRow& row)
{
    const rom_ClassPlan& plan = defaults.PlanOf(row.classId);
    std::vector<rfm_Cell> cells(row.cells, row.cells + plan.CellCount());
    unsigned char bytes[cls_Uid::Size];
    cls_Uid uid;
    uid.AllocateUid();
    uid.ToBytes(bytes);
    cells[rom_ClassPlan::UidCell] = rfm_Cell::Blob(bytes, sizeof bytes);
    MakeTargets(row, cells);
    if (plan.IsCollection())
        cells[rom_ClassPlan::HandleCell] = MakeArray(row);
    Table& table = TableOf(row.classId);
    const std::int64_t oid = std::max<std::int64_t>(table.numbers.high, 0) + 1;
    Insert(table, oid, cells);
    if (plan.IsCollection())
        MakeElements(row, oid);
    return oid;
}

void dbc_NewStore::MakeTargets(const dbc_DefaultRow& row, std::vector<rfm_Cell>& cells)
{
    const rom_ClassPlan& plan = defaults.PlanOf(row.classId);
    if (plan.HasBase())
    {
        rfm_Cell& base = cells[rom_ClassPlan::BaseCell];
        base = rfm_Cell::Integer(MakeRow(defaults.Follow(*row.rows, plan.Table().baseClassId, base.integer)));
    }
    for (const rom_AttributePlan& attribute : plan.Attributes())
    {
        const auto at = static_cast<std::size_t>(attribute.cell);
        if (attribute.type != cls_TypeObject || cells[at].IsNull())
            continue;
        const auto classId = static_cast<unsigned>(cells[at].integer);
        cells[at + 1] =
            rfm_Cell::Integer(MakeRow(defaults.Follow(*row.rows, classId, cells[at + 1].integer)));
    }
}

rfm_Cell dbc_NewStore::MakeArray(const dbc_DefaultRow& row)
{
    const rfm_Cell& handle = row.cells[rom_ClassPlan::HandleCell];
    if (handle.IsNull())
        return handle;
    const auto type = [&row]
    {
        switch (row.cells[rom_ClassPlan::CodeCell].integer)
        {
        case cls_CollectionListBool:
            return rfm_TypeBool;
        case cls_CollectionListInt:
            return rfm_TypeInt;
        default:
            return rfm_TypeDouble;
        }
    }();
    const std::int64_t length = row.rows->OpenArray(handle.integer, type);
    std::vector<char> values(static_cast<std::size_t>(length * rfm_SizeOf(type)));
    row.rows->ReadArray(values.data());
    return rfm_Cell::Integer(stores.working.Arrays().Insert(type, values.data(), length));
}

void dbc_NewStore::MakeElements(const dbc_DefaultRow& row, std::int64_t oid)
{
    void* place = row.rows->OpenElements(row.classId, row.oid);
    const auto close = [&row](void* opened) { row.rows->CloseElements(opened); };
    const std::unique_ptr<void, decltype(close)> closer(place, close);
    rfm_Element element;
    for (std::int64_t position = 0; row.rows->NextElement(place, element); ++position)
    {
        if (!elements)
            elements = std::make_unique<rfm_ElementInserter>(stores.working);
        if (!element.targetOid.IsNull())
        {
            const auto classId = static_cast<unsigned>(element.targetClassId.integer);
            element.targetOid =
                rfm_Cell::Integer(MakeRow(defaults.Follow(*row.rows, classId, element.targetOid.integer)));
        }
        elements->Insert(row.classId, oid, position, element);
    }
}

void dbc_NewStore::Insert(Table& table, std::int64_t oid, const std::vector<rfm_Cell>& cells)
{
    if (!table.inserter)
        table.inserter = std::make_unique<rfm_Inserter>(stores.working, table.physical);
    for (rfm_ReferenceColumn& reference : table.references)
        reference.Note(cells.data());
    const bool isNext = oid > 0 && oid == table.numbers.high + 1;
    table.numbers.Note(oid);
    if (isNext)
        table.inserter->Append(oid, cells.data());
    else
        table.inserter->Insert(oid, cells.data());
}

void dbc_NewStore::Flush()
{
    for (auto& [classId, table] : tables)
    {
        table.Flush();
        table.inserter.reset();
    }
    if (elements)
        elements->Flush();
    elements.reset();
}

bool dbc_NewStore::LeadsToEnded(const std::vector<rfm_ReferenceColumn>& references) const
{
    const auto leads = [this](const rfm_ReferenceColumn& column)
    {
        return std::any_of(column.Ranges().begin(), column.Ranges().end(),
                           [this](const rfm_ReferenceColumn::Range& range)
                           { return ended.count(static_cast<unsigned>(range.classId)) != 0; });
    };
    return std::any_of(references.begin(), references.end(), leads);
}

bool dbc_NewStore::HasRow(const rfm_TableForm& from, const std::string& condition)
{
    rfm_Statement statement(
        stores.working, "SELECT 1 FROM " + from.SqlName() + " WHERE " + condition + " LIMIT 1", from.name);
    return statement.Step();
}

/// A store without named objects has nothing that tells what is in use.
void dbc_NewStore::LeaveOutUnreached()
{
    if (roots.empty())
        return;
    dbc_Reach reach(stores.working);
    for (const auto& [classId, table] : tables)
        reach.AddTable(classId, table.physical, table.references);
    for (const rfm_Root& root : roots)
        reach.Walk(root.classId, root.oid);
    reach.RemoveOthers();
    // From here on the tables are asked, as there may be holes anywhere.
    for (auto& [classId, table] : tables)
        table.numbers = {};
}

void dbc_NewStore::RequireReferences()
{
    const bool leadsToEnded =
        LeadsToEnded(elementReferences) ||
        std::any_of(tables.begin(), tables.end(),
                    [this](const auto& table) { return LeadsToEnded(table.second.references); });
    if (leadsToEnded)
        LeaveOutUnreached();
    for (const auto& [classId, table] : tables)
    {
        for (const rfm_ReferenceColumn& column : table.references)
            RequireReferences(table, column);
    }
    const rfm_TableForm form = rfm_Elements::Form();
    for (const rfm_ReferenceColumn& column : elementReferences)
    {
        for (const rfm_ReferenceColumn::Range& range : column.Ranges())
            RequireRows(form, rfm_Elements::columns[rfm_Elements::TargetClassId],
                        rfm_Elements::columns[rfm_Elements::TargetOid], range);
    }
}

void dbc_NewStore::RequireReferences(const Table& table, const rfm_ReferenceColumn& column)
{
    const cow_String classColumn =
        column.ClassCell() < 0 ? cow_String() : table.form->ColumnName(column.ClassCell());
    const cow_String& oidColumn = table.form->ColumnName(column.OidCell());
    if (column.ClassesAlone() > 0)
        RaiseReference(table.physical, oidColumn,
                       rfm_Quoted(classColumn) + " > 0 AND " + rfm_Quoted(oidColumn) + " IS NULL",
                       "The reference has a class and no row.");
    for (const rfm_ReferenceColumn::Range& range : column.Ranges())
    {
        if (column.ClassCell() >= 0)
            RequireFits(table, column, range.classId);
        RequireRows(table.physical, classColumn, oidColumn, range);
    }
}

void dbc_NewStore::RequireFits(const Table& table, const rfm_ReferenceColumn& column, std::int64_t classId)
{
    const auto& attributes = table.form->Plan().Attributes();
    const auto attribute =
        std::find_if(attributes.begin(), attributes.end(),
                     [&column](const rom_AttributePlan& each) { return each.cell == column.ClassCell(); });
    const bool isKnown = classId > 0 && classId <= UINT_MAX && forms.Current(static_cast<unsigned>(classId));
    if (isKnown)
    {
        const auto id = static_cast<unsigned>(classId);
        if (defaults.PlanOf(id).IsA(attribute->typeId) || typ_ArchCompTable::IsParent(attribute->typeId, id))
            return;
        // A wrapper describes its repository as the collection that the repository keeps.
        const bool isWrapped = attribute->collection != cls_CollectionNone;
        if (isWrapped && defaults.PlanOf(id).IsA(mdl_Repository::TypeId()))
            return;
    }
    const std::string condition =
        rfm_Quoted(table.form->ColumnName(column.ClassCell())) + " = " + std::to_string(classId);
    if (HasRow(table.physical, condition))
        RaiseReference(table.physical, table.form->ColumnName(column.OidCell()), condition,
                       "The reference leads to an object of " + Described(classId) +
                           ", and the attribute takes " + Described(attribute->typeId) + ".");
}

void dbc_NewStore::RequireRows(const rfm_TableForm& from, const cow_String& classColumn,
                               const cow_String& oidColumn, const rfm_ReferenceColumn::Range& range)
{
    const auto found = range.classId > 0 && range.classId <= UINT_MAX
                           ? tables.find(static_cast<unsigned>(range.classId))
                           : tables.end();
    const std::string ofClass =
        classColumn.IsEmpty() ? "1" : rfm_Quoted(classColumn) + " = " + std::to_string(range.classId);
    const std::string message =
        "The reference leads to a row of " + Described(range.classId) + " that is not there.";
    if (found == tables.end())
    {
        const std::string condition = ofClass + " AND " + rfm_Quoted(oidColumn) + " IS NOT NULL";
        if (HasRow(from, condition))
            RaiseReference(from, oidColumn, condition, message);
        return;
    }
    const rfm_RowNumbers& numbers = found->second.numbers;
    if (numbers.AreWithoutHoles() && range.low >= numbers.low && range.high <= numbers.high)
        return;
    const std::string condition = ofClass + " AND " + rfm_Quoted(oidColumn) +
                                  " NOT IN (SELECT \"OID\" FROM " + found->second.physical.SqlName() + ")";
    if (HasRow(from, condition))
        RaiseReference(from, oidColumn, condition, message);
}

void dbc_NewStore::RaiseReference(const rfm_TableForm& from, const cow_String& oidColumn,
                                  const std::string& condition, const std::string& message)
{
    rfm_Statement statement(stores.working,
                            "SELECT " + rfm_Quoted(from.keyColumn) + ", " + rfm_Quoted(oidColumn) + " FROM " +
                                from.SqlName() + " WHERE " + condition + " LIMIT 1",
                            from.name);
    const std::int64_t row = statement.Step() ? statement.Column(0).integer : rom_StoreException::NoRow;
    stores.old.Raise(message, from.name, row, oidColumn);
}
