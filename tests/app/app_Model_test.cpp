#include "app_Model.h"

#include "LibraryEnvironment.h"
#include "app_Store.h"

#include <gtest/gtest.h>

namespace
{

cls_Value Decay()
{
    return cls_Value::Object{{"class", "kamC_Decay"}};
}

TEST(Model, RefusesASecondObjectOfAName)
{
    ddr_Model model;
    app_InsertValue(model, "amplitudes", "a'b", Decay());
    try
    {
        app_InsertValue(model, "amplitudes", "a'b", Decay());
        FAIL();
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_EQ("amplitudes[\"a'b\"]", error.Path());
        EXPECT_EQ("the name is taken by another object", error.Message());
    }
    EXPECT_EQ(1, app_ObjectCount(model));
}

TEST(Model, RenamesAnObjectWithoutCopyingIt)
{
    ddr_Model model;
    app_InsertValue(model, "amplitudes", "a", Decay());
    app_InsertValue(model, "amplitudes", "b", Decay());
    mdl_NamedObjects& repository = app_Repository(model, "amplitudes");
    const void* const object = repository.ConstObject("a");
    EXPECT_TRUE(repository.RenameObject("a", "b"));
    EXPECT_EQ(object, repository.ConstObject("b"));
    EXPECT_EQ(nullptr, repository.ConstObject("a"));
    EXPECT_FALSE(repository.RenameObject("a", "c"));
    EXPECT_EQ(std::vector<std::string>{"b"}, repository.ObjectNames());
    EXPECT_FALSE(repository.RemoveObject("a"));
    EXPECT_TRUE(repository.RemoveObject("b"));
}

TEST(Model, IsWrittenAsItIsRead)
{
    const std::string text = "{\n"
                             "  \"amplitudes\": {\n"
                             "    \"a\": {\n"
                             "      \"class\": \"kamC_UserAmplitude\",\n"
                             "      \"timeSpan\": 7,\n"
                             "      \"numVariables\": -1\n"
                             "    },\n"
                             "    \"b\": {\n"
                             "      \"class\": \"kamC_ActuatorAmplitude\",\n"
                             "      \"timeSpan\": \"STEP\"\n"
                             "    }\n"
                             "  }\n"
                             "}\n";
    EXPECT_EQ(text, app_WriteJsonModel(*app_ReadJsonModel(text, "text")));
}

} // namespace
