#include "LibraryEnvironment.h"
#include "StoreText.h"
#include "cmd_Difference.h"
#include "ddr_Model.h"
#include "rom_StoreReader.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

// Random models, written as any release of before would have stored them and as this one does, both as text:
// the upgrade of the former must have the rows of the latter, and read as the same model.

namespace
{

/// What an amplitude is made of, whatever its kind.
struct Amplitude
{
    enum Kind
    {
        Decay,
        EquallySpaced,
        Periodic,
        Tabular,
        SmoothStep,
        KindCount
    };

    Kind kind;
    std::string definition;
    std::string span;
    std::vector<std::string> reals; ///< in order of the current form
    std::vector<std::string> values;
    bool hasBaseline;
};

constexpr const char* frameRows = R"(rom_Root
  OID  Name     Target
  1    "model"  0xA0002:1
ddr_Model: class 0xA0002, version 401
  OID adaptiveMeshControls:object amplitudes:object profiles:object connectors:object constraints:object eventSeriesDatas:object eventSeriesTypes:object filters:object materials:object tableCollections:object optimizationTasks:object
  1 - 0x2440017:1 - - - - - - - - -
mdl_Repository: class 0xA0001, version 401, base 0xA000D
  OID ##BaseClassOID
  1 1
mdl_Extension: class 0xA000D, version 401
  OID
  1
  2
kamC_AmplitudeContainer: class 0x244000C, version 800, base 0xA0001
  OID ##BaseClassOID map:object
  1 1 0x230002:1
kamC_ACWrapper: class 0x2440017, version 401, base 0xA000D
  OID ##BaseClassOID extension:object
  1 2 0x244000C:1
)";

/// One form of one kind: its columns, and which real stands in which.
struct Form
{
    const char* heading;
    int version;
    std::vector<const char*> columns; ///< behind the base; reals by name, then what is special
    std::vector<int> reals;           ///< positions in `Amplitude::reals`, in order of the columns
    bool hasValues;
    bool hasBaseline;
    bool valuesFirst = true; ///< whether the values stand before the baseline correction
};

const Form& FormOf(Amplitude::Kind kind, bool isOld)
{
    static const Form forms[Amplitude::KindCount][2] = {
        {{"kamC_Decay: class 0x2440003",
          203,
          {"initial", "maximum", "start", "decayTime"},
          {0, 1, 2, 3},
          false,
          false},
         {"kamC_Decay: class 0x2440003",
          203,
          {"initial", "maximum", "start", "decayTime"},
          {0, 1, 2, 3},
          false,
          false}},
        {{"kamC_EquallySpaced: class 0x2440004",
          424,
          {"fixedInterval", "begin", "smooth"},
          {0, 1, 2},
          true,
          true},
         {"kamC_EquallySpaced: class 0x2440004",
          203,
          {"smooth", "fixedInterval", "begin"},
          {2, 0, 1},
          true,
          true}},
        {{"kamC_Periodic: class 0x2440006", 424, {"frequency", "start", "a_0"}, {0, 1, 2}, true, false},
         {"kamC_Periodic: class 0x2440006", 203, {"frequency", "start", "a_0"}, {0, 1, 2}, true, false}},
        {{"kamC_Tabular: class 0x2440008", 424, {"smooth"}, {0}, true, true},
         {"kamC_Tabular: class 0x2440008", 203, {"smooth"}, {0}, true, true}},
        {{"kamC_SmoothStep: class 0x244000B", 424, {}, {}, true, false},
         {"kamC_SmoothStep: class 0x244000B", 203, {}, {}, true, false}}};
    return forms[kind][isOld ? 1 : 0];
}

/// The form in which kamC_Amplitude is stored.
struct BaseForm
{
    int version = 430;
    bool lacksDefinition = false; ///< where the version has it
    bool hasNewSpan = false;      ///< as of version 424, beside the span of before: each row has one of them

    bool HasDefinition() const { return version < 430 && !lacksDefinition; }
    bool HasBothSpans() const { return version < 424 && hasNewSpan; }
    bool HasValue() const { return version == 203; }
};

