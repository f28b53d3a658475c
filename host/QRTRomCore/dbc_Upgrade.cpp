#include "dbc_Upgrade.h"

#include "dbc_NewStore.h"
#include "dbc_Stage.h"

#include <algorithm>
#include <optional>

namespace
{
std::int64_t NumberOf(rfm_Database& database, const std::string& what, const cow_String& table)
{
    rfm_Statement statement(database, "SELECT " + what + " FROM " + rfm_Quoted(table), table);
    const rfm_Cell found = statement.Step() ? statement.Column(0) : rfm_Cell::Null();
    return found.Is(rfm_CellKind::Integer) ? found.integer : 0;
}

std::int64_t CountRows(rfm_Database& database, const cow_String& table)
{
    return NumberOf(database, "COUNT(*)", table);
}

/// At most so many rows are in a table: as many as lie between its first and its last number, which takes no
/// walk through it, unless the file has no room for them.
std::int64_t MostRows(rfm_Database& database, const cow_String& table)
{
    constexpr std::int64_t leastBytes = 4;
    const std::int64_t low = NumberOf(database, "MIN(\"OID\")", table);
    const std::int64_t high = NumberOf(database, "MAX(\"OID\")", table);
    const std::uint64_t span = static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low);
    if (span >= static_cast<std::uint64_t>(database.FileSize() / leastBytes))
        return CountRows(database, table);
    return static_cast<std::int64_t>(span) + 1;
}

cow_String NamesOf(const dbc_ClassConverter& step)
{
    cow_String names = step.ConversionName();
    if (!step.FinalizeName().IsEmpty())
        names.append(names.IsEmpty() ? "" : ", ").append(step.FinalizeName());
    return names;
}

dbc_UpgradeStep Described(const dbc_PlannedStep& step)
{
    const dbc_ClassConverter* converter = step.converter;
    const bool hasFunction = converter && (converter->ConversionFunction() || converter->FinalizeFunction());
    return {step.from->Version(), step.target, hasFunction, converter ? NamesOf(*converter) : cow_String()};
}

/// The rows of a table as they lie in the old store.
dbc_TableState StoredState(const dbc_Form& form, const rfm_TableInfo& table)
{
    dbc_Layer layer;
    layer.physical = rfm_TableForm::Of(table);
    layer.physical.schema = rfm_OldSchema;
    for (int i = 0; i < form.CellCount(); ++i)
    {
        const auto found =
            std::find_if(table.columns.begin(), table.columns.end(),
                         [&](const rfm_Column& column) { return column.name == form.ColumnName(i); });
        layer.source.push_back(static_cast<int>(found - table.columns.begin()));
    }
    return {&form, {std::move(layer)}};
}

/// The stage in which the next step runs; none if all are done.
std::optional<int> NextStage(const dbc_Tables& tables)
{
    std::optional<int> next;
    for (const auto& [classId, table] : tables)
    {
        if (table.done < table.steps.size() && (!next || table.NextStep().target < *next))
            next = table.NextStep().target;
    }
    return next;
}
} // namespace

struct dbc_Upgrade::Upgrade
{
    explicit Upgrade(const cow_String& oldPath)
        : old(oldPath, rfm_Access::Read), oldClasses(converter), plan(old, converter, oldClasses)
    {
        for (const cow_String& part : old.ForeignParts())
            old.Raise("The file holds parts that this release does not know, and an upgrade would lose them.",
                      part);
        for (const rfm_TableInfo& table : old.Tables())
            Plan(table);
    }

    void Plan(const rfm_TableInfo& table)
    {
        dbc_PlannedTable way = plan.PlanTable(table);
        dbc_TableOnItsWay planned{StoredState(*way.form, table), std::move(way.steps), 0};
        dbc_UpgradeTable described{table.name,    table.classId, 0, table.version,
                                   table.version, table.name,    {}};
        for (const dbc_PlannedStep& step : planned.steps)
            described.steps.push_back(Described(step));
        if (!planned.steps.empty())
            DescribeEnd(planned.steps.back(), described);
        tables[table.classId] = std::move(planned);
        descriptions.push_back(std::move(described));
    }

