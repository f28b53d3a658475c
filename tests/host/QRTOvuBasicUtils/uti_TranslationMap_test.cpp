#include "uti_TranslationMap.h"

#include "atr_Catalogue.h"
#include "atr_translate.h"
#include "omi_Singleton.h"

#include <cstring>
#include <gtest/gtest.h>

namespace
{
class German : public atr_Catalogue
{
public:
    German() { atr_setCatalogue(this); }
    ~German() override { atr_setCatalogue(nullptr); }

    const char* Lookup(const char* text) const override
    {
        return std::strcmp(text, "Rigid body") == 0 ? "Starrkörper" : nullptr;
    }
};
} // namespace

/// A singleton of labels, as the modules have them.
class test_LabelMap : public uti_TranslationMap, public omi_SingletonBase<test_LabelMap>
{
public:
    test_LabelMap()
    {
        Add(0x2D00004, "Tie");
        Add(0x2D00005, "Rigid body");
        Add(0x2D00002, "Equation");
    }

private:
    void Add(unsigned classId, const char* text)
    {
        Insert(classId, atr_translate(text, 0).Result(0), text, 0);
    }
};

namespace
{
TEST(uti_TranslationMap, IsEmptyAtFirst)
{
    const uti_TranslationMap map;
    EXPECT_EQ(map.Count(), 0);
    EXPECT_FALSE(map.IsMember(1));
    EXPECT_TRUE(map.GetTranslated(1).IsEmpty());
    EXPECT_TRUE(map.GetText(1).IsEmpty());
    EXPECT_EQ(map.FindText("Tie"), 0u);
    EXPECT_EQ(map.FindTranslated(atr_String("Tie")), 0u);
}

TEST(uti_TranslationMap, LooksUpBothWays)
{
    const German catalogue;
    const test_LabelMap* map = omi_Singleton<test_LabelMap>::Instance();
    EXPECT_EQ(map->GetTranslated(0x2D00005), "Starrkörper");
    EXPECT_EQ(map->GetText(0x2D00005), "Rigid body");
    EXPECT_EQ(map->GetTranslated(0x2D00004), "Tie");
    EXPECT_EQ(map->FindTranslated(atr_String("Starrkörper")), 0x2D00005u);
    EXPECT_EQ(map->FindTranslated(atr_String("Rigid body")), 0u);
    EXPECT_EQ(map->FindText("Rigid body"), 0x2D00005u);
    EXPECT_EQ(map->FindText(nullptr), 0u);
    omi_Singleton<test_LabelMap>::Finalize();
}

TEST(uti_TranslationMap, KeepsTheOrderOfInsertion)
{
    const test_LabelMap* map = omi_Singleton<test_LabelMap>::Instance();
    ASSERT_EQ(map->Count(), 3);
    EXPECT_EQ(map->ClassIdAt(0), 0x2D00004u);
    EXPECT_EQ(map->ClassIdAt(1), 0x2D00005u);
    EXPECT_EQ(map->ClassIdAt(2), 0x2D00002u);
    EXPECT_EQ(map->GetTranslated(0x2D00005), "Rigid body");
    omi_Singleton<test_LabelMap>::Finalize();
}

TEST(uti_TranslationMap, AClassHasOneLabel)
{
    uti_TranslationMap map;
    map.Insert(7, atr_String("first"), "first", 0);
    map.Insert(8, atr_String("first"), "first", 0);
    EXPECT_EQ(map.FindText("first"), 7u);
    map.Insert(7, atr_String("second"), "second", 0);
    EXPECT_EQ(map.Count(), 2);
    EXPECT_EQ(map.ClassIdAt(0), 7u);
    EXPECT_EQ(map.GetText(7), "second");
    EXPECT_EQ(map.FindText("first"), 8u);
}

TEST(uti_TranslationMapDeathTest, ABadPositionAborts)
{
    uti_TranslationMap map;
    map.Insert(7, atr_String("first"), "first", 0);
    EXPECT_DEATH(map.ClassIdAt(1), "");
    EXPECT_DEATH(map.ClassIdAt(-1), "");
}
} // namespace
