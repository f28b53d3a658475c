#include "kamC_old.h"

#include "LibraryEnvironment.h"
#include "MemoryRow.h"
#include "cls_ClassRegistrar.h"
#include "dbc_OldClasses.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using Fields = MemoryRow::Fields;

constexpr auto none = MemoryRow::none;
constexpr std::int64_t listId = 0x230001;

void CheckConversion(dbc_ConversionFunction convert, const std::vector<ConversionRow>& rows)
{
    for (const ConversionRow& row : rows)
    {
        const MemoryRow input(row.from);
        MemoryRow output;
        EXPECT_EQ(nullptr, convert(input, output, 0)) << row.input;
        EXPECT_EQ(row.to, output.All()) << row.input;
        EXPECT_EQ(row.from, input.All()) << row.input;
    }
}

TEST(Upgrade, AmplitudeRenamesTimeTo424)
{
    CheckConversion(Upgrade_kamC_Amplitude_208_424,
                    {{"the old form", {{"time", "TOTAL"}}, {{"timeSpan", "TOTAL"}}},
                     {"any text is taken as it is", {{"time", "total "}}, {{"timeSpan", "total "}}},
                     {"an empty text", {{"time", ""}}, {{"timeSpan", ""}}},
                     {"the new form", {{"timeSpan", "STEP"}}, {}},
                     {"both, the new one with a value", {{"time", "TOTAL"}, {"timeSpan", "STEP"}}, {}},
                     {"both, the new one without value",
                      {{"time", "TOTAL"}, {"timeSpan", none}},
                      {{"timeSpan", "TOTAL"}}},
                     {"no value in the old field", {{"time", none}}, {}},
                     {"neither field", {{"definition", "TABULAR"}}, {}}});
}

TEST(Upgrade, ValuesMoveFromTableToDataTo424)
{
    CheckConversion(
        Upgrade_kamC_EquallySpaced_203_424,
        {{"the old form",
          {{"table#ClassID", listId}, {"table#OID", std::int64_t{7}}},
          {{"data#ClassID", listId}, {"data#OID", std::int64_t{7}}}},
         {"the class of the old reference is not asked for",
          {{"table#ClassID", std::int64_t{5}}, {"table#OID", std::int64_t{7}}},
          {{"data#ClassID", listId}, {"data#OID", std::int64_t{7}}}},
         {"the new form", {{"data#ClassID", listId}, {"data#OID", std::int64_t{3}}}, {}},
         {"both, the new one with a value",
          {{"table#OID", std::int64_t{7}}, {"data#ClassID", listId}, {"data#OID", std::int64_t{3}}},
          {}},
         {"both, the new one without value",
          {{"table#OID", std::int64_t{7}}, {"data#ClassID", none}, {"data#OID", none}},
          {{"data#ClassID", listId}, {"data#OID", std::int64_t{7}}}},
         {"no value in the old field", {{"table#ClassID", none}, {"table#OID", none}}, {}},
         {"neither field", {{"smooth", 0.25}}, {}}});
}

TEST(Upgrade, OneFunctionServesAllKindsWithValues)
{
    EXPECT_EQ(&Upgrade_kamC_EquallySpaced_203_424, &Upgrade_kamC_Periodic_203_424);
    EXPECT_EQ(&Upgrade_kamC_EquallySpaced_203_424, &Upgrade_kamC_SmoothStep_203_424);
    EXPECT_EQ(&Upgrade_kamC_EquallySpaced_203_424, &Upgrade_kamC_Tabular_203_424);
}

struct OldAttribute
{
    int index;
    const char* name;
    int type;
    unsigned typeId;
    int collection;

    friend bool operator==(const OldAttribute& left, const cls_AttributeMetadata& right)
    {
        return left.index == right.field.Index() && right.field.Name() == left.name &&
               left.type == right.type && left.typeId == right.typeId &&
               left.collection == right.collectionType;
    }
};

struct OldVersion
{
    const char* name;
    unsigned id;
    int version;
    unsigned base;
    std::vector<OldAttribute> attributes;
    int next;
    const char* conversion;
    dbc_ConversionFunction function;
};

