// What every module's assert function leaves alone.

#include "atr_Catalogue.h"
#include "kamC_assert.h"
#include "kflC_assert.h"
#include "klcC_AssertLoadCaseContent.h"

#include <gtest/gtest.h>

namespace
{

/// A language without a text, which counts how often it is asked for one.
class CountingCatalogue final : public atr_Catalogue
{
public:
    CountingCatalogue() : before(atr_setCatalogue(this)) {}
    ~CountingCatalogue() override { atr_setCatalogue(before); }

    const char* Lookup(const char*) const override
    {
        ++lookups;
        return nullptr;
    }

    int Lookups() const { return lookups; }

private:
    mutable int lookups = 0;
    const atr_Catalogue* before;
};

TEST(ModuleAssert, BuildsATextOnlyWhenItFails)
{
    const CountingCatalogue language;
    for (int code = 0; code < 14; ++code)
        kflC_Assert(true, code);
    EXPECT_EQ(0, language.Lookups());
    EXPECT_THROW(kflC_Assert(false, 0), cls_RuleException);
    EXPECT_EQ(1, language.Lookups());
}

TEST(ModuleAssert, DoesNotTranslateItsMessagesButForFilters)
{
    const CountingCatalogue language;
    EXPECT_THROW(kamC_Assert(false, 0), cls_RuleException);
    EXPECT_THROW(klcC_AssertLoadCaseContent(false, klcC_MissingLoad, "a"), cls_RuleException);
    EXPECT_EQ(0, language.Lookups());
}

} // namespace
