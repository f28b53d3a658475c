#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace
{

using Json = nlohmann::ordered_json;
using testing::HasSubstr;

Json Catalog()
{
    return Json::parse(RunProgram({"catalog", "--json"}).out);
}

std::vector<std::string> KeysOf(const Json& object)
{
    std::vector<std::string> keys;
    for (const auto& member : object.items())
        keys.push_back(member.key());
    return keys;
}

const Json& ByName(const Json& list, const std::string& name)
{
    for (const Json& entry : list)
    {
        if (entry.at("name") == name)
            return entry;
    }
    throw std::out_of_range(name);
}

// What is stored or worded changes knowingly: look at the difference, then renew the file with
//   build/release/bin/vdbattr catalog --json > tests/app/catalog.json
TEST(Catalog, IsTheOneThatIsPinned)
{
    const Answer answer = RunProgram({"catalog", "--json"});
    EXPECT_EQ(0, answer.exitCode);
    EXPECT_EQ("", answer.err);
    const std::string pinned = ContentOf(OVR_SOURCE_DIR "/tests/app/catalog.json");
    EXPECT_EQ(pinned, answer.out);
}

TEST(Catalog, HasAllModulesInOrderOfInitialization)
{
    const Json catalog = Catalog();
    std::vector<std::string> names;
    for (const Json& module : catalog.at("modules"))
    {
        names.push_back(module.at("name"));
        EXPECT_EQ((std::vector<std::string>{"name", "number", "types", "messages"}), KeysOf(module));
    }
    EXPECT_EQ((std::vector<std::string>{"kefC", "ktbC", "kbeC", "kipC", "kamC", "kbpC", "kflC", "kmaC",
                                        "klcC", "kfdC", "kcoC", "karC", "kadC", "kopC"}),
              names);
}

TEST(Catalog, TellsTypesAndMessagesOfAModule)
{
    const Json catalog = Catalog();
    const Json& module = ByName(catalog.at("modules"), "kamC");
    EXPECT_EQ(580, module.at("number"));
    EXPECT_EQ(28U, module.at("types").size());
    EXPECT_EQ(R"({"index":1,"id":"0x2440001","name":"kamC_BaselineCorrection","parent":"0x1"})",
              module.at("types")[0].dump());
    const Json& messages = module.at("messages").at("kamC_Assert");
    EXPECT_EQ(32U, messages.size());
    EXPECT_EQ("Invalid time values, expected monotonically increasing numbers.", messages.at("0"));
}

TEST(Catalog, TellsAClassInTheAgreedForm)
{
    const Json expected = Json::parse(R"({
        "name": "kamC_Tabular", "id": "0x2440008", "version": 424, "base": "kamC_Amplitude", "abstract": false,
        "words": {"constructor": "TabularAmplitude"},
        "attributes": [
          {"index": 0, "name": "smooth", "kind": "double", "code": 10, "typeId": "0x1", "collection": 0,
           "default": 1.7976931348623157e308, "word": "smooth"},
          {"index": 1, "name": "data", "kind": "array2d", "code": 15, "typeId": "0x230001", "collection": 82,
           "word": "data"},
          {"index": 2, "name": "baselineCorrection", "kind": "optional", "of": "kamC_BaselineCorrection",
           "code": 15, "typeId": "0x2440001", "collection": 0, "word": "baselineCorrection"}]})");
    const Json catalog = Catalog();
    EXPECT_EQ(expected.dump(), ByName(catalog.at("classes"), "kamC_Tabular").dump());
    const Answer answer = RunProgram({"catalog", "--json", "TabularAmplitude"});
    EXPECT_EQ(expected.dump(), Json::parse(answer.out).dump());
    EXPECT_THAT(answer.out, HasSubstr("\"default\": 1.7976931348623157e308,"));
}

TEST(Catalog, TellsTheDefaultsOfAnAbstractClass)
{
    const Json catalog = Catalog();
    const Json& amplitude = ByName(catalog.at("classes"), "kamC_Amplitude");
    EXPECT_EQ(true, amplitude.at("abstract"));
    EXPECT_EQ(nullptr, amplitude.at("base"));
    EXPECT_EQ(R"({"index":0,"name":"timeSpan","kind":"enum","enum":"kamC_Amplitude::TimeSpanEnm","code":14,)"
              R"("typeId":"0x1","collection":0,"default":"STEP","word":"timeSpan"})",
              amplitude.at("attributes")[0].dump());
}

TEST(Catalog, TellsRepositoriesWithTheirIndexByName)
{
    const Json catalog = Catalog();
    const Json& container = ByName(catalog.at("classes"), "kamC_AmplitudeContainer");
    EXPECT_EQ(800, container.at("version"));
    EXPECT_EQ("mdl_Repository", container.at("base"));
    EXPECT_EQ(-1, container.at("attributes")[0].at("index"));
    EXPECT_EQ("map_object", container.at("attributes")[0].at("kind"));
    EXPECT_EQ("amplitudes", container.at("attributes")[0].at("word"));
}

TEST(Catalog, TellsEnumerationsAndLabelsInTheirOrder)
{
    const Json catalog = Catalog();
    EXPECT_EQ((std::vector<std::string>{"modules", "classes", "enums", "labels", "oldVersions"}),
              KeysOf(catalog));
    EXPECT_EQ(R"([["CORRELATED",0],["UNCORRELATED",1],["USER",3],["MOVING_NOISE",2]])",
              catalog.at("enums").at("kamC_CorrelationComponent::CorrelationApproachEnm").dump());
    EXPECT_EQ("Tabular", catalog.at("labels").at("kamC_TypeLabelMap").at("1"));
    EXPECT_TRUE(catalog.at("oldVersions").is_array());
}

TEST(Catalog, ShowsAClassToPeople)
{
    const Answer answer = RunProgram({"catalog", "PsdDefinition"});
    EXPECT_EQ(0, answer.exitCode);
    for (const char* part : {"kamC_PsdDefinition  0x2440009, version 203", "base         kamC_Amplitude",
                             "unitType", "enum: BASE, FORCE, DB"})
        EXPECT_THAT(answer.out, HasSubstr(part));
    EXPECT_THAT(RunProgram({"catalog"}).out, HasSubstr("TabularAmplitude"));
}

TEST(Catalog, RefusesAnUnknownClass)
{
    const Answer answer = RunProgram({"catalog", "kamC_Sawtooth"});
    EXPECT_EQ(2, answer.exitCode);
    EXPECT_EQ("", answer.out);
    EXPECT_THAT(answer.err, HasSubstr("kamC_Sawtooth"));
}

} // namespace
