#include "atr_String.h"

#include "atr_Catalogue.h"
#include "cow_String.h"

#include <gtest/gtest.h>

namespace
{
class TranslateAll : public atr_Catalogue
{
public:
    TranslateAll() { atr_setCatalogue(this); }
    ~TranslateAll() override { atr_setCatalogue(nullptr); }

    const char* Lookup(const char*) const override { return "translated"; }
};

TEST(atr_raw, KeepsTheTextAsItStands)
{
    const TranslateAll catalogue;
    EXPECT_STREQ(atr_raw("100%% of %s", 0).CString(), "100%% of %s");
    EXPECT_TRUE(atr_raw(nullptr, 0).IsEmpty());
}

struct ReplaceCase
{
    const char* text;
    int position;
    const char* expected;
};

TEST(atr_String, ReplacesAPlaceholder)
{
    const ReplaceCase cases[] = {
        {"The load \"%s\" is suppressed or does not exist.", 0,
         "The load \"[%s]\" is suppressed or does not exist."},
        {"Unavailable connector components have been specified (CORM: %s).", 0,
         "Unavailable connector components have been specified (CORM: [%s])."},
        {"%s", 0, "[%s]"},
        {"%s and %d", 0, "[%s] and %d"},
        {"%s and %d", 1, "%s and [%s]"},
        {"%s and %d", 2, "%s and %d"},
        {"%s", -1, "%s"},
        {"%2$s and %1$s", 0, "%2$s and [%s]"},
        {"50%% of %s", 0, "50%% of [%s]"},
        {"nothing to fill", 0, "nothing to fill"},
        {"", 0, ""},
    };
    for (const ReplaceCase& replace : cases)
    {
        atr_String text = atr_raw(replace.text, 0);
        const atr_String copy(text);
        text.ReplaceNonTranslated(replace.position, cow_String("[%s]"));
        EXPECT_STREQ(text.CString(), replace.expected);
        EXPECT_STREQ(copy.CString(), replace.text);
    }
}

TEST(atr_String, ReplacesByTheTextItself)
{
    const TranslateAll catalogue;
    atr_String text = atr_raw("(%s)", 0);
    text.ReplaceNonTranslated(0, text);
    EXPECT_STREQ(text.CString(), "((%s))");
    text.ReplaceNonTranslated(0, atr_String());
    EXPECT_STREQ(text.CString(), "(())");
}
} // namespace
