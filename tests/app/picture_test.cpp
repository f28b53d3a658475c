#include "Program.h"
#include "Svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace
{

using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;

class Picture : public testing::Test
{
protected:
    Answer Draw(const std::string& store, const std::string& path) const
    {
        return RunProgram({"show", store, path, "--svg", file});
    }

    std::vector<XmlElement> Drawn(const std::string& store, const std::string& path) const
    {
        const Answer answer = Draw(store, path);
        EXPECT_EQ(0, answer.exitCode) << answer.err;
        EXPECT_EQ("", answer.out);
        std::vector<XmlElement> elements = ExpectPicture(ContentOf(file));
        ExpectTextsApart(elements);
        EXPECT_THAT(TextsOf(elements), Contains(path));
        return elements;
    }

    /// Names of the files in the test's folder.
    std::size_t FileCount() const
    {
        const std::filesystem::directory_iterator files(std::filesystem::path(file).parent_path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    ScratchFolder folder;
    std::string file = folder.Path("picture.svg");
};

TEST_F(Picture, IsDrawnOfEachAmplitudeThatStandsForACurve)
{
    for (const char* name : {"beat", "crane", "design", "earthquake", "impact", "pump", "ramp",
                             "ramp and hold", "road", "soft start"})
    {
        SCOPED_TRACE(name);
        const auto elements = Drawn(Example("earthquake.json"), "amplitudes['" + std::string(name) + "']");
        EXPECT_EQ(2U, Named(elements, "polyline").size()) << "the curve and the axes";
    }
}

TEST_F(Picture, IsDrawnOfAMaterialAndOfWhatIsInIt)
{
    const std::string steel = "materials['steel S355']";
    EXPECT_THAT(TextsOf(Drawn(Example("materials.json"), steel)),
                IsSupersetOf({"yield stress", "plastic strain"}));
    EXPECT_THAT(TextsOf(Drawn(Example("materials.json"), steel + ".plastic")), Contains("yield stress"));
    EXPECT_THAT(TextsOf(Drawn(Example("materials.json"), "materials['natural rubber 8% S (tests)']")),
                IsSupersetOf({"nominal stress", "uniaxial"}));
}

TEST_F(Picture, ShowsABeamProfileWithItsDimensions)
{
    const std::string model =
        folder.Write("model.json", R"({"profiles": {"<&>": {"class": "kbpC_LbeamProfile",
        "a": 80, "b": 120.5, "t1": 10, "t2": 8}}})");
    EXPECT_THAT(TextsOf(Drawn(model, "profiles['<&>']")),
                IsSupersetOf({"a = 80", "b = 120.5", "t1 = 10", "t2 = 8"}));
}

constexpr const char* shapesModel = R"({"profiles": {
  "I": {"class": "kbpC_IbeamProfile", "l": 150, "h": 300, "b1": 150, "b2": 100, "t1": 12, "t2": 10.7, "t3": 7.1},
  "box": {"class": "kbpC_BoxProfile", "a": 200, "b": 100, "t1": 5, "t2": 8, "t3": 10, "t4": 12},
  "uniform box": {"class": "kbpC_BoxProfile", "a": 60, "b": 60, "uniformThickness": true, "t1": 4},
  "pipe": {"class": "kbpC_PipeProfile", "r": 57.15, "t": 6.3},
  "circular": {"class": "kbpC_CircularProfile", "r": 12.5},
  "rectangular": {"class": "kbpC_RectangularProfile", "a": 120, "b": 8},
  "hexagonal": {"class": "kbpC_HexagonalProfile", "r": 20, "t": 3},
  "L": {"class": "kbpC_LbeamProfile", "a": 80, "b": 120, "t1": 10, "t2": 8},
  "T": {"class": "kbpC_TbeamProfile", "b": 100, "h": 120, "l": 80, "tf": 11, "tw": 8},
  "trapezoidal": {"class": "kbpC_TrapezoidalProfile", "a": 300, "b": 150, "c": 180, "d": 68},
  "channel": {"class": "kbpC_CbeamProfile", "l": 100, "h": 200, "b1": 75, "b2": 70, "t1": 11, "t2": 9, "t3": 8, "o": 20},
  "hat": {"class": "kbpC_HatProfile", "l": 30, "h": 60, "b": 160, "b1": 70, "b2": 35, "t1": 2, "t2": 3, "t3": 1.5},
  "arbitrary": {"class": "kbpC_ArbitraryProfile", "table": [[-50, 0, 0], [-50, -15, 2], [0, -15, 2], [0, 185, 3.5]]}
}})";

TEST_F(Picture, IsDrawnOfEachShapeOfProfile)
{
    const std::string model = folder.Write("model.json", shapesModel);
    EXPECT_EQ(0, RunProgram({"check", model}).exitCode);
    for (const char* name : {"I", "box", "uniform box", "pipe", "circular", "rectangular", "hexagonal", "L",
                             "T", "trapezoidal", "channel", "hat", "arbitrary"})
    {
        SCOPED_TRACE(name);
        const auto elements = Drawn(model, "profiles['" + std::string(name) + "']");
        EXPECT_LE(1U, Named(elements, "path").size());
    }
}

TEST_F(Picture, IsDrawnFromAStoreAsFromItsText)
{
    const std::string store = folder.Path("model.vdb");
    ASSERT_EQ(0, RunProgram({"import", Example("earthquake.json"), store}).exitCode);
    Drawn(Example("earthquake.json"), "amplitudes['road']");
    const std::string fromText = ContentOf(file);
    Drawn(store, "amplitudes['road']");
    EXPECT_EQ(fromText, ContentOf(file))
        << "what was there is replaced, and the same model is drawn the same";
}

