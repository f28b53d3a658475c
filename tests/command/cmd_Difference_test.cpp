#include "cmd_Difference.h"

#include "LibraryEnvironment.h"
#include "cmd_Script.h"

#include <gtest/gtest.h>

namespace
{

class Difference : public testing::Test
{
protected:
    Difference()
    {
        for (const char* line :
             {"model.TabularAmplitude(name='ramp', data=((0.0, 0.0), (1.0, 1.0)))",
              "model.EquallySpacedAmplitude(name='quake', fixedInterval=0.01, data=(0.0, 0.5), "
              "baselineCorrection=BaselineCorrection(intervals=(0.0, 5.0)))",
              "model.DecayAmplitude(name='decay', initial=0.0, start=float('nan'))"})
            cmd_Run(before, line);
    }

    /// What differs after these lines.
    std::vector<cmd_ObjectDifference> After(const std::vector<std::string>& lines)
    {
        cmd_Session after(before.Model());
        for (const std::string& line : lines)
            cmd_Run(after, line);
        return cmd_Compare(*before.Model(), *after.Model());
    }

    cmd_Session before;
};

TEST_F(Difference, IsToldByObjectAndAttribute)
{
    std::string rows = "(";
    for (int i = 0; i < 100; ++i)
        rows += "(" + std::to_string(i) + ", 1.0), ";
    rows += ")";
    const struct
    {
        std::vector<std::string> lines;
        const char* text;
    } cases[] = {
        {{}, ""},
        {{"model.amplitudes['ramp'].smooth = SOLVER_DEFAULT"}, ""},
        {{"model.amplitudes['ramp'].smooth = 0.25", "model.undo()"}, ""},
        {{"model.amplitudes['decay'].start = float('nan')"}, ""},
        {{"model.UserAmplitude(name='mine')"}, "+ model.amplitudes['mine'] (kamC_UserAmplitude)\n"},
        {{"del model.amplitudes['ramp']"}, "- model.amplitudes['ramp'] (kamC_Tabular)\n"},
        {{"model.amplitudes['ramp'].rename(name=\"it's\")"},
         "- model.amplitudes['ramp'] (kamC_Tabular)\n"
         "+ model.amplitudes[\"it's\"] (kamC_Tabular)\n"},
        {{"model.UserAmplitude(name='ramp')"},
         "- model.amplitudes['ramp'] (kamC_Tabular)\n"
         "+ model.amplitudes['ramp'] (kamC_UserAmplitude)\n"},
        {{"model.amplitudes['ramp'].setValues(timeSpan=TOTAL, smooth=0.25)"},
         "~ model.amplitudes['ramp'] (kamC_Tabular)\n"
         "    timeSpan: STEP -> TOTAL\n"
         "    smooth: SOLVER_DEFAULT -> 0.25\n"},
        {{"model.amplitudes['decay'].initial = -0.0"},
         "~ model.amplitudes['decay'] (kamC_Decay)\n"
         "    initial: 0.0 -> -0.0\n"},
        {{"model.amplitudes['ramp'].data = ((0.0, 0.0), (2.0, 1.0))"},
         "~ model.amplitudes['ramp'] (kamC_Tabular)\n"
         "    data: ((0.0, 0.0), (1.0, 1.0)) -> ((0.0, 0.0), (2.0, 1.0))\n"},
        {{"model.amplitudes['ramp'].data = " + rows},
         "~ model.amplitudes['ramp'] (kamC_Tabular)\n"
         "    data: ((0.0, 0.0), (1.0, 1.0)) -> a tuple of 100\n"},
        {{"model.amplitudes['quake'].baselineCorrection.intervals = (0.0, 6.0)"},
         "~ model.amplitudes['quake'] (kamC_EquallySpaced)\n"
         "    baselineCorrection.intervals: (0.0, 5.0) -> (0.0, 6.0)\n"},
        {{"model.amplitudes['quake'].baselineCorrection = None"},
         "~ model.amplitudes['quake'] (kamC_EquallySpaced)\n"
         "    baselineCorrection: BaselineCorrection(intervals=(0.0, 5.0)) -> None\n"},
        {{"model.UserAmplitude(name='mine')", "del model.amplitudes['ramp']",
          "model.amplitudes['quake'].begin = 1.0"},
         "~ model.amplitudes['quake'] (kamC_EquallySpaced)\n"
         "    begin: 0.0 -> 1.0\n"
         "- model.amplitudes['ramp'] (kamC_Tabular)\n"
         "+ model.amplitudes['mine'] (kamC_UserAmplitude)\n"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.text, cmd_TextOfDifferences(After(row.lines))) << testing::PrintToString(row.lines);
}

TEST_F(Difference, LeadsToTheFirstPlaceInLongArrays)
{
    std::string rows = "((0.0, 0.0)";
    for (int i = 1; i < 1000; ++i)
        rows += ", (" + std::to_string(i) + ", 0.5)";
    cmd_Run(before, "model.amplitudes['ramp'].data = " + rows + ")");
    cmd_Session after(before.Model());
    rows.replace(rows.find("(700, 0.5)"), 10, "(700, 0.75)");
    cmd_Run(after, "model.amplitudes['ramp'].data = " + rows + ")");
    EXPECT_EQ("~ model.amplitudes['ramp'] (kamC_Tabular)\n"
              "    data: a tuple of 1000, first at [700]: (700.0, 0.5) -> (700.0, 0.75)\n",
              cmd_TextOfDifferences(cmd_Compare(*before.Model(), *after.Model())));
}

TEST_F(Difference, IsAValueForPrograms)
{
    EXPECT_EQ(cls_Value(cls_Value::Array()), cmd_ValueOfDifferences({}));
    const auto differences = After({"model.amplitudes['ramp'].setValues(timeSpan=TOTAL, smooth=0.25)",
                                    "del model.amplitudes['decay']", "model.UserAmplitude(name='mine')"});
    using Array = cls_Value::Array;
    using Object = cls_Value::Object;
    const cls_Value expected = Array{
        Object{{"change", "removed"}, {"path", "model.amplitudes['decay']"}, {"class", "kamC_Decay"}},
        Object{{"change", "changed"},
               {"path", "model.amplitudes['ramp']"},
               {"class", "kamC_Tabular"},
               {"attributes",
                Array{Object{{"words", "timeSpan"}, {"before", "STEP"}, {"after", "TOTAL"}},
                      Object{{"words", "smooth"}, {"before", 1.7976931348623157e308}, {"after", 0.25}}}}},
        Object{{"change", "added"}, {"path", "model.amplitudes['mine']"}, {"class", "kamC_UserAmplitude"}},
    };
    EXPECT_TRUE(expected == cmd_ValueOfDifferences(differences));
}

} // namespace
