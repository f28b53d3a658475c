#include "atr_translate.h"

#include "atr_Catalogue.h"

#include <climits>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace
{
/// A catalogue for the time of a test.
class Catalogue : public atr_Catalogue
{
public:
    explicit Catalogue(std::map<std::string, std::string> texts)
        : texts(std::move(texts)), before(atr_setCatalogue(this))
    {}
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;
    ~Catalogue() override { atr_setCatalogue(before); }

    const char* Lookup(const char* text) const override
    {
        const auto found = texts.find(text);
        return found == texts.end() ? nullptr : found->second.c_str();
    }

private:
    std::map<std::string, std::string> texts;
    const atr_Catalogue* before;
};

atr_String Filled(const char* text)
{
    atr_translate message(text, 0);
    atr_SubstituteFormat(message, 1, 17, 0);
    atr_SubstituteFormat(message, 2, "STEP, TOTAL", 0);
    return message.Result(0);
}

struct FormatCase
{
    const char* text;
    const char* expected;
};

TEST(atr_translate, FillsPlaceholders)
{
    const FormatCase cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"Value not allowed: %d  Permissible: %s", "Value not allowed: 17  Permissible: STEP, TOTAL"},
        {"%d%s", "17STEP, TOTAL"},
        {"only %d", "only 17"},
        {"%2$s before %1$d", "STEP, TOTAL before 17"},
        {"%1$d and %1$d", "17 and 17"},
        {"%d of %s and %s", "17 of STEP, TOTAL and %s"},
        {"%3$s stays", "%3$s stays"},
        {"100%% of %d", "100% of 17"},
        {"%%d is no placeholder, %d is", "%d is no placeholder, 17 is"},
        {"%%", "%"},
        {"%%%d", "%17"},
        {"%", "%"},
        {"5% and %d", "5% and 17"},
        {"%x %0$s %-1$s %1$x %1 %99999999999$s %d", "%x %0$s %-1$s %1$x %1 %99999999999$s 17"},
        {"Größe %d → %s", "Größe 17 → STEP, TOTAL"},
    };
    for (const FormatCase& format : cases)
        EXPECT_STREQ(Filled(format.text).CString(), format.expected) << format.text;
}

TEST(atr_translate, ANullTextIsEmpty)
{
    EXPECT_TRUE(Filled(nullptr).IsEmpty());
}

TEST(atr_translate, AValueIsNotFilledInAgain)
{
    atr_translate message("%s and %s", 0);
    atr_SubstituteFormat(message, 1, "%s %2$s %%", 0);
    atr_SubstituteFormat(message, 2, "%d", 0);
    EXPECT_STREQ(message.Result(0).CString(), "%s %2$s %% and %d");
}

TEST(atr_translate, TakesExtremeAndNullValues)
{
    atr_translate message("[%d][%s]", 0);
    atr_SubstituteFormat(message, 1, INT_MIN, 0);
    atr_SubstituteFormat(message, 2, static_cast<const char*>(nullptr), 0);
    EXPECT_STREQ(message.Result(0).CString(), "[-2147483648][]");
}

TEST(atr_translate, IgnoresPositionsThatTheTextLacks)
{
    atr_translate message("%s", 0);
    for (const int position : {INT_MIN, -1, 0, 2, INT_MAX})
        atr_SubstituteFormat(message, position, "wrong", 0);
    EXPECT_STREQ(message.Result(0).CString(), "%s");
}

TEST(atr_translate, TheLastValueOfAPositionHolds)
{
    atr_translate message("%s", 0);
    atr_SubstituteFormat(message, 1, "first", 0);
    EXPECT_STREQ(message.Result(0).CString(), "first");
    atr_SubstituteFormat(message, 1, "second", 0);
    EXPECT_STREQ(message.Result(0).CString(), "second");
}

TEST(atr_translate, ATextValueIsCopied)
{
    char value[] = "before";
    atr_translate message("%s", 0);
    atr_SubstituteFormat(message, 1, value, 0);
    value[0] = 'X';
    EXPECT_STREQ(message.Result(0).CString(), "before");
}

TEST(atr_translate, UsesTheCatalogueInForceWhenMade)
{
    atr_translate before("Tie", 0);
    const Catalogue german({{"Tie", "Bindung"}, {"%d: %s", "%2$s (%1$d)"}, {"%d to %s", "%2$s seit %1$s"}});
    const atr_translate tie("Tie", 0);
    EXPECT_STREQ(tie.Result(0).CString(), "Bindung");
    EXPECT_STREQ(before.Result(0).CString(), "Tie");
    EXPECT_STREQ(Filled("%d: %s").CString(), "STEP, TOTAL (17)");
    EXPECT_STREQ(Filled("%d to %s").CString(), "STEP, TOTAL seit 17");
    EXPECT_STREQ(atr_translate("Coupling", 0).Result(0).CString(), "Coupling");
    EXPECT_EQ(atr_getCatalogue(), &german);
    {
        const Catalogue french(std::map<std::string, std::string>{{"Tie", "Liaison"}});
        EXPECT_STREQ(atr_translate("Tie", 0).Result(0).CString(), "Liaison");
        EXPECT_STREQ(tie.Result(0).CString(), "Bindung");
    }
    EXPECT_STREQ(atr_translate("Tie", 0).Result(0).CString(), "Bindung");
}

TEST(atr_translate, WithoutACatalogueTextsStayAsTheyAre)
{
    EXPECT_EQ(atr_getCatalogue(), nullptr);
    EXPECT_STREQ(atr_translate("Tie", 0).Result(0).CString(), "Tie");
}
} // namespace
