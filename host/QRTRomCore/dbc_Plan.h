#pragma once

#include "dbc_Form.h"
#include "dbc_OldClasses.h"
#include "rfm_Database.h"

#include <map>

/// All forms that classes have had, old ones and current ones.
class dbc_Forms
{
public:
    dbc_Forms(const dbc_OldClasses& oldClasses, const cls_ClassRegistrar& current);

    /// Null if the class never had a form of just this version.
    const dbc_Form* Find(unsigned classId, int version) const;
    /// The form of the class that holds at a version: the newest that is not above it; null if there is none.
    const dbc_Form* FormAt(unsigned classId, int version) const;
    /// The oldest form above a version, or null.
    const dbc_Form* FormAfter(unsigned classId, int version) const;
    /// The form of this release; null for a class that is no more.
    const dbc_Form* Current(unsigned classId) const;
    /// Whether any form is known.
    bool IsKnown(unsigned classId) const { return forms.count(classId) != 0; }
    /// The class of this release that has a name; 0 if there is none.
    unsigned CurrentIdOf(const cow_String& name) const;

private:
    void Add(std::unique_ptr<rom_ClassPlan> plan);

    std::map<unsigned, std::map<int, std::unique_ptr<dbc_Form>>> forms;
    std::map<unsigned, const dbc_Form*> current;
};

/// One step of one table.
struct dbc_PlannedStep
{
    int target; ///< the stage in which it runs
    dbc_OldClassVersion* version;
    const dbc_ClassConverter* converter;
    const dbc_Form* from;
    const dbc_Form* to; ///< null where the class ends
    unsigned successor; ///< the class whose table the rows join then; 0 if none does
};

/// A table of a store: the form in which its rows lie, and the steps that lead to the current form or the
/// class's end.
struct dbc_PlannedTable
{
    const dbc_Form* form;
    std::vector<dbc_PlannedStep> steps;
};

/// Finds the steps by which tables become what this release has.
class dbc_Plan
{
public:
    /// `store` is named in errors.
    dbc_Plan(const rfm_Database& store, dbc_DatabaseConverter& converter, const dbc_OldClasses& oldClasses);

    const dbc_Forms& Forms() const { return forms; }

    /// Plans the way of a table that was found in a store. A table of an old version may lack attributes of
    /// that version, and may have some of later ones, which stay until the form that has them. Throws if
    /// nobody knows the class or the version, the table has a column that none of these forms has, or there
    /// are not the steps. The plan keeps the forms that it makes for the table.
    dbc_PlannedTable PlanTable(const rfm_TableInfo& table);
    /// The steps of a table in a form, up to the current form or the class's end. Throws if a step is
    /// missing, there are two, or one without function would lose values.
    std::vector<dbc_PlannedStep> StepsFrom(const dbc_Form& form) const;
    /// Throws if an attribute of one form has another kind in the next, and that can't hold all its values:
    /// for rows that no function takes there.
    void RequireKinds(const dbc_Form& from, const dbc_Form& to) const;

private:
    struct Step
    {
        dbc_OldClassVersion* version;
        const dbc_ClassConverter* converter;
    };

    /// An attribute that a table has before its time, and the step that leads to the form which has it.
    struct EarlyAttribute
    {
        const rom_AttributePlan* attribute;
        std::size_t owner;
    };

    std::vector<dbc_PlannedStep> ChainFrom(const dbc_Form& form) const;
    void RequireKinds(const std::vector<dbc_PlannedStep>& chain) const;
    const dbc_Form& FormOf(const rfm_TableInfo& table) const;
    bool IsCurrent(const dbc_Form& form) const;
    void FitTo(const rfm_TableInfo& table, dbc_PlannedTable& planned);
    static std::vector<EarlyAttribute> EarlyAttributesOf(const rfm_TableInfo& table,
                                                         const dbc_PlannedTable& planned);
    const dbc_Form* FormWith(const dbc_Form& form, const std::vector<const rom_AttributePlan*>& attributes,
                             const std::vector<EarlyAttribute>& early);
    const Step& OnlyStep(const dbc_Form& form, const std::vector<Step>& found) const;
    const dbc_Form* Destination(const dbc_Form& form, const dbc_ClassConverter& converter) const;
    unsigned SuccessorOf(const dbc_Form& form) const;
    bool IsDeleted(unsigned classId) const;
    [[noreturn]] void Raise(const dbc_Form& form, const std::string& message,
                            const cow_String& field = cow_String()) const;

    const rfm_Database& store;
    dbc_DatabaseConverter& converter;
    dbc_Forms forms;
    std::vector<std::unique_ptr<dbc_Form>> fittedForms;
    std::map<std::pair<unsigned, int>, std::vector<Step>> steps;
    std::map<std::pair<unsigned, int>, dbc_OldClassVersion*> versions;
};
