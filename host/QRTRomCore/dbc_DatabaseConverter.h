#pragma once

#include "cls_ClassRegistrar.h"
#include "cow_List.h"
#include "cow_Map.h"
#include "dbc_Converter.h"

#include <map>

class dbc_InputDatabase;
class dbc_OutputDatabase;
class dbc_TableMem;

/// What old class versions declare, and where their functions find the two sides of the store.
/// `dbc_OldClasses` drives each registered one through its `SchemaChanges`, `ClassesToDelete` and
/// `ClassesToRename`; its `TablesToRename` runs in the stage to which its step leads.
class OVR_EXPORT dbc_DatabaseConverter
{
public:
    dbc_DatabaseConverter();
    dbc_DatabaseConverter(const dbc_DatabaseConverter&) = delete;
    dbc_DatabaseConverter& operator=(const dbc_DatabaseConverter&) = delete;
    ~dbc_DatabaseConverter();

    /// The stage that brings the database to a version, made when it is first asked for.
    dbc_Converter& GetConverter(int targetVersion);
    /// All stages by ascending version.
    const std::map<int, dbc_Converter>& Converters() const { return converters; }

    /// Names of classes that have another name now: from the old name to the new one.
    cow_Map<cow_String, cow_String>& ClassesToRename() { return renamedClasses; }
    /// Ids of classes that no longer stand by themselves.
    cow_List<unsigned>& ClassesToDelete() { return deletedClasses; }
    /// Tables made beside those of the store, by class id; what is entered here joins the store as all of
    /// them do.
    cow_Map<unsigned, dbc_TableMem*>& TempTables() { return tempTables; }

    /// Each class in the oldest form known.
    cls_ClassRegistrar& InputClasses() { return inputClasses; }
    /// The classes as this release has them.
    cls_ClassRegistrar& OutputClasses() { return outputClasses; }

    /// The two sides of the stage that is running. They throw when none is.
    dbc_InputDatabase& GetInputDatabase() const;
    dbc_OutputDatabase& GetOutputDatabase() const;
    /// For who runs the stages.
    void SetDatabases(dbc_InputDatabase* newInput, dbc_OutputDatabase* newOutput);

private:
    std::map<int, dbc_Converter> converters;
    cow_Map<cow_String, cow_String> renamedClasses;
    cow_List<unsigned> deletedClasses;
    cow_Map<unsigned, dbc_TableMem*> tempTables;
    cls_ClassRegistrar inputClasses;
    cls_ClassRegistrar outputClasses;
    dbc_InputDatabase* input = nullptr;
    dbc_OutputDatabase* output = nullptr;
};