struct Refused
{
    std::string path;
    const char* message;
};

constexpr const char* strangeModel = R"({
"amplitudes": {
  "servo": {"class": "kamC_ActuatorAmplitude"},
  "empty": {"class": "kamC_Tabular"},
  "nan": {"class": "kamC_Tabular", "data": [[0, 0], [1, "NaN"]]},
  "infinite": {"class": "kamC_EquallySpaced", "fixedInterval": "Infinity", "data": [1, 2]},
  "unset": {"class": "kamC_Tabular", "data": [[0, 0], [1, 1.7976931348623157e308]]},
  "standing": {"class": "kamC_Periodic", "data": [[1, 2]]},
  "spectrum": {"class": "kamC_SpectrumAmplitude"}
},
"materials": {
  "air": {"class": "kmaC_Material"},
  "law": {"class": "kmaC_Material", "plastic": {"hardening": "JOHNSON_COOK", "table": {"table": [[1, 2, 3]]}}},
  "wide": {"class": "kmaC_Material", "plastic": {"table": {"table": [[1, 0, 3]]}}}
},
"profiles": {
  "general": {"class": "kbpC_GeneralizedProfile", "area": 1},
  "solid": {"class": "kbpC_PipeProfile", "r": 1, "t": 2},
  "flat": {"class": "kbpC_RectangularProfile", "a": 1}
}})";

TEST_F(Picture, IsRefusedWithItsReasonAndLeavesNoFile)
{
    const std::string model = folder.Write("model.json", strangeModel);
    const Refused rows[] = {
        {"amplitudes['servo']",
         "Actuator has no picture; there are pictures of amplitudes that stand for a curve"},
        {"amplitudes['empty']", "its table has no rows, so that there is no curve to draw"},
        {"amplitudes['spectrum']", "its table has no rows, so that there is no curve to draw"},
        {"amplitudes['nan']", "point 2 of its curve has nan, which has no place in a picture"},
        {"amplitudes['infinite']", "which has no place in a picture"},
        {"amplitudes['unset']", "point 2 of its curve has 1.79769313e308, which has no place in a picture"},
        {"amplitudes['standing']", "Periodic has no picture"},
        {"materials['air']", "Material has no picture"},
        {"materials['law']", "Material has no picture"},
        {"materials['wide']", "the table of its plasticity has 3 columns"},
        {"profiles['general']", "a generalized profile has properties of a section but no shape"},
        {"profiles['solid']", "its t is no less than r, so that it has no hole"},
        {"profiles['flat']", "its b is 0, expected a number greater than 0"},
    };
    for (const Refused& row : rows)
    {
        const Answer answer = Draw(model, row.path);
        EXPECT_EQ(2, answer.exitCode) << row.path;
        EXPECT_THAT(answer.err, HasSubstr("vdbattr: show: " + row.path + ": "));
        EXPECT_THAT(answer.err, HasSubstr(row.message));
        EXPECT_EQ(1U, FileCount()) << row.path;
    }
}

TEST_F(Picture, LeavesWhatIsThereIfItIsRefused)
{
    folder.Write("picture.svg", "old");
    EXPECT_EQ(2, Draw(Example("earthquake.json"), "amplitudes['servo']").exitCode);
    EXPECT_EQ(2, Draw(Example("earthquake.json"), "amplitudes['none']").exitCode);
    EXPECT_EQ("old", ContentOf(file));
    EXPECT_EQ(1U, FileCount());
}

TEST_F(Picture, IsRefusedWhereItCannotBeWritten)
{
    const std::string ramp = "amplitudes['ramp']";
    const std::string nowhere = folder.Path("none/picture.svg");
    const Answer lost = RunProgram({"show", Example("earthquake.json"), ramp, "--svg", nowhere});
    EXPECT_EQ(2, lost.exitCode);
    EXPECT_EQ("vdbattr: " + nowhere + ": cannot be written: No such file or directory\n", lost.err);
    std::filesystem::create_directory(file);
    EXPECT_THAT(Draw(Example("earthquake.json"), ramp).err, HasSubstr("cannot be written: Is a directory"));
    EXPECT_EQ(2, RunProgram({"show", Example("earthquake.json"), ramp, "--svg", ""}).exitCode);
    const std::string model = folder.Write("model.json", ContentOf(Example("earthquake.json")));
    const Answer itself = RunProgram({"show", model, ramp, "--svg", folder.Path("./model.json")});
    EXPECT_EQ(2, itself.exitCode);
    EXPECT_THAT(itself.err, HasSubstr("is the model itself, expected another file"));
    EXPECT_EQ(ContentOf(Example("earthquake.json")), ContentOf(model));
}

TEST_F(Picture, NeedsAnObjectAndIsNoJson)
{
    EXPECT_EQ(2, RunProgram({"show", Example("earthquake.json"), "--svg", file}).exitCode);
    EXPECT_EQ(2,
              RunProgram({"show", Example("earthquake.json"), "amplitudes['ramp']", "--json", "--svg", file})
                  .exitCode);
    EXPECT_EQ(2, Draw(Example("earthquake.json"), "amplitudes['ramp'].data").exitCode);
    EXPECT_EQ(0U, FileCount());
}

} // namespace