const std::vector<OldVersion>& Expected()
{
    static const std::vector<OldVersion> versions = {
        {"kamC_Amplitude",
         0x2440002,
         203,
         1,
         {{1, "definition", 14, 1, 0}, {2, "time", 14, 1, 0}, {3, "value", 14, 1, 0}},
         208,
         "",
         nullptr},
        {"kamC_Amplitude",
         0x2440002,
         208,
         1,
         {{1, "definition", 14, 1, 0}, {2, "time", 14, 1, 0}},
         424,
         "Upgrade_kamC_Amplitude_208_424",
         Upgrade_kamC_Amplitude_208_424},
        {"kamC_Amplitude",
         0x2440002,
         424,
         1,
         {{1, "definition", 14, 1, 0}, {19, "timeSpan", 14, 1, 0}},
         430,
         "",
         nullptr},
        {"kamC_EquallySpaced",
         0x2440004,
         203,
         0x2440002,
         {{8, "smooth", 10, 1, 0},
          {9, "fixedInterval", 10, 1, 0},
          {10, "begin", 10, 1, 0},
          {11, "table", 15, 0x230001, 52},
          {12, "baselineCorrection", 15, 0x2440001, 0}},
         424,
         "Upgrade_kamC_EquallySpaced_203_424",
         Upgrade_kamC_EquallySpaced_203_424},
        {"kamC_Periodic",
         0x2440006,
         203,
         0x2440002,
         {{16, "frequency", 10, 1, 0},
          {6, "start", 10, 1, 0},
          {17, "a_0", 10, 1, 0},
          {11, "table", 15, 0x230001, 82}},
         424,
         "Upgrade_kamC_Periodic_203_424",
         Upgrade_kamC_EquallySpaced_203_424},
        {"kamC_Tabular",
         0x2440008,
         203,
         0x2440002,
         {{8, "smooth", 10, 1, 0},
          {11, "table", 15, 0x230001, 82},
          {12, "baselineCorrection", 15, 0x2440001, 0}},
         424,
         "Upgrade_kamC_Tabular_203_424",
         Upgrade_kamC_EquallySpaced_203_424},
        {"kamC_SmoothStep",
         0x244000B,
         203,
         0x2440002,
         {{11, "table", 15, 0x230001, 82}},
         424,
         "Upgrade_kamC_SmoothStep_203_424",
         Upgrade_kamC_EquallySpaced_203_424},
    };
    return versions;
}

/// The registered old versions of the amplitudes, in order.
std::vector<const dbc_OldClasses::Entry*> OfAmplitudes(const dbc_OldClasses& classes)
{
    std::vector<const dbc_OldClasses::Entry*> found;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        if (entry.form && entry.form->ClassId() >> 16 == 580)
            found.push_back(&entry);
    }
    return found;
}

TEST(OldVersions, AreThoseOfTheAmplitudesInOrder)
{
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    const std::vector<const dbc_OldClasses::Entry*> found = OfAmplitudes(classes);
    ASSERT_EQ(Expected().size(), found.size());
    for (std::size_t i = 0; i < found.size(); ++i)
    {
        const OldVersion& expected = Expected()[i];
        const cls_ClassMetadata& form = *found[i]->form;
        const std::string place = expected.name + ('_' + std::to_string(expected.version));
        EXPECT_EQ(4u, found[i]->mask) << place;
        EXPECT_EQ(cow_String(expected.name), form.Name()) << place;
        EXPECT_EQ(expected.id, form.ClassId()) << place;
        EXPECT_EQ(expected.version, form.Version()) << place;
        EXPECT_EQ(expected.base, form.BaseClassId()) << place;
        EXPECT_TRUE(std::equal(expected.attributes.begin(), expected.attributes.end(),
                               form.Attributes().begin(), form.Attributes().end()))
            << place;
        ASSERT_EQ(1u, found[i]->steps.size()) << place;
        const dbc_ClassConverter& step = *found[i]->steps[0];
        EXPECT_EQ(expected.next, step.TargetVersion()) << place;
        EXPECT_EQ(expected.version, step.FromVersion()) << place;
        EXPECT_EQ(expected.id, step.ClassId()) << place;
        EXPECT_EQ(cow_String(expected.name), step.Name()) << place;
        EXPECT_EQ(cow_String(expected.conversion), step.ConversionName()) << place;
        EXPECT_EQ(expected.function, step.ConversionFunction()) << place;
        EXPECT_EQ(nullptr, step.FinalizeFunction()) << place;
    }
    EXPECT_EQ(0, converter.ClassesToDelete().Count());
}

} // namespace
