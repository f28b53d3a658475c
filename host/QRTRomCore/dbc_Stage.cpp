#include "dbc_Stage.h"

#include "QRTBasException.h"
#include "dbc_DatabaseConverterHolder.h"

#include <algorithm>

namespace
{
constexpr std::int64_t rowsBetweenReports = 4096;

unsigned CollectionClassOf(cls_CollectionType code)
{
    switch (code)
    {
    case cls_CollectionMapString2Obj:
    case cls_CollectionMapInt2Obj:
    case cls_CollectionMapString2Float:
    case cls_CollectionMapString2Array2D:
        return cls_MapTypeId;
    default:
        return cls_ListTypeId;
    }
}

rfm_FieldHandle CollectionField(const char* name)
{
    return rfm_FieldHandle(name, -1);
}
} // namespace

dbc_Stage::dbc_Stage(dbc_UpgradeState& upgrade, int version)
    : upgrade(upgrade),
      version(version),
      context{upgrade.stores, upgrade.changes, upgrade.numbers, upgrade.scratchTables}
{
    for (const auto& [classId, table] : upgrade.tables)
    {
        if (table.IsDue(version))
            due.push_back(classId);
    }
    upgrade.converter.SetDatabases(this, this);
    omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->SetDatabaseConverter(&upgrade.converter);
}

dbc_Stage::~dbc_Stage()
{
    omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->SetDatabaseConverter(nullptr);
    upgrade.converter.SetDatabases(nullptr, nullptr);
    upgrade.converter.TempTables().Clear();
}

void dbc_Stage::Run()
{
    MoveTables();
    for (const unsigned classId : due)
    {
        if (upgrade.tables.at(classId).NextStep().to)
            RunStep(classId, OpenOutput(classId));
    }
    EndStage();
}

void dbc_Stage::MoveTables()
{
    for (const unsigned classId : due)
    {
        dbc_OldClassVersion* old = upgrade.tables.at(classId).NextStep().version;
        if (old)
            old->TablesToRename(upgrade.converter);
        FinishCollections();
    }
}

bool dbc_Stage::HasInputTable(unsigned classId) const
{
    return upgrade.tables.count(classId) != 0;
}

dbc_TableRfm* dbc_Stage::GetInputTable(unsigned classId)
{
    const auto found = upgrade.tables.find(classId);
    if (found == upgrade.tables.end())
        return nullptr;
    std::unique_ptr<dbc_TableRfm>& table = inputTables[classId];
    if (!table)
        table = std::make_unique<dbc_StageTable<dbc_TableRfm>>(context, found->second.state);
    return table.get();
}

dbc_TableRfm* dbc_Stage::GetOutputTable(unsigned classId)
{
    return OpenOutput(classId).table.get();
}

dbc_Stage::Output& dbc_Stage::OpenOutput(unsigned classId)
{
    const auto opened = outputs.find(classId);
    if (opened != outputs.end())
        return opened->second;
    const auto found = upgrade.tables.find(classId);
    if (found == upgrade.tables.end())
    {
        const dbc_Form* form = upgrade.plan.Forms().FormAt(classId, version);
        if (!form)
            form = upgrade.plan.Forms().FormAfter(classId, version);
        if (!form)
            upgrade.stores.old.Raise("A conversion asks for the table of a class that nobody knows (" +
                                     std::to_string(classId) + ").");
        return NewOutput(classId, {form, {}});
    }
    const dbc_TableOnItsWay& table = found->second;
    if (!table.IsDue(version) || !table.NextStep().to)
        return NewOutput(classId, table.state);
    const dbc_PlannedStep& step = table.NextStep();
    if (!step.converter->ConversionFunction())
    {
        Output& output = NewOutput(classId, table.state.InForm(*step.to));
        output.step = &step;
        output.progress = Step::Waits;
        return output;
    }
    Output& output = NewOutput(classId, {step.to, {}});
    // Rows that have their last form go where they stay.
    if (step.to == upgrade.plan.Forms().Current(classId))
        output.rows->BeginStep(upgrade.store.BeginTable(*step.to));
    else
        output.rows->BeginStep();
    output.step = &step;
    output.progress = Step::Waits;
    return output;
}

dbc_Stage::Output& dbc_Stage::NewOutput(unsigned classId, dbc_TableState state)
{
    if (!upgrade.numbers.IsKnown(classId))
    {
        const auto found = upgrade.tables.find(classId);
        const dbc_TableState& known = found == upgrade.tables.end() ? state : found->second.state;
        upgrade.numbers.Raise(classId, dbc_LastOid(upgrade.stores, known));
    }
    Output& output = outputs[classId];
    output.rows = std::make_unique<dbc_OutputRows>(context, std::move(state));
    output.table = std::make_unique<dbc_StageTable<dbc_TableRfm>>(
        context, *output.rows, [this, classId] { RunStep(classId, outputs.at(classId)); });
    return output;
}

