#include "dbc_Upgrade.h"

#include "dbc_DatabaseConverterHolder.h"
#include "dbc_InputDatabase.h"
#include "dbc_OutputDatabase.h"
#include "dbc_Utils.h"
#include "rom_StoreException.h"
#include "rom_Transporter.h"
#include "tst_Upgrade.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr unsigned shapeId = 0xFD0001;
constexpr unsigned boxId = 0xFD0002;
constexpr unsigned crateId = 0xFD0003;
constexpr unsigned lidId = 0xFD0004;

using Attributes = std::vector<tst_Form::Attribute>;

const tst_Form::Attribute numberAttribute{"number", cls_TypeInt};
const tst_Form::Attribute labelAttribute{"label", cls_TypeText};
const tst_Form::Attribute valueAttribute{"value", cls_TypeDouble};
const tst_Form::Attribute flagAttribute{"flag", cls_TypeBool};
const tst_Form::Attribute lidAttribute{"lid", cls_TypeObject, lidId};
const tst_Form::Attribute numbersAttribute{"numbers", cls_TypeObject, cls_ListTypeId,
                                           cls_CollectionListDouble};
const tst_Form::Attribute partsAttribute{"parts", cls_TypeObject, cls_ListTypeId, cls_CollectionListObj};

tst_Form Shape(int version, const Attributes& attributes)
{
    return {"upg_Shape", shapeId, version, cls_RootId, attributes};
}

tst_Form Box(int version, const Attributes& attributes)
{
    return {"upg_Box", boxId, version, shapeId, attributes};
}

tst_Form Crate(int version, const Attributes& attributes)
{
    return {"upg_Crate", crateId, version, cls_RootId, attributes};
}

tst_Form Lid(int version, const Attributes& attributes)
{
    return {"upg_Lid", lidId, version, cls_RootId, attributes};
}

rfm_FieldHandle F(const char* name)
{
    return rfm_FieldHandle(name, -1);
}

dbc_DatabaseConverter& Converter()
{
    return *omi_Singleton<dbc_DatabaseConverterHolder>::Instance()->GetDatabaseConverter();
}

/// What a store has after an upgrade, or the text of the error.
struct Case
{
    const char* name;
    std::function<void(tst_Release&)> release;
    std::vector<tst_Form> forms;
    const char* rows;
    const char* query;
    const char* expected;
};

std::string UpgradeAndQuery(const tst_Folder& folder, const Case& each)
{
    tst_Release release;
    each.release(release);
    tst_MakeStore(folder / "old", each.forms);
    tst_Execute(folder / "old", each.rows);
    const std::string before = tst_ReadFile(folder / "old");
    try
    {
        dbc_Upgrade upgrade((folder / "old").c_str());
        upgrade.Run((folder / "new").c_str());
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_EQ("old", folder.Names()) << "something is left of a failed upgrade";
        EXPECT_EQ(before, tst_ReadFile(folder / "old"));
        const std::string message = error.what();
        const std::string path = folder / "";
        const std::size_t at = message.find(path);
        return at == std::string::npos ? message : message.substr(at + path.size());
    }
    EXPECT_EQ(before, tst_ReadFile(folder / "old"));
    return tst_Query(folder / "new", each.query);
}

class UpgradeCase : public testing::TestWithParam<Case>
{};

TEST_P(UpgradeCase, HasTheExpectedOutcome)
{
    const tst_Folder folder;
    EXPECT_EQ(GetParam().expected, UpgradeAndQuery(folder, GetParam()));
}

void* RenameLabel(const dbc_Row& input, dbc_Row& output, int)
{
    if (input.HasField(F("label")) && input.HasValue(F("label")))
        return nullptr;
    output.PutText(F("label"), input.GetText(F("name")));
    return nullptr;
}

void* TakeEveryKind(const dbc_Row& input, dbc_Row& output, int)
{
    output.PutInt(F("number"), input.GetInt(F("number")) * 2);
    output.PutDouble(F("value"), -input.GetDouble(F("value")));
    output.PutBool(F("flag"), !input.GetBool(F("flag")));
    output.PutText(F("label"), input.GetText(F("label")).append("!"));
    return nullptr;
}

void* TakeLabelOff(const dbc_Row& input, dbc_Row& output, int)
{
    output.PutText(F("label"), input.GetText(F("label")).CString() + 1);
    return nullptr;
}

const tst_Form::Attribute nameAttribute{"name", cls_TypeText};

// ---- chains of steps ----