/// Writes a model as one set of releases stored it.
class Writer
{
public:
    /// `oldKinds` says for each kind whether it is in its old form.
    Writer(const std::vector<Amplitude>& amplitudes, const BaseForm& base, std::vector<bool> oldKinds)
        : amplitudes(amplitudes), base(base), oldKinds(std::move(oldKinds))
    {}

    std::string Text()
    {
        std::string kinds;
        for (int kind = 0; kind < Amplitude::KindCount; ++kind)
            kinds += Kind(static_cast<Amplitude::Kind>(kind));
        return frameRows + Map() + Base() + kinds + Collections();
    }

private:
    std::string Map() const
    {
        return "cls_Map: class 0x230002, version 203\n"
               "  OID Target#Collection Target#Length Target#Columns Target#Handle\n  1 2 " +
               std::to_string(amplitudes.size()) + " - -\n";
    }

    std::string Base() const
    {
        std::string text =
            "kamC_Amplitude: class 0x2440002, version " + std::to_string(base.version) + "\n  OID";
        text += base.HasDefinition() ? " definition:text" : "";
        text += base.version < 424 ? " time:text" : " timeSpan:text";
        text += base.HasValue() ? " value:text" : "";
        text += base.HasBothSpans() ? " timeSpan:text\n" : "\n";
        int row = 0;
        for (const Amplitude& each : amplitudes)
            text += BaseRow(each, ++row);
        return amplitudes.empty() ? "" : text;
    }

    std::string BaseRow(const Amplitude& each, int row) const
    {
        const bool isNew = base.HasBothSpans() && row % 2 == 0;
        std::string text = "  " + std::to_string(row);
        text += base.HasDefinition() ? " " + each.definition : "";
        text += isNew ? " -" : " " + each.span;
        text += base.HasValue() ? " \"RELATIVE\"" : "";
        if (base.HasBothSpans())
            text += isNew ? " " + each.span : " -";
        return text + '\n';
    }

    std::string Kind(Amplitude::Kind kind)
    {
        const bool isOld = oldKinds[kind];
        const Form& form = FormOf(kind, isOld);
        std::string text = std::string(form.heading) + ", version " + std::to_string(form.version) +
                           ", base 0x2440002\n  OID ##BaseClassOID";
        for (const char* column : form.columns)
            text += std::string(" ") + column + ":real";
        text += form.hasValues ? (isOld ? " table:object" : " data:object") : "";
        text += form.hasBaseline ? " baselineCorrection:object\n" : "\n";
        int row = 0;
        for (std::size_t i = 0; i < amplitudes.size(); ++i)
        {
            if (amplitudes[i].kind == kind)
                text += Row(amplitudes[i], form, ++row, i);
        }
        return row == 0 ? "" : text;
    }

    std::string Row(const Amplitude& each, const Form& form, int row, std::size_t position)
    {
        std::string text = "  " + std::to_string(row) + ' ' + std::to_string(position + 1);
        for (const int real : form.reals)
            text += ' ' + each.reals[static_cast<std::size_t>(real)];
        if (form.hasValues)
            text += " 0x230001:" + std::to_string(AddList(each.kind, each.values));
        if (form.hasBaseline)
            text += each.hasBaseline ? " 0x2440001:" + std::to_string(AddBaseline()) : " -";
        const unsigned id = 0x2440000u + std::vector<unsigned>{3, 4, 6, 8, 11}[each.kind];
        targets[position] = std::to_string(id) + ':' + std::to_string(row);
        return text + '\n';
    }

    int AddList(Amplitude::Kind kind, const std::vector<std::string>& values)
    {
        const bool isList = kind == Amplitude::EquallySpaced;
        ++listCount;
        std::string handle = "-";
        if (!values.empty())
        {
            handle = std::to_string(++arrayCount);
            arrays += "  " + handle + " 4 " + std::to_string(values.size()) + " [";
            for (std::size_t i = 0; i < values.size(); ++i)
                arrays += (i == 0 ? "" : ", ") + values[i];
            arrays += "]\n";
        }
        lists += "  " + std::to_string(listCount) + (isList ? " 52 " : " 82 ") +
                 std::to_string(values.size()) + (isList ? " 1 " : " 2 ") + handle + '\n';
        return listCount;
    }

