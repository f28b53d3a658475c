#pragma once

#include "dbc_ElementTable.h"
#include "dbc_NewStore.h"
#include "dbc_Plan.h"

#include <functional>

/// A table on its way, and the steps that are left for it.
struct dbc_TableOnItsWay
{
    dbc_TableState state;
    std::vector<dbc_PlannedStep> steps;
    std::size_t done = 0; ///< of the steps

    bool IsDue(int stage) const { return done < steps.size() && steps[done].target == stage; }
    const dbc_PlannedStep& NextStep() const { return steps[done]; }
};

using dbc_Tables = std::map<unsigned, dbc_TableOnItsWay>;

/// What outlives a stage.
struct dbc_UpgradeState
{
    dbc_Stores stores;
    const dbc_Plan& plan;
    dbc_DatabaseConverter& converter;
    dbc_Tables tables;
    std::vector<rfm_ClassIdChange>& changes;
    dbc_RowNumbers numbers;
    int scratchTables = 0;
    /// Highest row numbers of the two collection classes in the old store.
    std::map<unsigned, std::int64_t> oldCollections;
    std::function<void(std::int64_t)> progress;
    dbc_NewStore& store;
};

/// Brings a store to one version: runs the steps that lead there, on what was there before the stage.
class dbc_Stage final : public dbc_InputDatabase, public dbc_OutputDatabase
{
public:
    dbc_Stage(dbc_UpgradeState& upgrade, int version);
    ~dbc_Stage() override;

    /// Runs all due steps, and makes what they leave the new state of the tables.
    void Run();

    bool HasInputTable(unsigned classId) const override;
    dbc_TableRfm* GetInputTable(unsigned classId) override;
    dbc_TableRfm* GetOutputTable(unsigned classId) override;
    dbc_TableMem* GetTempTable(unsigned classId, int version) override;
    rfm_Array<double, rfm_TypeDouble> ArrayDouble(std::int64_t handle) override;
    std::unique_ptr<dbc_Table> ElementsOf(const cow_String& name, unsigned classId,
                                          std::int64_t oid) override;
    std::unique_ptr<dbc_Table> NewElements(const cow_String& name, unsigned classId, cls_CollectionType code,
                                           std::int64_t& oid) override;
    std::int64_t NewNumbers(cls_CollectionType code, const std::vector<double>& values, int columns) override;

private:
    enum class Step
    {
        None,
        Waits,
        Runs,
        Done
    };

    struct Output
    {
        std::unique_ptr<dbc_OutputRows> rows;
        std::unique_ptr<dbc_TableRfm> table;
        const dbc_PlannedStep* step = nullptr;
        Step progress = Step::None;
    };

    struct Temp
    {
        std::unique_ptr<dbc_OutputRows> rows;
        std::unique_ptr<dbc_TableMem> table;
    };

    Output& OpenOutput(unsigned classId);
    Output& NewOutput(unsigned classId, dbc_TableState state);
    void MoveTables();
    void RunStep(unsigned classId, Output& output);
    void ConvertRows(const dbc_TableState& input, Output& output);
    void CallConversion(const dbc_PlannedStep& step, const dbc_CellRow& in, dbc_CellRow& out);
    void FinishCollections();
    void EndStage();
    void JoinTemps();
    void EndClasses();
    void EndClass(unsigned classId, const dbc_PlannedStep& step);
    void SetState(unsigned classId, dbc_TableState state);

    dbc_UpgradeState& upgrade;
    int version;
    dbc_StageContext context;
    std::vector<unsigned> due;
    std::map<unsigned, std::unique_ptr<dbc_TableRfm>> inputTables;
    std::map<unsigned, Output> outputs;
    std::map<std::pair<unsigned, int>, Temp> temps;
    std::unique_ptr<rfm_ElementInserter> elements;
    std::vector<dbc_FinishedCollection> finished;
    /// Rows of the collections that are being made.
    std::map<std::pair<unsigned, std::int64_t>, dbc_Row*> making;
};