INSTANTIATE_TEST_SUITE_P(
    Steps, UpgradeCase,
    testing::Values(
        Case{"DroppedAttributeGoes",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(1, {numberAttribute, labelAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {numberAttribute}));
             },
             {Shape(1, {numberAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (7, x'00', 42, 'gone', NULL)",
             "SELECT OID || hex(\"##Uid\") || number || (SELECT COUNT(*) FROM "
             "pragma_table_info('upg_Shape')) || "
             "(SELECT Version FROM rom_Class WHERE Name = 'upg_Shape') FROM upg_Shape",
             "7004242"},
        Case{"NumbersWithHolesStay",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(1, {numberAttribute, labelAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {numberAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (-2, x'00', 1, 'a', NULL), (1, x'00', 1, 'b', NULL), "
             "(2, x'00', 1, 'c', NULL), (5, x'00', 1, 'd', NULL), (9, x'00', 1, 'e', NULL)",
             "SELECT group_concat(OID || label, ' ') FROM upg_Shape",
             "-2a 1b 2c 5d 9e"},
        Case{"HoleAfterNumbersInOrder",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(1, {numberAttribute, labelAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {numberAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1, 'b', NULL), "
             "(2, x'00', 1, 'c', NULL), (5, x'00', 1, 'd', NULL), (9, x'00', 1, 'e', NULL)",
             "SELECT group_concat(OID || label, ' ') FROM upg_Shape",
             "1b 2c 5d 9e"},
        Case{"NumbersWithHolesStayBehindAFunction",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {nameAttribute})},
             "INSERT INTO upg_Shape VALUES (-2, x'00', 'a', NULL), (1, x'00', 'b', NULL), "
             "(2, x'00', 'c', NULL), (5, x'00', 'd', NULL), (9, x'00', 'e', NULL)",
             "SELECT group_concat(OID || label, ' ') FROM upg_Shape",
             "-2a 1b 2c 5d 9e"},
        Case{"FunctionRenames",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {nameAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'text', NULL)",
             "SELECT label FROM upg_Shape",
             "text"},
        Case{"RowInTheNewFormPasses",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute, labelAttribute}),
                              tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {nameAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'old', 'new', NULL)",
             "SELECT label FROM upg_Shape",
             "new"},
        Case{"ChainOfFour",
             [](tst_Release& release)
             {
                 release.Had({Shape(203, {nameAttribute, numberAttribute, flagAttribute}),
                              tst_Step("upg_Shape", shapeId, 203, 208)});
                 release.Had({Shape(208, {nameAttribute, numberAttribute}),
                              tst_Step("upg_Shape", shapeId, 208, 424, RenameLabel)});
                 release.Had({Shape(424, {labelAttribute, numberAttribute}),
                              tst_Step("upg_Shape", shapeId, 424, 430)});
                 release.Has(Shape(430, {labelAttribute}));
             },
             {Shape(203, {nameAttribute, numberAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'kept', 3, 1, NULL), (2, x'01', 'too', 4, 0, NULL)",
             "SELECT group_concat(label) FROM upg_Shape",
             "kept,too"},
        Case{"EveryKindIsReadAndWritten",
             [](tst_Release& release)
             {
                 const Attributes all{numberAttribute, valueAttribute, flagAttribute, labelAttribute};
                 release.Had({Shape(1, all), tst_Step("upg_Shape", shapeId, 1, 2, TakeEveryKind)});
                 release.Has(Shape(2, all));
             },
             {Shape(1, {numberAttribute, valueAttribute, flagAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 21, 1.5, 1, 'text', NULL)",
             "SELECT number || ' ' || value || ' ' || flag || ' ' || label FROM upg_Shape",
             "42 -1.5 0 text!"},
        Case{"MinusZeroIsStoredAsItsBits",
             [](tst_Release& release)
             {
                 const Attributes all{numberAttribute, valueAttribute, flagAttribute, labelAttribute};
                 release.Had({Shape(1, all), tst_Step("upg_Shape", shapeId, 1, 2, TakeEveryKind)});
                 release.Has(Shape(2, all));
             },
             {Shape(1, {numberAttribute, valueAttribute, flagAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 21, 0.0, 1, 'text', NULL)",
             "SELECT hex(value) FROM upg_Shape",
             "0000000000000080"},
        Case{"EmptyTextStays",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute, flagAttribute}),
                              tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Had({Shape(2, {labelAttribute, flagAttribute}),
                              tst_Step("upg_Shape", shapeId, 2, 3, RenameLabel)});
                 release.Has(Shape(3, {labelAttribute}));
             },
             {Shape(1, {nameAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', '', 0, NULL)",
             "SELECT typeof(label) || length(label) FROM upg_Shape",
             "text0"},
        Case{"BaseRowsStay",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {}));
                 release.Has(Box(1, {flagAttribute}));
             },
             {Shape(1, {numberAttribute}), Box(1, {flagAttribute})},
             "INSERT INTO upg_Shape VALUES (3, x'00', 1, NULL), (9, x'01', 2, NULL);"
             "INSERT INTO upg_Box VALUES (1, x'02', 9, 1, NULL)",
             "SELECT hex(upg_Shape.\"##Uid\") FROM upg_Box JOIN upg_Shape ON upg_Shape.OID = "
             "\"##BaseClassOID\"",
             "01"},
        Case{"StepToAVersionThatIsNoForm",
             [](tst_Release& release)
             {
                 release.Had({Shape(203, {nameAttribute}), tst_Step("upg_Shape", shapeId, 203, 999)});
                 release.Had(
                     {Shape(850, {nameAttribute}), tst_Step("upg_Shape", shapeId, 850, 1394, RenameLabel)});
                 release.Has(Shape(1394, {labelAttribute}));
             },
             {Shape(203, {nameAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'text', NULL)",
             "SELECT label FROM upg_Shape",
             "text"},
        Case{"StepToItsOwnVersion",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(404, {nameAttribute, flagAttribute}), tst_Step("upg_Shape", shapeId, 404, 1502)});
                 release.Had(
                     {Shape(1502, {nameAttribute}), tst_Step("upg_Shape", shapeId, 1502, 1502, RenameLabel)});
                 release.Has(Shape(1625, {labelAttribute}));
             },
             {Shape(404, {nameAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'text', 1, NULL)",
             "SELECT label FROM upg_Shape",
             "text"},
        Case{"TableWithoutRows",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Has(Shape(2, {labelAttribute}));
             },
             {Shape(1, {nameAttribute})},
             "",
             "SELECT Version FROM rom_Class WHERE Name = 'upg_Shape'",
             "2"}),
    [](const auto& info) { return info.param.name; });

// ---- what no function sets ----

void WriteDefaultLid(const cls_WriteVisitor& visitor)
{
    cls_Uid uid;
    uid.AllocateUid();
    visitor.StartWrite(lidId, uid);
    visitor.Memento().PutInt(cls_FieldHandle(0, "number"), 5);
}

void WriteDefaultCrate(const cls_WriteVisitor& visitor)
{
    cls_Uid uid;
    uid.AllocateUid();
    visitor.StartWrite(crateId, uid);
    visitor.Memento().PutText(cls_FieldHandle(0, "label"), "standard");
    {
        const cls_WriteVisitor lid(visitor, cls_FieldHandle(1, "lid"), nullptr, nullptr);
        WriteDefaultLid(lid);
    }
    const cls_WriteVisitor numbers(visitor, cls_FieldHandle(2, "numbers"), nullptr, nullptr);
    cls_xpListDouble list;
    list.Restore(cls_xpListDouble());
    list.DBWrite(numbers);
}

void HasCrateWithDefaults(tst_Release& release)
{
    release.Has(Lid(1, {numberAttribute}), WriteDefaultLid);
    release.Has(Crate(2, {labelAttribute, lidAttribute, numbersAttribute}), WriteDefaultCrate);
}

void* LeaveLidOut(const dbc_Row&, dbc_Row& output, int)
{
    output.PutAbsent(F("lid"));
    return nullptr;
}

INSTANTIATE_TEST_SUITE_P(
    Defaults, UpgradeCase,
    testing::Values(
        Case{"NewAttributesTakeTheDefault",
             [](tst_Release& release)
             {
                 HasCrateWithDefaults(release);
                 release.Had({Crate(1, {}), tst_Step("upg_Crate", crateId, 1, 2)});
             },
             {Crate(1, {})},
             "INSERT INTO upg_Crate VALUES (1, x'00', NULL), (2, x'01', NULL)",
             "SELECT group_concat(label || \"lid#OID\" || (SELECT number FROM upg_Lid WHERE OID = "
             "\"lid#OID\") || "
             "(SELECT \"Target#Collection\" || \"Target#Length\" FROM cls_List WHERE OID = \"numbers#OID\")) "
             "|| "
             "COUNT(DISTINCT \"numbers#OID\") || (SELECT COUNT(DISTINCT \"##Uid\") FROM cls_List) FROM "
             "upg_Crate",
             "standard15520,standard2552022"},
        Case{
            "OldValuesStay",
            [](tst_Release& release)
            {
                HasCrateWithDefaults(release);
                release.Had({Crate(1, {labelAttribute, lidAttribute}), tst_Step("upg_Crate", crateId, 1, 2)});
            },
            {Crate(1, {labelAttribute, lidAttribute}), Lid(1, {numberAttribute})},
            "INSERT INTO upg_Lid VALUES (4, x'02', 77, NULL);"
            "INSERT INTO upg_Crate VALUES (1, x'00', 'mine', 0xFD0004, 4, NULL), (2, x'01', 'bare', NULL, "
            "NULL, NULL)",
            "SELECT group_concat(label || ifnull(\"lid#OID\", '-')) FROM upg_Crate",
            "mine4,bare-"},
        Case{"NullScalarTakesTheDefault",
             [](tst_Release& release)
             {
                 HasCrateWithDefaults(release);
                 release.Had({Crate(1, {labelAttribute}), tst_Step("upg_Crate", crateId, 1, 2)});
             },
             {Crate(1, {labelAttribute})},
             "INSERT INTO upg_Crate VALUES (1, x'00', NULL, NULL)",
             "SELECT label FROM upg_Crate",
             "standard"},
        Case{"FunctionLeavesAnObjectOut",
             [](tst_Release& release)
             {
                 HasCrateWithDefaults(release);
                 release.Had({Crate(1, {}), tst_Step("upg_Crate", crateId, 1, 2, LeaveLidOut)});
             },
             {Crate(1, {})},
             "INSERT INTO upg_Crate VALUES (1, x'00', NULL)",
             "SELECT ifnull(\"lid#ClassID\", 'absent') || (\"numbers#OID\" IS NOT NULL) FROM upg_Crate",
             "absent1"},
        Case{"NoDefaultToTake",
             [](tst_Release& release)
             {
                 release.Had({Crate(1, {}), tst_Step("upg_Crate", crateId, 1, 2)});
                 release.Has(Crate(2, {labelAttribute}));
             },
             {Crate(1, {})},
             "INSERT INTO upg_Crate VALUES (3, x'00', NULL)",
             "",
             "old: table upg_Crate, row 3, field label: The cell holds no value."}),
    [](const auto& info) { return info.param.name; });

// ---- tables that move, go, or get rows from elsewhere ----

constexpr unsigned oldBoxId = 0xFD0010;

const tst_Form oldBox{"upg_OldBox", oldBoxId, 1, shapeId, {nameAttribute}};

void RenameOldBox(dbc_DatabaseConverter& converter)
{
    converter.ClassesToRename().Insert("upg_OldBox", "upg_Box");
}

void DeleteOldBox(dbc_DatabaseConverter& converter)
{
    converter.ClassesToDelete().InsertIndex(0, oldBoxId);
    converter.InputClasses().DeleteClass("upg_OldBox", oldBoxId);
    converter.OutputClasses().DeleteClass("upg_OldBox", oldBoxId);
}

/// Moves the rows to the table of the class's successor, with an attribute of the base.
void MoveOldBox(dbc_DatabaseConverter& converter)
{
    dbc_InputDatabase& input = converter.GetInputDatabase();
    if (!input.HasInputTable(oldBoxId))
        return;
    dbc_TableMem* moved = converter.GetOutputDatabase().GetTempTable(boxId, 2);
    converter.TempTables().Insert(boxId, moved);
    const dbc_TableRfm* shapes = input.GetInputTable(shapeId);
    const dbc_TableRfm* boxes = input.GetInputTable(oldBoxId);
    for (const dbc_Row* box = boxes->First(); box; box = boxes->Next())
    {
        const dbc_Row* shape = omi_Singleton<dbc_Utils>::Instance()->GetBaseObj(*shapes, *box);
        dbc_Row& row = moved->NewRow(box->Oid());
        row.PutInt(F("##BaseClassOID"), shape->Oid());
        row.PutText(F("label"), box->GetText(F("name")));
        row.PutInt(F("number"), shape->GetInt(F("number")));
        moved->Commit(row);
    }
}

void HasMovingBox(tst_Release& release, const std::function<void(dbc_DatabaseConverter&)>& move)
{
    release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
    release.Has(Shape(2, {}));
    release.Had({oldBox, tst_Step("upg_OldBox", oldBoxId, 1, 2), DeleteOldBox, RenameOldBox, move});
    release.Had({Box(2, {labelAttribute, numberAttribute}), tst_Step("upg_Box", boxId, 2, 3, TakeLabelOff)});
    release.Has(Box(3, {labelAttribute, numberAttribute}));
    release.Has(Crate(1, {partsAttribute}));
}

constexpr char boxRows[] =
    "INSERT INTO upg_Shape VALUES (5, x'00', 50, NULL), (6, x'01', 60, NULL);"
    "INSERT INTO upg_OldBox VALUES (2, x'02', 6, 'second', NULL), (1, x'03', 5, 'first', NULL);"
    "INSERT INTO cls_List VALUES (1, x'04', 1, 2, NULL, NULL, NULL);"
    "INSERT INTO rom_Element VALUES (0x230001, 1, 0, NULL, NULL, 0xFD0010, 2, NULL), "
    "(0x230001, 1, 1, NULL, NULL, 0xFD0010, 1, NULL);"
    "INSERT INTO upg_Crate VALUES (1, x'05', 0x230001, 1, NULL);"
    "INSERT INTO rom_Root VALUES (1, 'box', 0xFD0010, 2, NULL);"
    "INSERT INTO rom_Root VALUES (2, 'crate', 0xFD0003, 1, NULL)";

// ---- rows and collections made by functions ----

void* MakeBase(const dbc_Row& input, dbc_Row& output, int)
{
    if (input.HasValue(F("##BaseClassOID")))
        return nullptr;
    dbc_TableRfm* shapes = Converter().GetOutputDatabase().GetOutputTable(shapeId);
    dbc_Row& base = shapes->NewRow();
    base.PutInt(F("number"), 7);
    const std::int64_t oid = base.Oid();
    shapes->Commit(base);
    output.PutInt(F("##BaseClassOID"), oid);
    return nullptr;
}

void* MakeCollections(const dbc_Row& input, dbc_Row& output, int)
{
    dbc_Utils& utils = *omi_Singleton<dbc_Utils>::Instance();
    int columns = 0;
    std::vector<double> values = utils.GetAttributeArrayDoubleFromInputDatabase(input, "numbers", columns);
    values.push_back(static_cast<double>(values.size()));
    utils.SetNewAttributeArrayDoubleInOutputDatabase(output, "numbers", values, 1, cls_CollectionListDouble);
    const std::unique_ptr<dbc_Table> old = utils.GetAttributeMapFromInputDatabase(input, "map");
    const std::unique_ptr<dbc_Table> list = utils.SetNewAttributeListInOutputDatabase(output, "parts");
    for (const dbc_Row* each = old->First(); each; each = old->Next())
    {
        if (each->GetText(F("Key")).IsEmpty())
            continue;
        dbc_Row& row = list->NewRow();
        row.PutInt(F("ClassID"), each->GetInt(F("ClassID")));
        row.PutInt(F("OID"), each->GetInt(F("OID")));
        list->Commit(row);
    }
    return nullptr;
}

void* SetNewLid(const dbc_Row&, dbc_Row& output, int)
{
    const rom_Transporter transporter(Converter().OutputClasses());
    dbc_Utils& utils = *omi_Singleton<dbc_Utils>::Instance();
    dbc_TableRfm* lids = utils.CreateClassInOutputDatabase(lidId, transporter);
    utils.SetObj(*lids, "lid", output, lidId);
    return nullptr;
}

/// The input shows rows as they were, the output as they are.
void* CountBothSides(const dbc_Table& input, dbc_Table& output)
{
    dbc_Row& added = output.NewRow();
    added.PutInt(F("number"), input.RowCount() * 100 + output.RowCount());
    output.Commit(added);
    dbc_Row& first = output.Edit(1);
    first.PutInt(F("number"), input.Find(1)->GetInt(F("number")) + input.RowCount());
    output.Commit(first);
    return nullptr;
}

const tst_Form::Attribute mapAttribute{"map", cls_TypeObject, cls_MapTypeId, cls_CollectionMapString2Obj};

INSTANTIATE_TEST_SUITE_P(
    Tables, UpgradeCase,
    testing::Values(
        Case{"RowsMoveToTheSuccessor",
             [](tst_Release& release) { HasMovingBox(release, MoveOldBox); },
             {Shape(1, {numberAttribute}), oldBox, Crate(1, {partsAttribute})},
             boxRows,
             "SELECT group_concat(OID || label || number || \"##BaseClassOID\") || "
             "(SELECT group_concat(printf('%X', \"Target#ClassID\") || \"Target#OID\") FROM rom_Element) || "
             "(SELECT printf('%X', \"Target#ClassID\") FROM rom_Root WHERE Name = 'box') || "
             "(SELECT COUNT(*) FROM sqlite_schema WHERE name = 'upg_OldBox') FROM upg_Box",
             "1irst505,2econd606FD00022,FD00021FD00020"},
        Case{"RenamedClassTakesTheRowsAlong",
             [](tst_Release& release)
             {
                 release.Had({oldBox, tst_Step("upg_OldBox", oldBoxId, 1, 2), DeleteOldBox, RenameOldBox});
                 release.Has(Box(2, {nameAttribute}));
                 release.Has(Shape(1, {numberAttribute}));
                 release.Has(Crate(1, {partsAttribute}));
             },
             {Shape(1, {numberAttribute}), oldBox, Crate(1, {partsAttribute})},
             boxRows,
             "SELECT group_concat(OID || name) || (SELECT group_concat(printf('%X', \"Target#ClassID\") || "
             "\"Target#OID\") FROM rom_Element) FROM upg_Box",
             "1first,2secondFD00022,FD00021"},
        Case{"DeletedClassGoes",
             [](tst_Release& release)
             {
                 release.Had({oldBox, {}, DeleteOldBox});
                 release.Has(Shape(1, {numberAttribute}));
             },
             {Shape(1, {numberAttribute}), oldBox},
             "INSERT INTO upg_Shape VALUES (5, x'00', 50, NULL); INSERT INTO upg_OldBox VALUES (2, x'02', 5, "
             "'x', NULL)",
             "SELECT (SELECT COUNT(*) FROM sqlite_schema WHERE name = 'upg_OldBox') || (SELECT COUNT(*) FROM "
             "rom_Class "
             "WHERE Name = 'upg_OldBox') || number FROM upg_Shape",
             "0050"},
        Case{"RowsWithoutBaseGetOne",
             [](tst_Release& release)
             {
                 tst_Form bare = Box(1, {flagAttribute});
                 bare.baseId = cls_RootId;
                 release.Had({bare, tst_Step("upg_Box", boxId, 1, 2, MakeBase)});
                 release.Has(Box(2, {flagAttribute}));
                 release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {numberAttribute}));
             },
             {Shape(1, {numberAttribute}), {"upg_Box", boxId, 1, cls_RootId, {flagAttribute}}},
             "INSERT INTO upg_Shape VALUES (4, x'00', 1, NULL);"
             "INSERT INTO upg_Box VALUES (1, x'02', 1, NULL), (2, x'03', 0, NULL)",
             "SELECT group_concat(\"##BaseClassOID\" || number) || (SELECT COUNT(*) FROM upg_Shape) FROM "
             "upg_Box JOIN "
             "upg_Shape ON upg_Shape.OID = \"##BaseClassOID\"",
             "57,673"},
        Case{"CollectionsAreReadAndMade",
             [](tst_Release& release)
             {
                 release.Had({Crate(1, {numbersAttribute, mapAttribute}),
                              tst_Step("upg_Crate", crateId, 1, 2, MakeCollections)});
                 release.Has(Crate(2, {numbersAttribute, partsAttribute}));
                 release.Has(Lid(1, {numberAttribute}));
             },
             {Crate(1, {numbersAttribute, mapAttribute}), Lid(1, {numberAttribute})},
             "INSERT INTO upg_Lid VALUES (3, x'00', 33, NULL), (4, x'01', 44, NULL);"
             "INSERT INTO rfm_Array VALUES (9, 4, 1, x'000000000000F03F', NULL);"
             "INSERT INTO cls_List VALUES (1, x'02', 52, 1, 1, 9, NULL);"
             "INSERT INTO cls_Map VALUES (1, x'03', 2, 3, NULL, NULL, NULL);"
             "INSERT INTO rom_Element VALUES (0x230002, 1, 0, '', NULL, 0xFD0004, 3, NULL), "
             "(0x230002, 1, 1, 'a', NULL, 0xFD0004, 4, NULL), (0x230002, 1, 2, 'b', NULL, 0xFD0004, 3, NULL);"
             "INSERT INTO upg_Crate VALUES (1, x'05', 0x230001, 1, 0x230002, 1, NULL)",
             "SELECT (SELECT hex(Bytes) FROM rfm_Array JOIN cls_List ON Handle = \"Target#Handle\" WHERE "
             "cls_List.OID = "
             "\"numbers#OID\") || (SELECT \"Target#Length\" FROM cls_List WHERE OID = \"parts#OID\") || "
             "(SELECT group_concat(\"Target#OID\") FROM rom_Element WHERE rom_Element.OID = \"parts#OID\" "
             "AND ClassID "
             "= 0x230001) FROM upg_Crate",
             "000000000000F03F000000000000F03F24,3"},
        Case{"NewRowTakesTheDefaults",
             [](tst_Release& release)
             {
                 release.Had({Crate(1, {}), tst_Step("upg_Crate", crateId, 1, 2, SetNewLid)});
                 release.Has(Crate(2, {lidAttribute}));
                 release.Has(Lid(1, {numberAttribute}), WriteDefaultLid);
             },
             {Crate(1, {})},
             "INSERT INTO upg_Crate VALUES (1, x'00', NULL), (2, x'01', NULL)",
             "SELECT group_concat(number || upg_Lid.OID) FROM upg_Crate JOIN upg_Lid ON upg_Lid.OID = "
             "\"lid#OID\"",
             "51,52"},
        Case{"FinalizerSeesBothSides",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {numberAttribute, flagAttribute}),
                              tst_Step("upg_Shape", shapeId, 1, 2, nullptr, CountBothSides)});
                 release.Has(Shape(2, {numberAttribute}));
             },
             {Shape(1, {numberAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 10, 1, NULL), (2, x'01', 20, 1, NULL)",
             "SELECT group_concat(OID || ':' || number) FROM upg_Shape",
             "1:12,2:20,3:202"}),
    [](const auto& info) { return info.param.name; });

// ---- tables that lack columns of their version, or have columns of later ones ----

void* TellWhetherTheNameIsThere(const dbc_Row& input, dbc_Row& output, int)
{
    const bool isThere = input.HasField(F("name")) || input.HasValue(F("name"));
    output.PutText(F("label"), isThere ? "there" : "absent");
    return nullptr;
}

/// Three versions: the second changes nothing, the third renames.
void HasRenamedLabel(tst_Release& release)
{
    release.Had({Shape(203, {nameAttribute, flagAttribute}), tst_Step("upg_Shape", shapeId, 203, 208)});
    release.Had({Shape(208, {nameAttribute}), tst_Step("upg_Shape", shapeId, 208, 424, RenameLabel)});
    release.Has(Shape(424, {labelAttribute}));
}

/// The label is new in the third version, and the value goes with it.
void HasLateLabel(tst_Release& release)
{
    release.Had({Shape(1, {valueAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
    release.Had({Shape(2, {valueAttribute}), tst_Step("upg_Shape", shapeId, 2, 3)});
    release.Has(Shape(3, {labelAttribute}));
}

void* LeaveLidWhereItIs(const dbc_Row& input, dbc_Row& output, int)
{
    if (!input.HasValue(F("lid")))
        output.PutAbsent(F("lid"));
    return nullptr;
}

void* NameWhatHasNoName(const dbc_Row& input, dbc_Row& output, int)
{
    if (!input.HasField(F("name")) || !input.HasValue(F("name")))
        output.PutText(F("name"), "unnamed");
    return nullptr;
}

void HasLateLid(tst_Release& release)
{
    release.Had({Crate(1, {}), tst_Step("upg_Crate", crateId, 1, 2)});
    release.Had({Crate(2, {}), tst_Step("upg_Crate", crateId, 2, 3, LeaveLidWhereItIs)});
    release.Has(Crate(3, {lidAttribute}));
    release.Has(Lid(1, {numberAttribute}));
}

INSTANTIATE_TEST_SUITE_P(
    Columns, UpgradeCase,
    testing::Values(
        Case{"NewColumnStaysThroughStepsWithoutFunctions",
             HasLateLabel,
             {Shape(1, {valueAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1.5, 'new', NULL), (2, x'01', 2.5, 'too', NULL)",
             "SELECT group_concat(label) || (SELECT COUNT(*) FROM pragma_table_info('upg_Shape')) FROM "
             "upg_Shape",
             "new,too4"},
        Case{"NewColumnWithAValueIsLeftByTheFunction",
             HasRenamedLabel,
             {Shape(203, {nameAttribute, flagAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'old', 1, 'new', NULL), (2, x'01', 'kept', 0, NULL, "
             "NULL)",
             "SELECT group_concat(label) FROM upg_Shape",
             "new,kept"},
        Case{"NewColumnGoesWithTheFormThatHasIt",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {flagAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Had({Shape(2, {labelAttribute}), tst_Step("upg_Shape", shapeId, 2, 3)});
                 release.Had({Shape(3, {}), tst_Step("upg_Shape", shapeId, 3, 4)});
                 release.Has(Shape(4, {labelAttribute}));
             },
             {Shape(1, {flagAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1, 'early', NULL)",
             "",
             "old: table upg_Shape, row 1, field label: The cell holds no value."},
        Case{"NewObjectStays",
             HasLateLid,
             {Crate(1, {lidAttribute}), Lid(1, {numberAttribute})},
             "INSERT INTO upg_Lid VALUES (4, x'02', 77, NULL);"
             "INSERT INTO upg_Crate VALUES (1, x'00', 0xFD0004, 4, NULL), (2, x'01', NULL, NULL, NULL)",
             "SELECT group_concat(printf('%X:', \"lid#ClassID\") || ifnull(\"lid#OID\", '-')) FROM upg_Crate",
             "FD0004:4,0:-"},
        Case{
            "MissingColumnsTakeTheDefault",
            [](tst_Release& release)
            {
                HasCrateWithDefaults(release);
                release.Had({Crate(1, {labelAttribute, lidAttribute, numbersAttribute}),
                             tst_Step("upg_Crate", crateId, 1, 2)});
            },
            {Crate(1, {numbersAttribute})},
            "INSERT INTO upg_Crate VALUES (1, x'00', NULL, NULL, NULL)",
            "SELECT label || (SELECT number FROM upg_Lid WHERE OID = \"lid#OID\") || ifnull(\"numbers#OID\", "
            "'-') FROM upg_Crate",
            "standard5-"},
        Case{"MissingColumnIsAbsentForTheFunction",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {nameAttribute, flagAttribute}),
                              tst_Step("upg_Shape", shapeId, 1, 2, TellWhetherTheNameIsThere)});
                 release.Has(Shape(2, {labelAttribute, flagAttribute}));
             },
             {Shape(1, {flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1, NULL)",
             "SELECT label || flag FROM upg_Shape",
             "absent1"},
        Case{"MissingColumnAndNewOneInOneTable",
             HasRenamedLabel,
             {Shape(203, {labelAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'new', 1, NULL)",
             "SELECT label FROM upg_Shape",
             "new"},
        Case{"RowsJoinATableWithANewColumn",
             [](tst_Release& release)
             {
                 release.Has(Shape(2, {}));
                 release.Had({oldBox, tst_Step("upg_OldBox", oldBoxId, 1, 2), DeleteOldBox, RenameOldBox,
                              MoveOldBox});
                 release.Had({Box(1, {labelAttribute}), tst_Step("upg_Box", boxId, 1, 2)});
                 release.Had({Box(2, {labelAttribute, numberAttribute}),
                              tst_Step("upg_Box", boxId, 2, 3, NameWhatHasNoName)});
                 release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Box(3, {labelAttribute, nameAttribute}));
             },
             {Shape(1, {numberAttribute}), oldBox, Box(1, {nameAttribute, labelAttribute})},
             "INSERT INTO upg_Shape VALUES (5, x'00', 50, NULL), (6, x'01', 60, NULL);"
             "INSERT INTO upg_OldBox VALUES (2, x'02', 6, 'moved', NULL);"
             "INSERT INTO upg_Box VALUES (1, x'03', 5, 'mine', 'stayed', NULL);",
             "SELECT group_concat(OID || label || name) FROM upg_Box",
             "1stayedmine,2movedunnamed"},
        Case{"ColumnOfNoForm",
             HasRenamedLabel,
             {Shape(203, {nameAttribute, flagAttribute, valueAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'old', 1, 2.5, NULL)",
             "",
             "old: table upg_Shape, field value: The class has no such attribute."},
        Case{"ColumnOfAnEarlierForm",
             HasRenamedLabel,
             {Shape(208, {nameAttribute, flagAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 'old', 1, NULL)",
             "",
             "old: table upg_Shape, field flag: The class has no such attribute."},
        Case{"ColumnOfNoFormBesideAMissingOneAndANewOne",
             HasRenamedLabel,
             {Shape(203, {flagAttribute, labelAttribute, valueAttribute})},
             "",
             "",
             "old: table upg_Shape, field value: The class has no such attribute."},
        Case{"HalfOfAReference",
             HasLateLid,
             {Crate(1, {{"lid#OID", cls_TypeInt}}), Lid(1, {numberAttribute})},
             "",
             "",
             "old: table upg_Crate, field lid#ClassID: The table lacks this column."},
        Case{"MissingIdentities",
             HasRenamedLabel,
             {Shape(203, {nameAttribute, flagAttribute})},
             "ALTER TABLE upg_Shape DROP COLUMN \"##Uid\"",
             "",
             "old: table upg_Shape, field ##Uid: The table lacks this column."},
        Case{"MissingRowsOfTheBase",
             [](tst_Release& release)
             {
                 release.Had({Box(1, {labelAttribute}), tst_Step("upg_Box", boxId, 1, 2)});
                 release.Has(Box(2, {labelAttribute}));
                 release.Has(Shape(1, {}));
             },
             {Shape(1, {}), Box(1, {labelAttribute})},
             "ALTER TABLE upg_Box DROP COLUMN \"##BaseClassOID\"",
             "",
             "old: table upg_Box, field ##BaseClassOID: The table lacks this column."},
        Case{"CurrentTableLacksAColumn",
             HasRenamedLabel,
             {Shape(424, {})},
             "",
             "",
             "old: table upg_Shape, field label: The table lacks this column."},
        Case{"CurrentTableHasAnotherColumn",
             HasRenamedLabel,
             {Shape(424, {labelAttribute, nameAttribute})},
             "",
             "",
             "old: table upg_Shape, field name: The class has no such attribute."}),
    [](const auto& info) { return info.param.name; });

// ---- attributes that have another kind under the same name ----

void* DoubleValue(const dbc_Row& input, dbc_Row& output, int)
{
    output.PutDouble(F("number"), 2 * input.GetDouble(F("number")));
    return nullptr;
}

void* NumberFromText(const dbc_Row& input, dbc_Row& output, int)
{
    output.PutInt(F("label"), std::stoi(input.GetText(F("label")).CString()));
    return nullptr;
}

/// A release that keeps an attribute in another kind, by a step without function.
struct KindChange
{
    const char* name;
    tst_Form::Attribute from;
    tst_Form::Attribute to;
    const char* row;
    const char* expected;
};

const KindChange kindChanges[] = {
    {"IntegerToReal", numberAttribute, {"number", cls_TypeDouble}, "42", "real 42.0"},
    {"TruthValueToReal", flagAttribute, {"flag", cls_TypeDouble}, "1", "real 1.0"},
    {"TruthValueToInteger", flagAttribute, {"flag", cls_TypeInt}, "1", "integer 1"},
    {"IntegerToSecondInteger", numberAttribute, {"number", cls_TypeIntSecond}, "-3", "integer -3"},
    {"TextToEnumeration", labelAttribute, {"label", cls_TypeEnum}, "'A'", "text A"},
    {"EnumerationToText", {"label", cls_TypeEnum}, labelAttribute, "'A'", "text A"},
    {"IntegerThatNoRealHolds",
     numberAttribute,
     {"number", cls_TypeDouble},
     "9007199254740993",
     "old: table upg_Shape, row 1, field number: The cell holds another kind of value than its column."},
    {"RealToInteger",
     valueAttribute,
     {"value", cls_TypeInt},
     "1.5",
     "old: table upg_Shape, field value: The table can't be upgraded. The attribute holds a real number at "
     "version 1 and an integer at version 2, and no function converts it."},
    {"IntegerToTruthValue",
     numberAttribute,
     {"number", cls_TypeBool},
     "1",
     "old: table upg_Shape, field number: The table can't be upgraded. The attribute holds an integer at "
     "version 1 and a truth value at version 2, and no function converts it."},
    {"TextToInteger",
     labelAttribute,
     {"label", cls_TypeInt},
     "'1'",
     "old: table upg_Shape, field label: The table can't be upgraded. The attribute holds a text at version "
     "1 "
     "and an integer at version 2, and no function converts it."},
    {"EnumerationToReal",
     {"label", cls_TypeEnum},
     {"label", cls_TypeDouble},
     "'A'",
     "old: table upg_Shape, field label: The table can't be upgraded. The attribute holds an enumeration at "
     "version 1 and a real number at version 2, and no function converts it."},
    {"ObjectToInteger",
     lidAttribute,
     {"lid", cls_TypeInt},
     "NULL, NULL",
     "old: table upg_Shape, field lid: The table can't be upgraded. The attribute holds an object at version "
     "1 and an integer at version 2, and no function converts it."},
    {"TextToObject",
     {"lid", cls_TypeText},
     lidAttribute,
     "'A'",
     "old: table upg_Shape, field lid: The table can't be upgraded. The attribute holds a text at version 1 "
     "and an object at version 2, and no function converts it."},
    {"ListOfNumbersToListOfObjects",
     numbersAttribute,
     {"numbers", cls_TypeObject, cls_ListTypeId, cls_CollectionListObj},
     "NULL, NULL",
     "old: table upg_Shape, field numbers: The table can't be upgraded. The attribute holds a collection of "
     "code 52 at version 1 and a collection of code 1 at version 2, and no function converts it."}};

class KindOfAttribute : public testing::TestWithParam<KindChange>
{};

TEST_P(KindOfAttribute, IsKeptOrRefused)
{
    const KindChange& change = GetParam();
    const std::string row = std::string("INSERT INTO upg_Shape VALUES (1, x'00', ") + change.row + ", NULL)";
    const std::string column = change.to.name;
    const std::string query = "SELECT typeof(" + column + ") || ' ' || " + column + " FROM upg_Shape";
    const Case each{
        change.name,
        [&change](tst_Release& release)
        {
            release.Had({Shape(1, {change.from}), tst_Step("upg_Shape", shapeId, 1, 2)});
            release.Had({Shape(2, {change.to, nameAttribute}), tst_Step("upg_Shape", shapeId, 2, 3)});
            release.Has(Shape(3, {change.to}));
        },
        {Shape(1, {change.from})},
        row.c_str(),
        query.c_str(),
        change.expected};
    const tst_Folder folder;
    EXPECT_EQ(change.expected, UpgradeAndQuery(folder, each));
}

INSTANTIATE_TEST_SUITE_P(Changes, KindOfAttribute, testing::ValuesIn(kindChanges),
                         [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Kinds, UpgradeCase,
    testing::Values(
        Case{"FunctionsSeeTheKindOfTheirVersion",
             [](tst_Release& release)
             {
                 const tst_Form::Attribute real{"number", cls_TypeDouble};
                 release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Had({Shape(2, {real}), tst_Step("upg_Shape", shapeId, 2, 3, DoubleValue)});
                 release.Had({Shape(3, {real}), tst_Step("upg_Shape", shapeId, 3, 4, DoubleValue)});
                 release.Has(Shape(4, {real}));
             },
             {Shape(1, {numberAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 5, NULL)",
             "SELECT typeof(number) || number FROM upg_Shape",
             "real20.0"},
        Case{"WidenedBehindAFunctionThatLeavesIt",
             [](tst_Release& release)
             {
                 const tst_Form::Attribute real{"number", cls_TypeDouble};
                 release.Had({Shape(1, {numberAttribute, nameAttribute}),
                              tst_Step("upg_Shape", shapeId, 1, 2, RenameLabel)});
                 release.Has(Shape(2, {real, labelAttribute}));
             },
             {Shape(1, {numberAttribute, nameAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 5, 'text', NULL)",
             "SELECT typeof(number) || number || label FROM upg_Shape",
             "real5.0text"},
        Case{"FunctionConverts",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(1, {labelAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, NumberFromText)});
                 release.Has(Shape(2, {{"label", cls_TypeInt}}));
             },
             {Shape(1, {labelAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', '17', NULL)",
             "SELECT typeof(label) || label FROM upg_Shape",
             "integer17"},
        Case{"NothingIsLostWhereTheColumnLacks",
             [](tst_Release& release)
             {
                 release.Had(
                     {Shape(1, {numberAttribute, labelAttribute}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Has(Shape(2, {numberAttribute, {"label", cls_TypeInt}}));
             },
             {Shape(1, {numberAttribute})},
             "",
             "SELECT Version FROM rom_Class WHERE Name = 'upg_Shape'",
             "2"}),
    [](const auto& info) { return info.param.name; });

// ---- what is left of classes that are no more ----

constexpr unsigned oldCrateId = 0xFD0011;

const tst_Form oldCrate{"upg_OldCrate", oldCrateId, 1, cls_RootId, {partsAttribute}};
const tst_Form::Attribute contentAttribute{"content", cls_TypeObject, shapeId};

void DeleteOldCrate(dbc_DatabaseConverter& converter)
{
    converter.ClassesToDelete().InsertIndex(0, oldCrateId);
    converter.InputClasses().DeleteClass("upg_OldCrate", oldCrateId);
    converter.OutputClasses().DeleteClass("upg_OldCrate", oldCrateId);
}

void HasNoMoreOldBoxes(tst_Release& release)
{
    release.Had({oldBox, {}, DeleteOldBox});
    release.Had({oldCrate, {}, DeleteOldCrate});
    release.Has(Shape(1, {numberAttribute}));
    release.Has(Crate(1, {contentAttribute}));
    release.Has(Lid(1, {partsAttribute}));
}

const std::vector<tst_Form> formsWithOldBoxes{Shape(1, {numberAttribute}), oldBox, oldCrate,
                                              Crate(1, {contentAttribute}), Lid(1, {partsAttribute})};

/// A store with an old crate that has a list of old boxes, whose one box has a base.
struct Vanished
{
    const char* name;
    const char* moreRows;
    const char* query;
    const char* expected;
};

constexpr char vanishedRows[] =
    "INSERT INTO upg_Shape VALUES (5, x'00', 50, NULL), (6, x'01', 60, NULL);"
    "INSERT INTO upg_OldBox VALUES (2, x'02', 6, 'gone', NULL);"
    "INSERT INTO upg_OldCrate VALUES (1, x'03', 0x230001, 4, NULL);"
    "INSERT INTO cls_List VALUES (4, x'04', 1, 1, NULL, NULL, NULL), (7, x'05', 1, 1, NULL, NULL, NULL);"
    "INSERT INTO rom_Element VALUES (0x230001, 4, 0, NULL, NULL, 0xFD0010, 2, NULL), "
    "(0x230001, 7, 0, NULL, NULL, 0xFD0001, 5, NULL);";

const Vanished vanished[] = {
    {"WhatTheyAloneReachGoesWithThem",
     "INSERT INTO upg_Lid VALUES (1, x'06', 0x230001, 7, NULL);"
     "INSERT INTO rom_Root VALUES (1, 'lid', 0xFD0004, 1, NULL)",
     "SELECT (SELECT group_concat(OID) FROM upg_Shape) || ' ' || (SELECT group_concat(OID) FROM cls_List) || "
     "' ' || (SELECT group_concat(OID || ':' || \"Target#OID\") FROM rom_Element) || ' ' || "
     "(SELECT COUNT(*) FROM rom_Class WHERE Name LIKE 'upg_Old%')",
     "5 7 7:5 0"},
    {"RowThatNothingReachesRefersToOne",
     "INSERT INTO upg_Crate VALUES (1, x'06', 0xFD0010, 2, NULL), (2, x'07', 0xFD0001, 5, NULL);"
     "INSERT INTO rom_Root VALUES (1, 'crate', 0xFD0003, 2, NULL)",
     "SELECT group_concat(OID || ':' || \"content#OID\") || (SELECT COUNT(*) FROM rom_Element) FROM "
     "upg_Crate",
     "2:50"},
    {"NothingGoesWhereNothingRefersToOne",
     "DELETE FROM rom_Element;"
     "INSERT INTO upg_Crate VALUES (1, x'06', NULL, NULL, NULL);"
     "INSERT INTO rom_Root VALUES (1, 'crate', 0xFD0003, 1, NULL)",
     "SELECT group_concat(OID) || (SELECT COUNT(*) FROM cls_List) FROM upg_Shape", "5,62"},
    {"NamedObjectRefersToOne",
     "INSERT INTO upg_Crate VALUES (1, x'06', 0xFD0010, 2, NULL);"
     "INSERT INTO rom_Root VALUES (1, 'crate', 0xFD0003, 1, NULL)",
     "",
     "old: table upg_Crate, row 1, field content#OID: The reference leads to an object of unknown class "
     "16580624, and the attribute takes unknown class 16580609."},
    {"NamedObjectHasAListOfThem",
     "INSERT INTO upg_Lid VALUES (1, x'06', 0x230001, 4, NULL);"
     "INSERT INTO rom_Root VALUES (1, 'lid', 0xFD0004, 1, NULL)",
     "",
     "old: table rom_Element, row 4, field Target#OID: The reference leads to a row of unknown class "
     "16580624 "
     "that is not there."},
    {"NoNamedObjectTellsWhatIsInUse", "", "",
     "old: table rom_Element, row 4, field Target#OID: The reference leads to a row of unknown class "
     "16580624 "
     "that is not there."},
    {"NamedObjectIsOne", "INSERT INTO rom_Root VALUES (1, 'box', 0xFD0010, 2, NULL)", "",
     "old: table rom_Root: The object of the name \"box\" is of a class that has no table."}};

class VanishedClass : public testing::TestWithParam<Vanished>
{};

TEST_P(VanishedClass, TakesAlongWhatNothingElseReaches)
{
    const std::string rows = std::string(vanishedRows) + GetParam().moreRows;
    const Case each{GetParam().name, HasNoMoreOldBoxes, formsWithOldBoxes,
                    rows.c_str(),    GetParam().query,  GetParam().expected};
    const tst_Folder folder;
    EXPECT_EQ(each.expected, UpgradeAndQuery(folder, each));
}

INSTANTIATE_TEST_SUITE_P(With, VanishedClass, testing::ValuesIn(vanished),
                         [](const auto& info) { return info.param.name; });

// ---- what is refused ----

void* MakeAndForget(const dbc_Row&, dbc_Row&, int)
{
    Converter().GetOutputDatabase().GetOutputTable(lidId)->NewRow();
    return nullptr;
}

void* ReadWhatIsNotThere(const dbc_Row& input, dbc_Row&, int)
{
    input.GetInt(F("weight"));
    return nullptr;
}

void* WriteAnotherKind(const dbc_Row&, dbc_Row& output, int)
{
    output.PutText(F("number"), "text");
    return nullptr;
}

void HasShape(tst_Release& release, dbc_ConversionFunction conversion)
{
    release.Had({Shape(1, {numberAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, conversion)});
    release.Has(Shape(2, {numberAttribute}));
    release.Has(Lid(1, {numberAttribute}), WriteDefaultLid);
}

constexpr char shapeRow[] = "INSERT INTO upg_Shape VALUES (8, x'00', 1, NULL)";

INSTANTIATE_TEST_SUITE_P(
    Refused, UpgradeCase,
    testing::Values(
        Case{"UnknownClass",
             [](tst_Release&) {},
             {Shape(1, {})},
             "",
             "",
             "old: table upg_Shape: The table is of a class that this release does not know, upg_Shape "
             "(0xFD0001), and "
             "an upgrade would lose it."},
        Case{"NewerVersion",
             [](tst_Release& release) { release.Has(Shape(1, {})); },
             {Shape(2, {})},
             "",
             "",
             "old: table upg_Shape: The table was written by a newer release: it has version 2, and this "
             "release knows "
             "version 1."},
        Case{"VersionInNoChain",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(0, {})},
             "",
             "",
             "old: table upg_Shape: No release has stored the class upg_Shape (0xFD0001) with version 0."},
        Case{"MissingStep",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {})});
                 release.Has(Shape(2, {}));
             },
             {Shape(1, {})},
             "",
             "",
             "old: table upg_Shape: The table can't be upgraded. There is no step from version 1 on."},
        Case{"TwoSteps",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {}), tst_Step("upg_Shape", shapeId, 1, 2)});
                 release.Had({Shape(2, {}), tst_Step("upg_Shape", shapeId, 1, 3)});
                 release.Has(Shape(3, {}));
             },
             {Shape(1, {})},
             "",
             "",
             "old: table upg_Shape: The table can't be upgraded. There are two steps from version 1, to 2 "
             "and to 3."},
        Case{"StepBackwards",
             [](tst_Release& release)
             {
                 release.Had({Shape(2, {}), tst_Step("upg_Shape", shapeId, 2, 1)});
                 release.Has(Shape(3, {}));
             },
             {Shape(2, {})},
             "",
             "",
             "old: table upg_Shape: The table can't be upgraded. The step from version 2 leads to version 1, "
             "which is "
             "older."},
        Case{"StepBeyondTheClass",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {}), tst_Step("upg_Shape", shapeId, 1, 9)});
                 release.Has(Shape(3, {}));
             },
             {Shape(1, {})},
             "",
             "",
             "old: table upg_Shape: The table can't be upgraded. The step from version 1 leads to version 9, "
             "which lies "
             "beyond the class's own version 3."},
        Case{"StepOfAnotherName",
             [](tst_Release& release)
             {
                 release.Had({Shape(1, {}), tst_Step("upg_Shade", shapeId, 1, 2)});
                 release.Has(Shape(2, {}));
             },
             {Shape(1, {})},
             "",
             "",
             "old: table upg_Shape: The table can't be upgraded. The step from version 1 is declared for a "
             "class of the "
             "name upg_Shade."},
        Case{"TableOfAnotherForm",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(1, {flagAttribute})},
             "",
             "",
             "old: table upg_Shape, field flag: The class has no such attribute."},
        Case{"ForeignPart",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(1, {numberAttribute})},
             "CREATE TABLE stranger (a)",
             "",
             "old: table stranger: The file holds parts that this release does not know, and an upgrade "
             "would lose "
             "them."},
        Case{"WrongCheckNumberWithoutFunction",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(1, {numberAttribute})},
             "INSERT INTO upg_Shape VALUES (8, x'00', 1, 5)",
             "",
             "old: table upg_Shape, row 8, field ##Check: The row does not fit its check number: the file is "
             "damaged."},
        Case{"WrongCheckNumberWithFunction",
             [](tst_Release& release) { HasShape(release, WriteAnotherKind); },
             {Shape(1, {numberAttribute})},
             "INSERT INTO upg_Shape VALUES (8, x'00', 1, 5)",
             "",
             "old: table upg_Shape, row 8, field ##Check: The row does not fit its check number: the file is "
             "damaged."},
        Case{"WrongKindInACell",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(1, {numberAttribute})},
             "INSERT INTO upg_Shape VALUES (8, x'00', 'text', NULL)",
             "",
             "old: table upg_Shape, row 8, field number: The cell holds another kind of value than its "
             "column."},
        Case{"FunctionReadsWhatIsNotThere",
             [](tst_Release& release) { HasShape(release, ReadWhatIsNotThere); },
             {Shape(1, {numberAttribute})},
             shapeRow,
             "",
             "old: table upg_Shape, row 8, field weight: The table has no such field."},
        Case{"FunctionWritesAnotherKind",
             [](tst_Release& release) { HasShape(release, WriteAnotherKind); },
             {Shape(1, {numberAttribute})},
             shapeRow,
             "",
             "old: table upg_Shape, row 8, field number: The field can't hold a text."},
        Case{"FunctionForgetsARow",
             [](tst_Release& release) { HasShape(release, MakeAndForget); },
             {Shape(1, {numberAttribute})},
             shapeRow,
             "",
             "new: table upg_Lid, row 1: A conversion made a row and did not commit it."},
        Case{"DanglingReference",
             [](tst_Release& release)
             {
                 release.Has(Crate(1, {lidAttribute}));
                 release.Has(Lid(1, {numberAttribute}));
             },
             {Crate(1, {lidAttribute}), Lid(1, {numberAttribute})},
             "INSERT INTO upg_Lid VALUES (1, x'00', 1, NULL), (3, x'01', 1, NULL);"
             "INSERT INTO upg_Crate VALUES (1, x'02', 0xFD0004, 3, NULL), (2, x'03', 0xFD0004, 2, NULL)",
             "",
             "old: table upg_Crate, row 2, field lid#OID: The reference leads to a row of unknown class "
             "16580612 "
             "that is not there."},
        Case{"ReferenceToAnotherClass",
             [](tst_Release& release)
             {
                 release.Has(Crate(1, {lidAttribute}));
                 release.Has(Shape(1, {numberAttribute}));
             },
             {Crate(1, {lidAttribute}), Shape(1, {numberAttribute})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1, NULL); INSERT INTO upg_Crate VALUES (6, x'02', "
             "0xFD0001, 1, "
             "NULL)",
             "",
             "old: table upg_Crate, row 6, field lid#OID: The reference leads to an object of unknown class "
             "16580609, and the attribute takes unknown class 16580612."},
        Case{"BaseRowIsNotThere",
             [](tst_Release& release)
             {
                 release.Has(Shape(1, {numberAttribute}));
                 release.Has(Box(1, {}));
             },
             {Shape(1, {numberAttribute}), Box(1, {})},
             "INSERT INTO upg_Shape VALUES (1, x'00', 1, NULL); INSERT INTO upg_Box VALUES (3, x'02', 2, "
             "NULL)",
             "",
             "old: table upg_Box, row 3, field ##BaseClassOID: The reference leads to a row of unknown class "
             "16580609 "
             "that is not there."},
        Case{"RootWithoutRow",
             [](tst_Release& release) { HasShape(release, nullptr); },
             {Shape(1, {numberAttribute})},
             "INSERT INTO rom_Root VALUES (1, 'model', 0xFD0001, 5, NULL)",
             "",
             "old: table upg_Shape, row 5: The object of the name \"model\" has no row."}),
    [](const auto& info) { return info.param.name; });

// ---- whole stores ----

TEST(Upgrade, ObjectsComeBackAsTheyWere)
{
    const tst_Folder folder;
    const std::unique_ptr<tst_Whole> whole(tst_NewOddWhole());
    tst_Save(folder / "old", *whole);
    tst_Execute(folder / "old",
                "ALTER TABLE tst_Part RENAME COLUMN label TO name;"
                "UPDATE tst_Part SET \"##Check\" = NULL;"
                "UPDATE rom_Class SET Version = 300, \"##Check\" = NULL WHERE Name = 'tst_Part'");
    tst_Release release;
    release.Had({{"tst_Part", tst_Part::TypeId(), 300, cls_RootId, {numberAttribute, nameAttribute}},
                 tst_Step("tst_Part", tst_Part::TypeId(), 300, 401, RenameLabel)});
    dbc_Upgrade upgrade((folder / "old").c_str());
    EXPECT_FALSE(upgrade.IsCurrent());
    std::int64_t told = 0;
    upgrade.Run((folder / "new").c_str(),
                [&told](std::int64_t done, std::int64_t total)
                {
                    EXPECT_LE(told, done);
                    EXPECT_LE(done, total);
                    told = done;
                });
    EXPECT_LT(0, told);
    EXPECT_EQ(tst_Describe(whole.get()), tst_Describe(tst_Load(folder / "new").ConstGet()));
}

/// All rows of a store, as SQLite prints them.
std::string AllRows(const std::string& path)
{
    std::string rows;
    const char* const tables[] = {"rom_Class", "rom_Root",  "rom_Element", "rfm_Array",
                                  "tst_Part",  "tst_Whole", "cls_List",    "cls_Map"};
    for (const char* table : tables)
        rows += tst_QueryAll(path, std::string("SELECT * FROM ") + table) + "\n";
    return rows;
}

TEST(Upgrade, StoreOfThisReleaseStaysAsItIs)
{
    const tst_Folder folder;
    const std::unique_ptr<tst_Whole> whole(tst_NewOddWhole());
    tst_Save(folder / "old", *whole);
    dbc_Upgrade upgrade((folder / "old").c_str());
    EXPECT_TRUE(upgrade.IsCurrent());
    upgrade.Run((folder / "new").c_str());
    EXPECT_EQ(AllRows(folder / "old"), AllRows(folder / "new"));
}

TEST(Upgrade, PlanTellsTablesAndSteps)
{
    const tst_Folder folder;
    tst_Release release;
    HasMovingBox(release, MoveOldBox);
    tst_MakeStore(folder / "old", {Shape(1, {numberAttribute}), oldBox, Crate(1, {partsAttribute})});
    tst_Execute(folder / "old", boxRows);
    const dbc_Upgrade upgrade((folder / "old").c_str());
    std::string plan;
    for (const dbc_UpgradeTable& table : upgrade.Tables())
    {
        plan += std::string(table.name.CString()) + " " + std::to_string(table.rows) + " " +
                std::to_string(table.from) + "-" + std::to_string(table.to) + " " + table.newName.CString();
        for (const dbc_UpgradeStep& step : table.steps)
            plan +=
                " " + std::to_string(step.from) + ">" + std::to_string(step.to) + step.functions.CString();
        plan += "\n";
    }
    EXPECT_EQ("cls_List 1 203-203 cls_List\n"
              "cls_Map 0 203-203 cls_Map\n"
              "upg_Shape 2 1-2 upg_Shape 1>2\n"
              "upg_Crate 1 1-1 upg_Crate\n"
              "upg_OldBox 2 1-3 upg_Box 1>2 2>3Upgrade_Test\n",
              plan);
}

/// The error of an upgrade of a store with a page of which SQLite can make nothing, in the middle of a table.
std::string UpgradeWithDamagedPage(const tst_Folder& folder, const char* table, const std::string& mark)
{
    std::string bytes = tst_ReadFile(folder / "old");
    constexpr std::size_t pageSize = 16384;
    const std::size_t page = bytes.find(mark) / pageSize * pageSize;
    EXPECT_LT(page, bytes.size());
    bytes[page] = 0;
    tst_WriteFile(folder / "old", bytes);
    try
    {
        dbc_Upgrade((folder / "old").c_str()).Run((folder / "new").c_str());
    }
    catch (const rom_StoreException& error)
    {
        EXPECT_EQ("old", folder.Names());
        EXPECT_STREQ((folder / "old").c_str(), error.StoreFile().CString());
        EXPECT_STREQ(table, error.Table().CString());
        return error.what();
    }
    return "no error";
}

struct Damage
{
    const char* name;
    const char* table;
    dbc_ConversionFunction function;
};

class DamagedPage : public testing::TestWithParam<Damage>
{};

TEST_P(DamagedPage, IsToldOfTheOldStore)
{
    const tst_Folder folder;
    tst_Release release;
    release.Had({Shape(1, {nameAttribute}), tst_Step("upg_Shape", shapeId, 1, 2, GetParam().function)});
    release.Has(Shape(2, {GetParam().function ? labelAttribute : nameAttribute}));
    tst_MakeStore(folder / "old", {Shape(1, {nameAttribute})});
    tst_Execute(
        folder / "old",
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO upg_Shape SELECT i, x'00', 'upg_Shape is number ' || i, NULL FROM n;"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO rom_Element SELECT 0x230001, 1, i, NULL, 'rom_Element is number ' || i, NULL, NULL, "
        "NULL FROM n;"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO rfm_Array SELECT i, 4, 1, CAST('rfm_Array is number ' || i AS BLOB), NULL FROM n");
    const std::string mark = std::string(GetParam().table) + " is number 2500";
    EXPECT_THAT(UpgradeWithDamagedPage(folder, GetParam().table, mark),
                testing::HasSubstr("The file is damaged (database disk image is malformed)."));
}

INSTANTIATE_TEST_SUITE_P(In, DamagedPage,
                         testing::Values(Damage{"ATableThatIsCopied", "upg_Shape", nullptr},
                                         Damage{"ATableThatIsConverted", "upg_Shape", RenameLabel},
                                         Damage{"TheElements", "rom_Element", nullptr},
                                         Damage{"TheArrays", "rfm_Array", nullptr}),
                         [](const auto& info) { return info.param.name; });

TEST(Upgrade, NewFileMustNotBeThere)
{
    const tst_Folder folder;
    const std::unique_ptr<tst_Whole> whole(tst_NewOddWhole());
    tst_Save(folder / "old", *whole);
    tst_WriteFile(folder / "new", "mine");
    for (const char* name : {"old", "new"})
    {
        dbc_Upgrade upgrade((folder / "old").c_str());
        EXPECT_THROW(upgrade.Run((folder / name).c_str()), rom_StoreException) << name;
    }
    EXPECT_EQ("mine", tst_ReadFile(folder / "new"));
    EXPECT_EQ(tst_Describe(whole.get()), tst_Describe(tst_Load(folder / "old").ConstGet()));
}

TEST(Upgrade, PathsMayHoldAnyLetters)
{
    const tst_Folder folder;
    const std::unique_ptr<tst_Whole> whole(tst_NewOddWhole());
    const std::string old = folder / "a b%20?mode=rw#\xC3\xA4&x";
    tst_Save(old, *whole);
    dbc_Upgrade(old.c_str()).Run((folder / "new?x#y").c_str());
    EXPECT_EQ(tst_Describe(whole.get()), tst_Describe(tst_Load(folder / "new?x#y").ConstGet()));
}

} // namespace