dbc_TableMem* dbc_Stage::GetTempTable(unsigned classId, int formVersion)
{
    const dbc_Form* form = upgrade.plan.Forms().Find(classId, formVersion);
    if (!form)
        return nullptr;
    Temp& temp = temps[{classId, formVersion}];
    if (!temp.table)
    {
        const auto found = upgrade.tables.find(classId);
        if (found != upgrade.tables.end() && !upgrade.numbers.IsKnown(classId))
            upgrade.numbers.Raise(classId, dbc_LastOid(upgrade.stores, found->second.state));
        temp.rows = std::make_unique<dbc_OutputRows>(context, dbc_TableState{form, {}});
        temp.table = std::make_unique<dbc_StageTable<dbc_TableMem>>(context, *temp.rows, [] {});
    }
    return temp.table.get();
}

rfm_Array<double, rfm_TypeDouble> dbc_Stage::ArrayDouble(std::int64_t handle)
{
    upgrade.stores.working.Arrays().Flush();
    return upgrade.stores.working.ArrayDouble(handle);
}

void dbc_Stage::RunStep(unsigned classId, Output& output)
{
    if (output.progress != Step::Waits)
        return;
    output.progress = Step::Runs;
    const dbc_ClassConverter& converter = *output.step->converter;
    if (converter.ConversionFunction())
        ConvertRows(upgrade.tables.at(classId).state, output);
    output.progress = Step::Done;
    if (converter.FinalizeFunction())
        converter.FinalizeFunction()(*GetInputTable(classId), *output.table);
    FinishCollections();
}

void dbc_Stage::ConvertRows(const dbc_TableState& input, Output& output)
{
    const dbc_PlannedStep& step = *output.step;
    const std::vector<int> kept = dbc_MatchColumns(*step.from, *step.to);
    dbc_StateCursor cursor(upgrade.stores, input, upgrade.changes);
    dbc_CellRow in(upgrade.stores.old, *step.from, false);
    dbc_CellRow out(upgrade.stores.old, *step.to, true);
    std::int64_t untold = 0;
    for (bool isThere = cursor.SeekFrom(INT64_MIN); isThere; isThere = cursor.Next())
    {
        cursor.Take(in);
        out.Begin(in.Oid());
        for (std::size_t i = 0; i < kept.size(); ++i)
        {
            if (kept[i] >= 0)
                out.Cells()[i] = dbc_TakenOver(in.Cells()[kept[i]], step.to->UseOf(static_cast<int>(i)));
        }
        CallConversion(step, in, out);
        FinishCollections();
        output.rows->PutStepRow(out);
        if (++untold == rowsBetweenReports)
            upgrade.progress(std::exchange(untold, 0));
    }
    upgrade.progress(untold);
}

void dbc_Stage::CallConversion(const dbc_PlannedStep& step, const dbc_CellRow& in, dbc_CellRow& out)
{
    try
    {
        step.converter->ConversionFunction()(in, out, 0);
    }
    catch (const rom_StoreException&)
    {
        throw;
    }
    catch (const QRTBasException& error)
    {
        upgrade.stores.old.Raise(error.what(), step.from->Name(), in.Oid());
    }
}

std::unique_ptr<dbc_Table> dbc_Stage::ElementsOf(const cow_String& name, unsigned classId, std::int64_t oid)
{
    const bool isNew = oid > upgrade.oldCollections[classId];
    return std::make_unique<dbc_StoredElements>(context, name, classId, oid, isNew);
}

std::unique_ptr<dbc_Table> dbc_Stage::NewElements(const cow_String& name, unsigned classId,
                                                  cls_CollectionType code, std::int64_t& oid)
{
    if (CollectionClassOf(code) != classId)
        upgrade.stores.old.Raise("A new collection of code " + std::to_string(code) +
                                     " is of the wrong class for its attribute.",
                                 name);
    if (!elements)
        elements = std::make_unique<rfm_ElementInserter>(upgrade.stores.working, rfm_ScratchSchema);
    dbc_Row& row = OpenOutput(classId).table->NewRow();
    oid = row.Oid();
    row.PutInt(CollectionField("Target#Collection"), code);
    making[{classId, oid}] = &row;
    finished.reserve(finished.size() + making.size());
    return std::make_unique<dbc_NewElements>(context, name, classId, oid, *elements, finished);
}

