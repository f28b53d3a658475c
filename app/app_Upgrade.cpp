#include "app_Upgrade.h"

#include "app_Error.h"
#include "app_File.h"
#include "app_Json.h"
#include "app_Progress.h"
#include "app_Table.h"
#include "dbc_Upgrade.h"

#include <algorithm>

#include <fmt/format.h>

namespace
{

bool IsOld(const dbc_UpgradeTable& table)
{
    return !table.steps.empty();
}

long CountOld(const dbc_Upgrade& upgrade)
{
    return std::count_if(upgrade.Tables().begin(), upgrade.Tables().end(), IsOld);
}

long CountRows(const dbc_Upgrade& upgrade)
{
    long rows = 0;
    for (const dbc_UpgradeTable& table : upgrade.Tables())
        rows += table.rows;
    return rows;
}

std::string Functions(const dbc_UpgradeStep& step)
{
    if (!step.hasFunction)
        return {};
    return step.functions.IsEmpty() ? "a function" : step.functions.CString();
}

std::string Destination(const dbc_UpgradeTable& table)
{
    if (table.newName.IsEmpty())
        return "dropped";
    std::string text = "to " + std::to_string(table.to);
    if (!(table.newName == table.name))
        text += std::string(" as ") + table.newName.CString();
    return text;
}

std::string StepsAsText(const dbc_UpgradeTable& table)
{
    std::string text;
    for (const dbc_UpgradeStep& step : table.steps)
    {
        text += fmt::format("{}{}", text.empty() ? "" : ", ", step.to);
        if (const std::string functions = Functions(step); !functions.empty())
            text += " (" + functions + ")";
    }
    return "by " + text;
}

std::string PlanAsText(const dbc_Upgrade& upgrade)
{
    using Align = app_Table::Align;
    app_Table table({Align::Left, Align::Right, Align::Left, Align::Left, Align::Left});
    for (const dbc_UpgradeTable& each : upgrade.Tables())
    {
        if (IsOld(each))
            table.Add({each.name.CString(), app_Count(static_cast<long>(each.rows), "row"),
                       fmt::format("from {}", each.from), Destination(each), StepsAsText(each)});
    }
    return table.Text(2);
}

cls_Value TableAsJson(const dbc_UpgradeTable& table)
{
    cls_Value::Array steps;
    for (const dbc_UpgradeStep& step : table.steps)
    {
        cls_Value::Object each{{"from", step.from}, {"to", step.to}};
        if (const std::string functions = Functions(step); !functions.empty())
            each.emplace_back("functions", functions);
        steps.emplace_back(std::move(each));
    }
    cls_Value::Object object{{"name", table.name.CString()},
                             {"id", fmt::format("0x{:X}", table.classId)},
                             {"rows", table.rows},
                             {"from", table.from}};
    if (table.newName.IsEmpty())
        object.emplace_back("dropped", true);
    else
        object.emplace_back("to", table.to);
    if (!table.newName.IsEmpty() && !(table.newName == table.name))
        object.emplace_back("newName", table.newName.CString());
    object.emplace_back("steps", std::move(steps));
    return object;
}

void PrintJson(const dbc_Upgrade& upgrade, const std::string& oldStore, const std::string& newStore,
               bool isDone)
{
    cls_Value::Array tables;
    for (const dbc_UpgradeTable& table : upgrade.Tables())
        tables.push_back(TableAsJson(table));
    const cls_Value answer = cls_Value::Object{{"old", oldStore},
                                               {"new", isDone ? cls_Value(newStore) : cls_Value()},
                                               {"current", upgrade.IsCurrent()},
                                               {"tables", std::move(tables)}};
    app_Print(app_WriteJson(answer, app_JsonLayout::Model) + '\n');
}

void PrintText(const dbc_Upgrade& upgrade, const std::string& oldStore, const std::string& newStore,
               bool isDone)
{
    const long old = CountOld(upgrade);
    const auto all = static_cast<long>(upgrade.Tables().size());
    if (old == 0)
        app_Print(fmt::format("{}: all tables have the form of this release{}\n", oldStore,
                              isDone ? ", " + newStore + " holds the same rows" : ""));
    else
        app_Print(fmt::format("{}: {} of {} {}\n{}", isDone ? newStore : oldStore, old,
                              app_Count(all, "table"),
                              isDone ? "upgraded, " + app_Count(CountRows(upgrade), "row") + " taken over"
                                     : std::string("to be upgraded"),
                              PlanAsText(upgrade)));
}

void Run(dbc_Upgrade& upgrade, const std::string& newStore)
{
    // How many rows there are to do is known when the first of them are done.
    std::unique_ptr<app_Progress> progress;
    upgrade.Run(newStore.c_str(),
                [&progress](std::int64_t done, std::int64_t total)
                {
                    if (!progress)
                        progress = std::make_unique<app_Progress>("upgrading", static_cast<long>(total));
                    progress->Reach(static_cast<long>(done));
                });
}

} // namespace

void app_Upgrade(const std::string& oldStore, const std::string& newStore, const app_UpgradeOptions& options)
{
    if (newStore.empty() && !options.dryRun)
        throw app_Error("upgrade: the name of the new store is missing");
    if (!options.dryRun && app_Exists(newStore))
        throw app_Error(newStore + ": there is such a file already, and an upgrade makes a new one");
    dbc_Upgrade upgrade(oldStore.c_str());
    if (!options.dryRun)
        Run(upgrade, newStore);
    if (options.json)
        PrintJson(upgrade, oldStore, newStore, !options.dryRun);
    else
        PrintText(upgrade, oldStore, newStore, !options.dryRun);
}