    int AddBaseline()
    {
        const int list = AddList(Amplitude::EquallySpaced, {"0", "1.5"});
        baselines += "  " + std::to_string(++baselineCount) + " 0x230001:" + std::to_string(list) + '\n';
        return baselineCount;
    }

    std::string Collections() const
    {
        std::string text;
        if (baselineCount > 0)
            text +=
                "kamC_BaselineCorrection: class 0x2440001, version 203\n  OID intervals:object\n" + baselines;
        if (listCount > 0)
            text += "cls_List: class 0x230001, version 203\n"
                    "  OID Target#Collection Target#Length Target#Columns Target#Handle\n" +
                    lists;
        text += "rom_Element\n  ClassID OID Position Key Value Target\n";
        for (const auto& [position, target] : targets)
            text += "  0x230002 1 " + std::to_string(position) + " \"" +
                    std::string(1, static_cast<char>('a' + position)) + "\" - " + target + '\n';
        return text + "rfm_Array\n  Handle Type Length Bytes\n" + arrays;
    }

    const std::vector<Amplitude>& amplitudes;
    BaseForm base;
    std::vector<bool> oldKinds;
    std::map<std::size_t, std::string> targets;
    std::string lists;
    std::string arrays;
    std::string baselines;
    int listCount = 0;
    int arrayCount = 0;
    int baselineCount = 0;
};

rc::Gen<std::string> Reals()
{
    return rc::gen::element<std::string>("0.0", "-0.0", "1.5", "1e-300", "NaN", "Infinity", "-Infinity",
                                         "1.7976931348623157e+308", "0.1");
}

rc::Gen<Amplitude> Amplitudes()
{
    return rc::gen::exec(
        []
        {
            Amplitude made;
            made.kind =
                static_cast<Amplitude::Kind>(*rc::gen::inRange(0, static_cast<int>(Amplitude::KindCount)));
            made.definition = *rc::gen::element<std::string>("\"TABULAR\"", "\"\"", "\"gone \\xFF\"");
            made.span = *rc::gen::element<std::string>("\"STEP\"", "\"TOTAL\"");
            made.reals = *rc::gen::container<std::vector<std::string>>(4, Reals());
            const auto count = 2 * *rc::gen::inRange<std::size_t>(0, 4);
            made.values = *rc::gen::container<std::vector<std::string>>(count, Reals());
            made.hasBaseline = *rc::gen::arbitrary<bool>();
            return made;
        });
}

ddr_ModelHandle ReadModel(const std::string& store)
{
    rom_StoreReader reader(store.c_str());
    return cow_Restored<ddr_Model, cow_Virtual<ddr_Model>>(reader.ReadRoot("model", ddr_Model::TypeId()));
}

RC_GTEST_PROP(Evolution, OfAnyReleaseEndsInTheRowsOfThisOne, ())
{
    const auto count = *rc::gen::inRange<std::size_t>(0, 8);
    const auto amplitudes = *rc::gen::container<std::vector<Amplitude>>(count, Amplitudes());
    const BaseForm base{*rc::gen::element(203, 208, 424, 430), *rc::gen::arbitrary<bool>(),
                        *rc::gen::arbitrary<bool>()};
    const auto oldKinds =
        *rc::gen::container<std::vector<bool>>(std::size_t{Amplitude::KindCount}, rc::gen::arbitrary<bool>());

    const TemporaryFolder folder;
    const std::string old = folder / "old.vdb";
    const std::string expected = folder / "expected.vdb";
    const std::string upgraded = folder / "upgraded.vdb";
    const std::string again = folder / "again.vdb";
    rfm_MakeStoreOfText(old, Writer(amplitudes, base, oldKinds).Text(), "old");
    rfm_MakeStoreOfText(
        expected, Writer(amplitudes, {}, std::vector<bool>(Amplitude::KindCount, false)).Text(), "expected");
    Upgrade(old, upgraded);
    RC_ASSERT(RowsOf(upgraded) == RowsOf(expected));
    const auto model = ReadModel(upgraded);
    RC_ASSERT(cmd_Compare(*model.ConstGet(), *ReadModel(expected).ConstGet()).empty());
    Upgrade(upgraded, again);
    RC_ASSERT(RowsOf(again) == RowsOf(upgraded));
}

} // namespace