void dbc_Stage::FinishCollections()
{
    for (const dbc_FinishedCollection& collection : finished)
    {
        const auto found = making.find({collection.classId, collection.oid});
        found->second->PutInt(CollectionField("Target#Length"), collection.length);
        OpenOutput(collection.classId).table->Commit(*found->second);
        making.erase(found);
    }
    finished.clear();
}

std::int64_t dbc_Stage::NewNumbers(cls_CollectionType code, const std::vector<double>& values, int columns)
{
    dbc_Table& lists = *OpenOutput(cls_ListTypeId).table;
    dbc_Row& row = lists.NewRow();
    const auto length = static_cast<std::int64_t>(values.size());
    row.PutInt(CollectionField("Target#Collection"), code);
    row.PutInt(CollectionField("Target#Length"), length);
    row.PutInt(CollectionField("Target#Columns"), columns);
    if (length > 0)
    {
        rfm_Array<double, rfm_TypeDouble> array = ArrayDouble(0);
        array.Write(values.data(), length);
        row.PutInt(CollectionField("Target#Handle"), array.Handle());
    }
    const std::int64_t oid = row.Oid();
    lists.Commit(row);
    return oid;
}

void dbc_Stage::EndStage()
{
    if (elements)
        elements->Flush();
    for (auto& [classId, output] : outputs)
    {
        output.rows->RequireCommitted();
        output.rows->Flush();
    }
    for (auto& [place, temp] : temps)
    {
        temp.rows->RequireCommitted();
        temp.rows->Flush();
    }
    inputTables.clear();
    for (auto& [classId, output] : outputs)
    {
        dbc_TableState state = output.rows->State();
        const bool isNew = upgrade.tables.count(classId) == 0;
        if (isNew && output.rows->IsEmpty())
            continue;
        SetState(classId, std::move(state));
    }
    JoinTemps();
    EndClasses();
}

void dbc_Stage::SetState(unsigned classId, dbc_TableState state)
{
    const auto found = upgrade.tables.find(classId);
    if (found == upgrade.tables.end())
    {
        std::vector<dbc_PlannedStep> steps = upgrade.plan.StepsFrom(*state.form);
        upgrade.tables[classId] = {std::move(state), std::move(steps), 0};
        return;
    }
    dbc_TableOnItsWay& table = found->second;
    if (table.IsDue(version) && table.NextStep().to == state.form)
        ++table.done;
    table.state = std::move(state);
}

void dbc_Stage::JoinTemps()
{
    for (auto& [place, temp] : temps)
    {
        const dbc_TableState& added = temp.rows->State();
        const auto found = upgrade.tables.find(place.first);
        if (found == upgrade.tables.end())
        {
            SetState(place.first, added);
            continue;
        }
        dbc_TableState& state = found->second.state;
        if (added.layers.empty())
            continue;
        if (state.form->Version() != added.form->Version())
            upgrade.stores.old.Raise("A conversion makes rows of version " + std::to_string(place.second) +
                                         " when the table is at version " +
                                         std::to_string(state.form->Version()) + ".",
                                     state.form->Name());
        const std::vector<dbc_Layer> layers = added.InForm(*state.form).layers;
        state.layers.insert(state.layers.end(), layers.begin(), layers.end());
    }
}

void dbc_Stage::EndClasses()
{
    for (const unsigned classId : due)
    {
        const dbc_TableOnItsWay& table = upgrade.tables.at(classId);
        if (!table.IsDue(version) || table.NextStep().to)
            continue;
        const dbc_PlannedStep step = table.NextStep();
        EndClass(classId, step);
    }
}

/// The rows of a class that ends go with it, unless another class takes its place: then references lead
/// there. Where a conversion has not moved the rows, they go over as they are.
void dbc_Stage::EndClass(unsigned classId, const dbc_PlannedStep& step)
{
    dbc_TableState state = upgrade.tables.at(classId).state;
    upgrade.tables.erase(classId);
    if (step.successor == 0)
    {
        upgrade.store.EndClass(classId);
        return;
    }
    const bool isMoved = std::any_of(
        temps.begin(), temps.end(), [&step](const auto& temp) { return temp.first.first == step.successor; });
    if (!isMoved)
    {
        const dbc_Form* form = upgrade.plan.Forms().FormAt(step.successor, step.target);
        if (!form || upgrade.tables.count(step.successor) != 0)
            upgrade.stores.old.Raise(
                "The rows of a class that was renamed can't join the table of its successor.",
                step.from->Name());
        upgrade.plan.RequireKinds(*state.form, *form);
        SetState(step.successor, state.InForm(*form));
    }
    for (rfm_ClassIdChange& change : upgrade.changes)
    {
        if (change.to == classId)
            change.to = step.successor;
    }
    upgrade.changes.push_back({classId, step.successor});
}
