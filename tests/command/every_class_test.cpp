#include "LibraryEnvironment.h"
#include "RandomValue.h"
#include "cmd_Attributes.h"
#include "cmd_Statement.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

std::vector<const cls_Description*> ClassesWithObjects()
{
    LibraryEnvironment::Require();
    std::vector<const cls_Description*> classes;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        // A container's one attribute is its objects, which scripts reach one by one.
        const bool isContainer = description->FindByName("map") || description->FindByName("extension");
        if (!description->IsAbstract() && !isContainer)
            classes.push_back(description);
    }
    return classes;
}

class EveryClass : public testing::TestWithParam<const cls_Description*>
{
protected:
    static std::string TextOf(const cls_AnyObject& object)
    {
        return cmd_ScriptOfObject(object.Description().Export(object.Get())).Text();
    }
};

TEST_P(EveryClass, IsWrittenAndReadWordByWord)
{
    const cls_Description& description = *GetParam();
    RandomValue random(description.Id());
    for (int round = 0; round < 10; ++round)
    {
        const cls_AnyObject object = cls_ObjectOfValue(description, random.ObjectOf(description));
        const cls_AnyObject again(description, description.Info().create());
        for (const cls_Attribute* attribute : description.AllAttributes())
        {
            const std::string text = cmd_GetAttribute(description, object.Get(), *attribute).Text();
            EXPECT_EQ(std::string::npos, text.find('\n'));
            const cls_Attribute& found = cmd_RequireAttribute(description, attribute->word, text);
            cmd_SetAttribute(description, again.Get(), found, cmd_ParseValue(text));
        }
        EXPECT_TRUE(description.Export(object.Get()) == description.Export(again.Get())) << TextOf(object);
        EXPECT_EQ(TextOf(object), TextOf(again));
    }
}

TEST_P(EveryClass, HasNoWordTwice)
{
    std::vector<std::string> words;
    for (const cls_Attribute* attribute : GetParam()->AllAttributes())
        words.emplace_back(attribute->word);
    std::sort(words.begin(), words.end());
    EXPECT_EQ(words.end(), std::adjacent_find(words.begin(), words.end()));
}

INSTANTIATE_TEST_SUITE_P(Commands, EveryClass, testing::ValuesIn(ClassesWithObjects()),
                         [](const auto& info) { return std::string(info.param->Name()); });

} // namespace