    void CountOnce()
    {
        if (hasCounted)
            return;
        for (dbc_UpgradeTable& table : descriptions)
            table.rows = CountRows(old, table.name);
        hasCounted = true;
    }

    /// Counted once for each function, and once for the new store.
    std::int64_t RowsToDo()
    {
        std::int64_t rows = 0;
        for (const dbc_UpgradeTable& table : descriptions)
            rows += MostRows(old, table.name) * (1 + FunctionsOf(table));
        return rows;
    }

    static std::int64_t FunctionsOf(const dbc_UpgradeTable& table)
    {
        return std::count_if(table.steps.begin(), table.steps.end(),
                             [](const dbc_UpgradeStep& step) { return step.hasFunction; });
    }

    /// Also plans the way of the class that takes the place of one that ends.
    void DescribeEnd(const dbc_PlannedStep& last, dbc_UpgradeTable& described) const
    {
        const dbc_Form* end = last.to;
        if (!end && last.successor != 0)
        {
            const dbc_Form* joined = plan.Forms().FormAt(last.successor, last.target);
            for (const dbc_PlannedStep& step :
                 joined ? plan.StepsFrom(*joined) : std::vector<dbc_PlannedStep>())
                described.steps.push_back(Described(step));
            end = plan.Forms().Current(last.successor);
        }
        described.to = end ? end->Version() : 0;
        described.newName = end ? end->Name() : cow_String();
    }

    rfm_Database old;
    dbc_DatabaseConverter converter;
    dbc_OldClasses oldClasses;
    dbc_Plan plan;
    dbc_Tables tables;
    std::vector<dbc_UpgradeTable> descriptions;
    bool hasCounted = false;
};

dbc_Upgrade::dbc_Upgrade(const cow_String& oldPath) : upgrade(std::make_unique<Upgrade>(oldPath)) {}

dbc_Upgrade::~dbc_Upgrade() = default;

const std::vector<dbc_UpgradeTable>& dbc_Upgrade::Tables() const
{
    upgrade->CountOnce();
    return upgrade->descriptions;
}

bool dbc_Upgrade::IsCurrent() const
{
    return std::all_of(upgrade->descriptions.begin(), upgrade->descriptions.end(),
                       [](const dbc_UpgradeTable& table) { return table.steps.empty(); });
}

void dbc_Upgrade::Run(const cow_String& newPath, const Progress& progress)
{
    rfm_Database working(newPath, rfm_Access::Create);
    working.AttachForConversion(upgrade->old);
    const std::int64_t rowsToDo = progress ? upgrade->RowsToDo() : 0;
    std::int64_t done = 0;
    const auto count = [&](std::int64_t rows)
    {
        done += rows;
        if (progress && rows > 0)
            progress(std::min(done, rowsToDo), rowsToDo);
    };
    const dbc_Stores stores{upgrade->old, working};
    std::vector<rfm_ClassIdChange> changes;
    {
        dbc_NewStore store(stores, upgrade->plan.Forms(), changes, count);
        dbc_UpgradeState state{
            stores, upgrade->plan, upgrade->converter, std::move(upgrade->tables), changes, {}, 0, {},
            count,  store};
        for (const unsigned collection : {cls_ListTypeId, cls_MapTypeId})
        {
            const auto found = state.tables.find(collection);
            state.oldCollections[collection] =
                found == state.tables.end() ? 0 : dbc_LastOid(stores, found->second.state);
        }
        store.TakeArrays();
        while (const std::optional<int> stage = NextStage(state.tables))
            dbc_Stage(state, *stage).Run();
        for (const auto& [classId, table] : state.tables)
            store.TakeTable(table.state);
        store.TakeElements();
        store.FillDefaults();
        store.TakeRoots();
        store.RequireReferences();
    }
    working.Commit();
}
