#include "rom_StoreException.h"

#include <gtest/gtest.h>

namespace
{
struct PlaceCase
{
    rom_StoreException exception;
    const char* text;
};

TEST(rom_StoreException, TellsThePlace)
{
    const char* what = "found 3 bytes, expected 8";
    const PlaceCase cases[] = {
        {{"a.db", "kamC_Tabular", 7, "smooth", what},
         "a.db: table kamC_Tabular, row 7, field smooth: found 3 bytes, expected 8"},
        {{"a.db", "kamC_Tabular", rom_StoreException::NoRow, "smooth", what},
         "a.db: table kamC_Tabular, field smooth: found 3 bytes, expected 8"},
        {{"a.db", "kamC_Tabular", 9223372036854775807, "", what},
         "a.db: table kamC_Tabular, row 9223372036854775807: found 3 bytes, expected 8"},
        {{"a.db", "", 0, "", what}, "a.db: row 0: found 3 bytes, expected 8"},
        {{"/tmp/Größe.db", what}, "/tmp/Größe.db: found 3 bytes, expected 8"},
        {{"", what}, "found 3 bytes, expected 8"},
        {{"", "T", 1, "F", what}, "table T, row 1, field F: found 3 bytes, expected 8"},
    };
    for (const PlaceCase& place : cases)
        EXPECT_STREQ(place.exception.what(), place.text);
}

TEST(rom_StoreException, KeepsTheParts)
{
    rom_StoreException exception("a.db", "T", 5, "F", "damaged");
    try
    {
        static_cast<QRTBasException&>(exception).Throw("folder/unit", 3);
    }
    catch (const rom_StoreException& caught)
    {
        EXPECT_EQ(caught.StoreFile(), "a.db");
        EXPECT_EQ(caught.Table(), "T");
        EXPECT_EQ(caught.Row(), 5);
        EXPECT_EQ(caught.Field(), "F");
        EXPECT_EQ(caught.Message(), "damaged");
        EXPECT_STREQ(caught.File(), "folder/unit");
        EXPECT_EQ(caught.Line(), 3);
    }
    const rom_StoreException whole("a.db", "damaged");
    EXPECT_EQ(whole.Row(), rom_StoreException::NoRow);
    EXPECT_TRUE(whole.Table().IsEmpty());
}
} // namespace
