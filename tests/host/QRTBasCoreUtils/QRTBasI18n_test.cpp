#include "QRTBasI18n.h"

#include "atr_String.h"

#include <clocale>
#include <gtest/gtest.h>
#include <string>

namespace
{
class Locale : public testing::Test
{
protected:
    void TearDown() override { std::setlocale(LC_ALL, "C"); }

    const cow_String text{"Größe 日本 €"};
};

TEST_F(Locale, TextsStayInTheCLocaleAndInUtf8)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C"), nullptr);
    EXPECT_EQ(QRTBasI18n::ToLocale(text), text);
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    EXPECT_EQ(QRTBasI18n::ToLocale(text), text);
    EXPECT_EQ(atr_String(text).UTF8ToLocale(), text);
    EXPECT_TRUE(QRTBasI18n::ToLocale(cow_String()).IsEmpty());
}

struct EncodingCase
{
    const char* text;
    const char* expected;
};

TEST(QRTBasI18n, ConvertsToAnEncoding)
{
    const EncodingCase cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"Größe", "Gr\xF6\xDF"
                  "e"},
        {"€ 5", "? 5"},
        {"日本", "??"},
        {"a\xF0\x9F\x99\x82z", "a?z"},
        {"a\xFFz\xC3", "a?z?"},
        {"\xA9z", "?z"},
    };
    for (const EncodingCase& encoding : cases)
        EXPECT_STREQ(QRTBasI18n::ToEncoding(encoding.text, "ISO-8859-1").CString(), encoding.expected)
            << encoding.text;
}

TEST(QRTBasI18n, ConvertsLongTexts)
{
    std::string text;
    std::string expected;
    for (int i = 0; i < 1000; ++i)
    {
        text += "xä";
        expected += "x\xE4";
    }
    EXPECT_EQ(QRTBasI18n::ToEncoding(text.c_str(), "ISO-8859-1"), expected.c_str());
}

TEST(QRTBasI18n, AnUnknownEncodingLeavesTheText)
{
    EXPECT_STREQ(QRTBasI18n::ToEncoding("Größe", "NO-SUCH-ENCODING").CString(), "Größe");
}
} // namespace
