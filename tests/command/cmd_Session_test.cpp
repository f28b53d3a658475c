#include "cmd_Script.h"

#include "LibraryEnvironment.h"
#include "cmd_Difference.h"
#include "cmd_Error.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_Decay.h"
#include "kamC_Tabular.h"
#include "mdl_NamedObjects.h"
#include "mem_Allocation.h"
#include "omu_ChangeHistory.h"
#include "thr_ThreadSingleton.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace
{

constexpr const char* makeRamp =
    "model.TabularAmplitude(name='ramp', timeSpan=STEP, data=((0.0, 0.0), (1.0, 1.0)))";
constexpr const char* makeQuake =
    "model.EquallySpacedAmplitude(name='quake', fixedInterval=0.01, data=(0.0, 0.5), "
    "baselineCorrection=BaselineCorrection(intervals=(0.0, 5.0)))";

class Session : public testing::Test
{
protected:
    Session()
    {
        session.SetJournal([this](const std::string& line) { journal.push_back(line); });
    }

    std::string Run(const std::string& line) { return cmd_Run(session, line); }

    /// The message with which the line is refused, or "nothing thrown".
    std::string Refusal(const std::string& line)
    {
        try
        {
            Run(line);
        }
        catch (const cmd_Error& error)
        {
            return error.what();
        }
        return "nothing thrown";
    }

    /// The rule that the line breaks, or "nothing thrown".
    std::string BrokenRule(const std::string& line)
    {
        try
        {
            Run(line);
        }
        catch (const nex_PrimException<atr_String, 1>& rule)
        {
            return rule.what();
        }
        return "nothing thrown";
    }

    const kamC_AmplitudeContainer& Amplitudes() const
    {
        return dynamic_cast<const kamC_AmplitudeContainer&>(*session.Model()->ConstGetAmplitudes());
    }

    cmd_Session session;
    std::vector<std::string> journal;
};

TEST_F(Session, MakesAnObject)
{
    EXPECT_EQ("", Run(makeRamp));
    const auto* ramp = dynamic_cast<const kamC_Tabular*>(Amplitudes().ConstGet("ramp"));
    ASSERT_NE(nullptr, ramp);
    EXPECT_EQ(kamC_Amplitude::TimeSpanEnm::STEP, ramp->timeSpan);
    EXPECT_EQ(2, ramp->data.Rows());
    EXPECT_EQ(1.0, ramp->data.ConstGet(1, 1));
    EXPECT_TRUE(ramp->baselineCorrection.IsNull());
    EXPECT_EQ(std::vector<std::string>{makeRamp}, journal);
}

TEST_F(Session, TakesValuesInManyFormsAndWritesThemInOne)
{
    const struct
    {
        const char* given;
        const char* written;
    } rows[] = {
        {"model.TabularAmplitude(data=[[0, 0], [1, 1]], name=\"a\")",
         "model.TabularAmplitude(name='a', data=((0.0, 0.0), (1.0, 1.0)))"},
        {"model.amplitudes['a'].timeSpan = TOTAL", "model.amplitudes['a'].setValues(timeSpan=TOTAL)"},
        {"model.amplitudes['a'].timeSpan = 'STEP'", "model.amplitudes['a'].setValues(timeSpan=STEP)"},
        {"model.amplitudes['a'].timeSpan = 1", "model.amplitudes['a'].setValues(timeSpan=TOTAL)"},
        {"model.amplitudes['a'].smooth = .25", "model.amplitudes['a'].setValues(smooth=0.25)"},
        {"model.amplitudes['a'].smooth = 0", "model.amplitudes['a'].setValues(smooth=0.0)"},
        {"model.amplitudes['a'].smooth = SOLVER_DEFAULT",
         "model.amplitudes['a'].setValues(smooth=SOLVER_DEFAULT)"},
        {"model.amplitudes['a'].smooth = 1.7976931348623157e308",
         "model.amplitudes['a'].setValues(smooth=SOLVER_DEFAULT)"},
        {"model.amplitudes['a'].baselineCorrection = BaselineCorrection(intervals=[1])",
         "model.amplitudes['a'].setValues(baselineCorrection=BaselineCorrection(intervals=(1.0,)))"},
        {"model.amplitudes['a'].baselineCorrection = {'intervals': (1, 2)}",
         "model.amplitudes['a'].setValues(baselineCorrection=BaselineCorrection(intervals=(1.0, 2.0)))"},
        {"model.amplitudes['a'].baselineCorrection = {'class': 'kamC_BaselineCorrection'}",
         "model.amplitudes['a'].setValues(baselineCorrection=BaselineCorrection(intervals=()))"},
        {"model.amplitudes['a'].baselineCorrection = ((3.0,),)",
         "model.amplitudes['a'].setValues(baselineCorrection=BaselineCorrection(intervals=(3.0,)))"},
        {"model.amplitudes['a'].baselineCorrection.intervals = (4.0, 5.0)",
         "model.amplitudes['a'].baselineCorrection.setValues(intervals=(4.0, 5.0))"},
        {"model.amplitudes['a'].BaselineCorrection(intervals=(6.0,))",
         "model.amplitudes['a'].setValues(baselineCorrection=BaselineCorrection(intervals=(6.0,)))"},
        {"model.amplitudes['a'].setValues(smooth=0.5, baselineCorrection=None)",
         "model.amplitudes['a'].setValues(smooth=0.5, baselineCorrection=None)"},
        {"model.PsdDefinition(name='p', unitType=DB, user=False, data=((1, 2, 3),))",
         "model.PsdDefinition(name='p', unitType=DB, user=False, data=((1.0, 2.0, 3.0),))"},
        {"model.SpectrumAmplitude(name='s', amplitude='it\\'s')",
         "model.SpectrumAmplitude(name='s', amplitude=\"it's\")"},
        {"model.UserAmplitude(name='Größe\\n', numVariables=-3)",
         "model.UserAmplitude(name='Größe\\n', numVariables=-3)"},
        {"model.DecayAmplitude(name='d', initial=float('nan'), maximum=float('-inf'), start=-0.0)",
         "model.DecayAmplitude(name='d', initial=float('nan'), maximum=float('-inf'), start=-0.0)"},
        {"model.amplitudes['p'].rename(name='q')", "model.amplitudes['p'].rename(name='q')"},
        {"model.amplitudes['q'].rename(replace=True, name='d')",
         "model.amplitudes['q'].rename(name='d', replace=True)"},
        {"del model.amplitudes['s']  # no longer used", "del model.amplitudes['s']"},
        {"model.undo()", "model.undo()"},
        {"model.redo()", "model.redo()"},
    };
    for (const auto& row : rows)
    {
        Run(row.given);
        EXPECT_EQ(row.written, journal.back()) << row.given;
    }
    EXPECT_EQ(std::size(rows), journal.size());
}

TEST_F(Session, ItsJournalDoesItAgain)
{
    for (const char* line :
         {makeRamp, makeQuake, "model.amplitudes['ramp'].smooth = 0.25",
          "model.amplitudes['quake'].baselineCorrection.intervals = (0.0, 0.1)",
          "model.amplitudes['quake'].rename(name='it\\'s')", "model.undo()", "model.undo()", "model.redo()",
          "model.DecayAmplitude(name='d', decayTime=1e-7)", "del model.amplitudes['ramp']"})
        Run(line);
    cmd_Session again;
    std::vector<std::string> secondJournal;
    again.SetJournal([&secondJournal](const std::string& line) { secondJournal.push_back(line); });
    for (const std::string& line : journal)
        cmd_Run(again, line);
    EXPECT_EQ(journal, secondJournal);
    EXPECT_EQ("('d', 'quake')", Run("model.amplitudes"));
    EXPECT_EQ("('d', 'quake')", cmd_Run(again, "model.amplitudes"));
    for (const char* path : {"model.amplitudes['d']", "model.amplitudes['quake']"})
        EXPECT_EQ(Run(path), cmd_Run(again, path));
}

TEST_F(Session, ShowsValuesByPath)
{
    Run(makeRamp);
    Run(makeQuake);
    const struct
    {
        const char* path;
        const char* value;
    } rows[] = {
        {"model.amplitudes", "('quake', 'ramp')"},
        {"model.amplitudes['ramp']", "TabularAmplitude(name='ramp', timeSpan=STEP, smooth=SOLVER_DEFAULT, "
                                     "data=((0.0, 0.0), (1.0, 1.0)), baselineCorrection=None)"},
        {"model.amplitudes['ramp'].timeSpan", "STEP"},
        {"model.amplitudes['ramp'].smooth", "SOLVER_DEFAULT"},
        {"model.amplitudes['ramp'].data", "((0.0, 0.0), (1.0, 1.0))"},
        {"model.amplitudes['ramp'].data[1]", "(1.0, 1.0)"},
        {"model.amplitudes['ramp'].data[1][0]", "1.0"},
        {"model.amplitudes['ramp'].baselineCorrection", "None"},
        {"model.amplitudes['quake'].baselineCorrection", "BaselineCorrection(intervals=(0.0, 5.0))"},
        {"model.amplitudes['quake'].baselineCorrection.intervals[1]", "5.0"},
    };
    const std::size_t commands = journal.size();
    for (const auto& row : rows)
        EXPECT_EQ(row.value, Run(row.path)) << row.path;
    EXPECT_EQ(commands, journal.size());
}

TEST_F(Session, TellsWhatAModelHas)
{
    // More families bring more repositories and constructors, so the lists are told by their ends.
    EXPECT_THAT(Run("model"), testing::MatchesRegex("\\('.*'amplitudes'.*'\\)"));
    const struct
    {
        const char* line;
        const char* begin;
        const char* middle;
        const char* end;
    } rows[] = {
        {"model.TabularAmplitud(name='a')",
         "model: there is no constructor TabularAmplitud, expected one of ",
         " DecayAmplitude, EquallySpacedAmplitude, ModulatedAmplitude, PeriodicAmplitude, "
         "SolutionDependentAmplitude, TabularAmplitude, PsdDefinition, Spectrum, SmoothStepAmplitude, "
         "ActuatorAmplitude, UserAmplitude, SpectrumAmplitude",
         "; did you mean TabularAmplitude?"},
        {"model.amplitude['ramp'].smooth = 0.1",
         "model.amplitude: a model has no such repository, expected one of ", " amplitudes, ",
         "; did you mean amplitudes?"},
        {"model.stones", "model.stones: a model has no such repository, expected one of ", " amplitudes, ",
         ""},
    };
    for (const auto& row : rows)
    {
        const std::string refusal = Refusal(row.line);
        EXPECT_THAT(refusal, testing::StartsWith(row.begin)) << row.line;
        EXPECT_THAT(refusal, testing::HasSubstr(row.middle)) << row.line;
        EXPECT_THAT(refusal, testing::EndsWith(row.end)) << row.line;
    }
}

TEST_F(Session, TellsWhatItCannotDo)
{
    Run(makeRamp);
    Run(makeQuake);
    Run("model.SolutionDependentAmplitude(name='s')");
    const std::vector<std::string> before = journal;
    const struct
    {
        const char* line;
        const char* refusal;
    } rows[] = {
        {"model.TabularAmplitude(smooth=0.5)",
         "kamC_Tabular: the argument name is missing, expected a text in quotes"},
        {"model.TabularAmplitude(name=STEP)", "kamC_Tabular.name: expected a text in quotes, found STEP"},
        {"model.TabularAmplitude(name='')",
         "kamC_Tabular.name: expected a name that is neither empty nor holds a null character, found ''"},
        {"model.TabularAmplitude(name='a', smoth=0.5)",
         "kamC_Tabular has no word smoth, given 0.5: expected one of timeSpan, smooth, data, "
         "baselineCorrection; did "
         "you mean smooth?"},
        {"model.amplitudes['ramp'].frequency = 2", "kamC_Tabular has no word frequency, given 2: expected "
                                                   "one of timeSpan, smooth, data, baselineCorrection"},
        {"model.amplitudes['ramp'].smooth = 'much'",
         "kamC_Tabular.smooth: expected a number or SOLVER_DEFAULT, found 'much'"},
        {"model.amplitudes['ramp'].smooth = SOLVER",
         "kamC_Tabular.smooth: expected a number or SOLVER_DEFAULT, found SOLVER"},
        {"model.amplitudes['ramp'].smooth = True",
         "kamC_Tabular.smooth: expected a number or SOLVER_DEFAULT, found True"},
        {"model.amplitudes['s'].initial = SOLVER_DEFAULT",
         "kamC_SolutionDependent.initial: expected a number, found SOLVER_DEFAULT"},
        {"model.amplitudes['s'].initial = None",
         "kamC_SolutionDependent.initial: expected a number, found None"},
        {"model.amplitudes['ramp'].timeSpan = TOTALE",
         "kamC_Tabular.timeSpan: found TOTALE, expected one of STEP, TOTAL; did you mean TOTAL?"},
        {"model.amplitudes['ramp'].timeSpan = 2",
         "kamC_Tabular.timeSpan: found 2, expected one of STEP, TOTAL"},
        {"model.amplitudes['ramp'].timeSpan = 4294967296",
         "kamC_Tabular.timeSpan: found 4294967296, expected one of STEP, TOTAL"},
        {"model.amplitudes['ramp'].timeSpan = None",
         "kamC_Tabular.timeSpan: found None, expected one of STEP, TOTAL"},
        {"model.amplitudes['ramp'].data = 1", "kamC_Tabular.data: expected rows of numbers, found 1"},
        {"model.amplitudes['ramp'].data = (1, 2)",
         "kamC_Tabular.data[0]: expected a row of numbers, found 1"},
        {"model.amplitudes['ramp'].data = ((0, 0), (1, 'x'))",
         "kamC_Tabular.data[1][1]: expected a number, found 'x'"},
        {"model.amplitudes['ramp'].data = ((0, 0), (1,))",
         "kamC_Tabular.data[1]: expected an array of 2, as in the first row, found an array of 1"},
        {"model.amplitudes['quake'].data = (0, STEP)",
         "kamC_EquallySpaced.data[1]: expected a number, found STEP"},
        {"model.amplitudes['quake'].data = {}",
         "kamC_EquallySpaced.data: expected a sequence of numbers, found {}"},
        {"model.amplitudes['ramp'].baselineCorrection = 3",
         "kamC_Tabular.baselineCorrection: expected BaselineCorrection(...), found 3"},
        {"model.amplitudes['ramp'].baselineCorrection = BaselineCorection()",
         "kamC_Tabular.baselineCorrection: found BaselineCorection(...), expected BaselineCorrection; did "
         "you mean "
         "BaselineCorrection?"},
        {"model.amplitudes['ramp'].baselineCorrection = BaselineCorrection(interval=(1.0,))",
         "kamC_Tabular.baselineCorrection: kamC_BaselineCorrection has no word interval, given (1.0,): "
         "expected "
         "intervals; did you mean intervals?"},
        {"model.amplitudes['ramp'].baselineCorrection = BaselineCorrection(intervals=(0, None))",
         "kamC_Tabular.baselineCorrection.intervals[1]: expected a number, found None"},
        {"model.amplitudes['ramp'].baselineCorrection = {'class': 'kamC_Tabular'}",
         "kamC_Tabular.baselineCorrection: expected the name of a class derived from kamC_BaselineCorrection "
         "as "
         "'class', found 'kamC_Tabular'"},
        {"model.amplitudes['ramp'].baselineCorrection = (1, 2)",
         "kamC_Tabular.baselineCorrection: expected a tuple of 1, found (1, 2)"},
        {"model.amplitudes['quake'].baselineCorrection.intervals = 3",
         "kamC_BaselineCorrection.intervals: expected a sequence of numbers, found 3"},
        {"model.amplitudes['ramp'].baselineCorrection.intervals = (3.0,)",
         "model.amplitudes['ramp'].baselineCorrection: expected an object, found None"},
        {"model.amplitudes['ramp'].setValues()",
         "model.amplitudes['ramp'].setValues: expected at least one word and its value"},
        {"model.amplitudes['rmp'].smooth = 0.1",
         "model.amplitudes['rmp']: there is no such object; did you mean 'ramp'?"},
        {"del model.amplitudes['other']", "model.amplitudes['other']: there is no such object"},
        {"model.smooth = 0.1", "model: expected the path of an object, as model.amplitudes['ramp']"},
        {"model.amplitudes[0]",
         "model.amplitudes[0]: expected the path of an object, as model.amplitudes['ramp']"},
        {"model['ramp']", "model['ramp']: expected the path of an object, as model.amplitudes['ramp']"},
        {"del model.amplitudes['quake'].baselineCorrection",
         "model.amplitudes['quake'].baselineCorrection: expected the path of an object of a repository, as "
         "model.amplitudes['quake']"},
        {"model.amplitudes['quake'].baselineCorrection.rename(name='a')",
         "model.amplitudes['quake'].baselineCorrection: expected the path of an object of a repository, as "
         "model.amplitudes['quake']"},
        {"model.amplitudes['ramp'].dat", "model.amplitudes['ramp'].dat: kamC_Tabular has no such word, "
                                         "expected one of timeSpan, smooth, data, "
                                         "baselineCorrection; did you mean data?"},
        {"model.amplitudes['ramp'].data[2]",
         "model.amplitudes['ramp'].data[2]: there is no such element, expected a position from 0 to 1"},
        {"model.amplitudes['ramp'].data['a']",
         "model.amplitudes['ramp'].data: expected a dictionary, found ((0.0, 0.0), (1.0, 1.0))"},
        {"model.amplitudes['ramp'].data.x",
         "model.amplitudes['ramp'].data: expected an object with a word x, found ((0.0, 0.0), (1.0, 1.0))"},
        {"model.amplitudes['ramp'].smooth[0]",
         "model.amplitudes['ramp'].smooth: expected a sequence, found SOLVER_DEFAULT"},
        {"model.amplitudes['ramp']['a']",
         "model.amplitudes['ramp']: expected a dictionary, found TabularAmplitude(...)"},
        {"model.amplitudes['ramp'].Baseline()",
         "model.amplitudes['ramp']: kamC_Tabular has no constructor Baseline, expected BaselineCorrection"},
        {"model.amplitudes['s'].BaselineCorrection()", "model.amplitudes['s']: kamC_SolutionDependent has no "
                                                       "constructor BaselineCorrection, there is none"},
        {"model.amplitudes['ramp'].data.BaselineCorrection()",
         "model.amplitudes['ramp'].data: expected an object, found ((0.0, 0.0), (1.0, 1.0))"},
        {"model.amplitudes['ramp'].rename()",
         "model.amplitudes['ramp'].rename: the argument name is missing, expected a text in quotes"},
        {"model.amplitudes['ramp'].rename(nam='a')",
         "model.amplitudes['ramp'].rename: found nam='a', expected name and a text in quotes, or replace and "
         "True or "
         "False"},
        {"model.amplitudes['ramp'].rename(name='')", "model.amplitudes['ramp'].rename: expected a name that "
                                                     "is neither empty nor holds a null character, found "
                                                     "''"},
        {"model.amplitudes['ramp'].rename(name='quake')",
         "model.amplitudes['ramp'].rename: there is an object model.amplitudes['quake'] already; "
         "replace=True "
         "replaces it"},
        {"model.undo(count=2)", "model.undo: expected no arguments, found count=2"},
        {"model.redo()", "there is no command to redo"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.refusal, Refusal(row.line)) << row.line;
    EXPECT_EQ(before, journal);
    EXPECT_EQ("('quake', 'ramp', 's')", Run("model.amplitudes"));
}

TEST_F(Session, ChecksAChangeBeforeItIsMade)
{
    Run(makeRamp);
    Run(makeQuake);
    const std::string ramp = Run("model.amplitudes['ramp']");
    const void* object = Amplitudes().ConstGet("ramp");
    const double timeStamp = Amplitudes().TimeStamp();
    const struct
    {
        const char* line;
        const char* rule;
    } rows[] = {
        {"model.amplitudes['ramp'].smooth = 0.6",
         "model.amplitudes['ramp']: kamC:2 Invalid smoothing parameter, expected a value between 0.0 and "
         "0.5."},
        {"model.amplitudes['ramp'].setValues(timeSpan=TOTAL, data=((1.0, 0.0), (0.0, 1.0)))",
         "model.amplitudes['ramp']: kamC:0 Invalid time values, expected monotonically increasing "
         "numbers."},
        {"model.amplitudes['quake'].baselineCorrection.intervals = (1.0, 1.0)",
         "model.amplitudes['quake']: kamC:19 Invalid baseline correction values, expected "
         "non-negative\nmonotonically increasing numbers."},
        {"model.TabularAmplitude(name='new')",
         "model.amplitudes['new']: kamC:12 The Time-Amplitude table should have at least two rows of data."},
        {"model.TabularAmplitude(name='ramp')",
         "model.amplitudes['ramp']: kamC:12 The Time-Amplitude table should have at least two rows of data."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.rule, BrokenRule(row.line)) << row.line;
    EXPECT_EQ(ramp, Run("model.amplitudes['ramp']"));
    EXPECT_EQ(object, Amplitudes().ConstGet("ramp"));
    EXPECT_EQ(timeStamp, Amplitudes().TimeStamp());
    EXPECT_EQ("('quake', 'ramp')", Run("model.amplitudes"));
    EXPECT_EQ(2u, journal.size());
}

TEST_F(Session, TellsTheRuleThatABrokenOneWasBrokenBy)
{
    Run(makeRamp);
    try
    {
        Run("model.amplitudes['ramp'].smooth = 0.6");
        FAIL();
    }
    catch (const cmd_RuleError& error)
    {
        EXPECT_EQ("kamC:2", error.Rule().id);
        EXPECT_EQ(2, error.Rule().code);
        EXPECT_EQ("Invalid smoothing parameter, expected a value between 0.0 and 0.5.", error.Rule().message);
    }
}

TEST_F(Session, TakesAnythingWithoutChecksAndWarns)
{
    cmd_Session unchecked(cmd_Session::Checks::None);
    cmd_Run(unchecked, "model.TabularAmplitude(name='a', smooth=7.0)");
    EXPECT_EQ("7.0", cmd_Run(unchecked, "model.amplitudes['a'].smooth"));
    std::vector<std::string> warnings;
    unchecked.SetWarning([&warnings](const cmd_RuleError& broken) { warnings.push_back(broken.Rule().id); });
    cmd_Run(unchecked, "model.TabularAmplitude(name='b')");
    cmd_Run(unchecked, "model.amplitudes['a'].smooth = 8.0");
    cmd_Run(unchecked, "model.amplitudes['a'].setValues(smooth=0.25, data=((0.0, 0.0), (1.0, 1.0)))");
    cmd_Run(unchecked, "model.amplitudes['a'].smooth = 9.0");
    EXPECT_EQ((std::vector<std::string>{"kamC:12", "kamC:2", "kamC:2"}), warnings);
}

TEST_F(Session, PointsAtTheStepThatLeadsNowhere)
{
    Run(makeRamp);
    const struct
    {
        const char* line;
        const char* marked;
    } rows[] = {
        {"model.stones['a'].x", "model.stones\n     ^~~~~~~"},
        {"model.amplitudes['rmp'].data", "model.amplitudes['rmp'].data\n                ^~~~~~~"},
        {"model.amplitudes['ramp'].dta[1]", "model.amplitudes['ramp'].dta[1]\n                        ^~~~"},
        {"model.amplitudes['ramp'].data[7][0]",
         "model.amplitudes['ramp'].data[7][0]\n                             ^~~"},
        {"model.amplitudes['ramp'].data.x",
         "model.amplitudes['ramp'].data.x\n                             ^~"},
        {"model.amplitudes['ramp", "model.amplitudes['ramp\n                      ^"},
        {"model.amplitudes['ramp'].smooth = (1, 2",
         "model.amplitudes['ramp'].smooth = (1, 2\n                                       ^"},
    };
    for (const auto& row : rows)
    {
        try
        {
            Run(row.line);
            ADD_FAILURE() << row.line;
        }
        catch (const cmd_Error& error)
        {
            ASSERT_NE(nullptr, error.Place()) << row.line;
            EXPECT_EQ(row.marked, cmd_Marked(*error.Place()));
        }
    }
}

TEST_F(Session, AChangeKeepsTheIdentityOfItsObject)
{
    Run(makeRamp);
    const cls_Uid uid = Amplitudes().ConstGet("ramp")->Uid();
    Run("model.amplitudes['ramp'].smooth = 0.25");
    EXPECT_EQ(uid, Amplitudes().ConstGet("ramp")->Uid());
    Run("model.amplitudes['ramp'].rename(name='slope')");
    EXPECT_EQ(uid, Amplitudes().ConstGet("slope")->Uid());
}

TEST_F(Session, NamesThatDifferInLeadingZerosAreTwo)
{
    Run("model.DecayAmplitude(name='load 1')");
    Run("model.amplitudes['load 1'].rename(name='load 01')");
    EXPECT_EQ("('load 01',)", Run("model.amplitudes"));
    Run("model.DecayAmplitude(name='load 1', initial=1.0)");
    EXPECT_EQ("1.0", Run("model.amplitudes['load 1'].initial"));
    EXPECT_EQ("0.0", Run("model.amplitudes['load 01'].initial"));
}

TEST_F(Session, EachCommandIsInTheChangeHistoryOnce)
{
    omu_ChangeHistory& history = *thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    history.Clear();
    Run(makeRamp);
    Run("model.amplitudes['ramp'].setValues(smooth=0.25, timeSpan=TOTAL)");
    BrokenRule("model.amplitudes['ramp'].smooth = 0.6");
    Refusal("model.amplitudes['ramp'].smoth = 0.1");
    Run("model.amplitudes['ramp'].smooth");
    Run("model.amplitudes['ramp'].rename(name='slope')");
    Run("model.undo()");
    Run("model.redo()");
    Run("del model.amplitudes['slope']");
    EXPECT_STREQ("(\"Insert\", \"ramp\", -99)\n"
                 "(\"Modify\", \"ramp\")\n"
                 "(\"Remove\", \"ramp\")\n"
                 "(\"Insert\", \"slope\", -99)\n"
                 "(\"Remove\", \"slope\")\n",
                 history.AsText().CString());
}

TEST_F(Session, SharesTheModelThatItBeginsWith)
{
    Run(makeRamp);
    cmd_Session other(session.Model());
    cmd_Run(other, "model.amplitudes['ramp'].smooth = 0.25");
    EXPECT_EQ("SOLVER_DEFAULT", Run("model.amplitudes['ramp'].smooth"));
    EXPECT_EQ("0.25", cmd_Run(other, "model.amplitudes['ramp'].smooth"));
}

TEST_F(Session, UndoesAndRedoes)
{
    EXPECT_EQ(nullptr, session.NextUndo());
    EXPECT_EQ("there is no command to undo", Refusal("model.undo()"));
    Run(makeRamp);
    const void* first = Amplitudes().ConstGet("ramp");
    Run("model.amplitudes['ramp'].smooth = 0.25");
    Run("model.amplitudes['ramp'].rename(name='slope')");
    Run("del model.amplitudes['slope']");
    const struct
    {
        const char* name;
        const char* line;
        const char* namesAfterUndo;
    } rows[] = {
        {"del", "del model.amplitudes['slope']", "('slope',)"},
        {"rename", "model.amplitudes['ramp'].rename(name='slope')", "('ramp',)"},
        {"setValues", "model.amplitudes['ramp'].setValues(smooth=0.25)", "('ramp',)"},
        {"TabularAmplitude", makeRamp, "()"},
    };
    for (const auto& row : rows)
    {
        ASSERT_NE(nullptr, session.NextUndo());
        EXPECT_EQ(row.name, session.NextUndo()->name);
        EXPECT_EQ(row.line, session.NextUndo()->line);
        session.Undo();
        EXPECT_EQ(row.namesAfterUndo, Run("model.amplitudes"));
        EXPECT_EQ(row.line, session.NextRedo()->line);
        EXPECT_EQ("model.undo()", journal.back());
    }
    EXPECT_EQ(nullptr, session.NextUndo());
    session.Redo();
    EXPECT_EQ("model.redo()", journal.back());
    EXPECT_EQ("SOLVER_DEFAULT", Run("model.amplitudes['ramp'].smooth"));
    EXPECT_EQ(first, Amplitudes().ConstGet("ramp"));
    session.Redo();
    EXPECT_EQ("0.25", Run("model.amplitudes['ramp'].smooth"));
    Run("model.amplitudes['ramp'].smooth = 0.5");
    EXPECT_EQ(nullptr, session.NextRedo());
    EXPECT_EQ("there is no command to redo", Refusal("model.redo()"));
}

TEST_F(Session, ARefusedCommandKeepsWhatCanBeRedone)
{
    Run(makeRamp);
    session.Undo();
    BrokenRule("model.TabularAmplitude(name='new')");
    ASSERT_NE(nullptr, session.NextRedo());
    session.Redo();
    EXPECT_EQ("('ramp',)", Run("model.amplitudes"));
}

TEST_F(Session, WhatCannotBeWrittenDownIsTakenBack)
{
    Run(makeRamp);
    session.SetJournal([](const std::string&) { throw cmd_Error("the disk is full"); });
    EXPECT_EQ("the disk is full", Refusal("model.amplitudes['ramp'].smooth = 0.25"));
    EXPECT_EQ("SOLVER_DEFAULT", Run("model.amplitudes['ramp'].smooth"));
    EXPECT_EQ("TabularAmplitude", session.NextUndo()->name);
    EXPECT_EQ("the disk is full", Refusal("model.undo()"));
    EXPECT_EQ("('ramp',)", Run("model.amplitudes"));
    EXPECT_EQ("TabularAmplitude", session.NextUndo()->name);
    EXPECT_EQ(nullptr, session.NextRedo());
}

TEST_F(Session, AThousandStepsGoBackAndForth)
{
    Run(makeRamp);
    std::vector<std::string> states;
    for (int i = 0; i < 1000; ++i)
    {
        states.push_back(Run("model.amplitudes['ramp']"));
        Run("model.amplitudes['ramp'].data = ((0.0, " + std::to_string(i) + "), (1.0, 1.0))");
    }
    for (auto state = states.rbegin(); state != states.rend(); ++state)
    {
        session.Undo();
        ASSERT_EQ(*state, Run("model.amplitudes['ramp']"));
    }
    for (int i = 0; i < 1000; ++i)
        session.Redo();
    EXPECT_EQ("999.0", Run("model.amplitudes['ramp'].data[0][1]"));
}

/// Lines that are nearly right: one of a few commands with some bytes replaced, left out or put in.
RC_GTEST_FIXTURE_PROP(Session, AnyLineIsCarriedOutOrRefusedWhole, ())
{
    static const std::string lines[] = {
        "model.amplitudes['ramp'].setValues(smooth=0.25, timeSpan=TOTAL, data=((0.0, 0.0), (1.0, -1e3)))",
        "model.amplitudes['quake'].baselineCorrection = BaselineCorrection(intervals=[0.5, 1.0])",
        "model.amplitudes[\"ramp\"].rename(name='it\\'s \\u00fc', replace=True)",
        "model.DecayAmplitude(name='d', initial=float('nan'))",
        "del model.amplitudes['ramp']",
        "model.amplitudes['ramp'].data[1][0]",
    };
    Run(makeRamp);
    Run(makeQuake);
    std::string line = *rc::gen::elementOf(std::vector<std::string>(std::begin(lines), std::end(lines)));
    const int edits = *rc::gen::inRange(1, 5);
    for (int i = 0; i < edits; ++i)
    {
        const std::size_t position = *rc::gen::inRange<std::size_t>(0, line.size());
        const std::size_t removed = *rc::gen::inRange<std::size_t>(0, 3);
        line.replace(position, removed, *rc::gen::resize(2, rc::gen::arbitrary<std::string>()));
    }
    const ddr_ModelHandle before = session.Model()->Snapshot();
    const std::size_t commands = journal.size();
    try
    {
        Run(line);
    }
    catch (const cmd_Error& error)
    {
        RC_ASSERT(std::string(error.what()) != "");
        if (error.Place())
            RC_ASSERT(cmd_Marked(*error.Place()).find('^') != std::string::npos);
        RC_ASSERT(cmd_Compare(*before, *session.Model()).empty());
        RC_ASSERT(journal.size() == commands);
    }
    catch (const cmd_RuleError&)
    {
        RC_ASSERT(cmd_Compare(*before, *session.Model()).empty());
    }
}

TEST(ModelSnapshot, KeepsItsStateWhateverTheModelDoes)
{
    ddr_Model model;
    dynamic_cast<mdl_NamedObjects&>(*model.GetAmplitudes())
        .InsertObject("a", cls_ObjectOfValue(kamC_Amplitude::Description(),
                                             cls_Value::Object{{"class", "kamC_Decay"}}));
    const ddr_ModelHandle snapshot = model.Snapshot();
    EXPECT_EQ(snapshot->ConstGetAmplitudes(), std::as_const(model).ConstGetAmplitudes());
    dynamic_cast<mdl_NamedObjects&>(*model.GetAmplitudes()).RemoveObject("a");
    EXPECT_EQ(0, model.ConstGetAmplitudes()->Size());
    EXPECT_EQ(1, snapshot->ConstGetAmplitudes()->Size());
    for (int i = 0; i < 2; ++i)
    {
        model.Restore(*snapshot);
        EXPECT_EQ(1, model.ConstGetAmplitudes()->Size());
        dynamic_cast<mdl_NamedObjects&>(*model.GetAmplitudes()).RemoveObject("a");
        EXPECT_EQ(1, snapshot->ConstGetAmplitudes()->Size());
    }
}

TEST(ModelSnapshot, KeepsNoMoreThanWhatChanges)
{
    constexpr int objects = 10000;
    constexpr int snapshotCount = 1000;
    ddr_ModelHandle handle(new ddr_Model);
    ddr_Model& model = *handle.Get();
    auto& amplitudes = dynamic_cast<kamC_AmplitudeContainer&>(*model.GetAmplitudes());
    const auto nameOf = [](int number) { return cow_String(("a" + std::to_string(number)).c_str()); };
    const std::size_t empty = mem_BlocksInUse();
    for (int i = 0; i < objects; ++i)
        amplitudes.Insert(nameOf(i), new kamC_Decay);
    const std::size_t whole = mem_BlocksInUse() - empty;
    std::vector<ddr_ModelHandle> snapshots;
    snapshots.reserve(snapshotCount);

    const std::size_t before = mem_BlocksInUse();
    for (int i = 0; i < snapshotCount; ++i)
        snapshots.push_back(model.Snapshot());
    EXPECT_LE(mem_BlocksInUse() - before, 2U * snapshotCount) << "what does not change is shared";
    snapshots.clear();
    EXPECT_EQ(before, mem_BlocksInUse());

    for (int i = 0; i < snapshotCount; ++i)
    {
        snapshots.push_back(model.Snapshot());
        auto& changed = dynamic_cast<kamC_AmplitudeContainer&>(*model.GetAmplitudes());
        dynamic_cast<kamC_Decay&>(*changed.Get(nameOf(i * 7 % objects))).initial = i + 1.0;
    }
    const std::size_t kept = (mem_BlocksInUse() - before) / snapshotCount;
    EXPECT_GT(kept, 0U);
    EXPECT_LT(kept, whole / 200) << "the way to the object that changed, not the model";
    const auto initialOf = [&](const ddr_Model& of, int number)
    {
        const auto& named = dynamic_cast<const kamC_AmplitudeContainer&>(*of.ConstGetAmplitudes());
        return dynamic_cast<const kamC_Decay&>(*named.ConstGet(nameOf(number))).initial;
    };
    EXPECT_EQ(0.0, initialOf(*snapshots[500], 500 * 7));
    EXPECT_EQ(500.0, initialOf(*snapshots[500], 499 * 7));
    EXPECT_EQ(501.0, initialOf(model, 500 * 7));
}

} // namespace
