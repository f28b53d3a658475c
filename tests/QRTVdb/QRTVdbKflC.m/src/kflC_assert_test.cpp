#include "ModuleTest.h"
#include "Parentheses.h"
#include "kflC_Filter.h"
#include "kflC_TypeLabelMap.h"
#include "kflC_assert.h"
#include "omu_PrimEnum.h"

namespace
{

constexpr const char* source = "QRTVdb/QRTVdbKflC.m/src/kflC_assert";

TEST(kflC_Assert, ThrowsTheTextOfTheCode)
{
    CheckMessages(
        kflC_Assert, source,
        {"The limit value must be positive.", "Limit requires that operation is specified.",
         "Halt requires that limit is specified..", "Cutoff frequency must be greater than 0.",
         "Order must be a positive value less than or equal to 20.", "Ripple factor must be greater than 0.",
         "Ripple factor must be greater than 0 and less than or equal to 1.", "Unknown filter type.",
         "Unable to copy unknown filter", "A system-defined filter is already named \"Antialiasing.\"",
         "The cutoffFrequency value is not used by the operator filter.",
         "The order value is not used by the operator filter.",
         "The operator filter requires an operation value.", "Invariant requires an operation value."});
}

TEST(kflC_Assert, TranslatesItsTexts)
{
    const Parentheses language;
    EXPECT_EQ("(Unknown filter type.)", MessageOf(source, [] { kflC_Assert(false, 7); }));
    EXPECT_EQ("", MessageOf(source, [] { kflC_Assert(false, 14); }));
}

TEST(kflC_TypeLabelMap, LabelsOneToFour)
{
    const char* const labels[] = {
        "", "Butterworth Filter", "Chebyshev1 Filter", "Chebyshev2 Filter", "Operator Filter", ""};
    for (int value = 0; value < 6; ++value)
        EXPECT_EQ(kflC_TypeLabelMap::LabelString(static_cast<kflC_TypeLabelEnm>(value), 0), labels[value])
            << value;
    EXPECT_TRUE(kflC_TypeLabelMap::LabelString(static_cast<kflC_TypeLabelEnm>(-1), 0).IsEmpty());
}

TEST(kflC_TypeLabelMap, IsTranslatedOnceAtItsFirstUse)
{
    omi_Singleton<kflC_TypeLabelMap>::Finalize();
    {
        const Parentheses language;
        EXPECT_EQ(kflC_TypeLabelMap::LabelString(kflC_TypeChebyshev1, 0), "(Chebyshev1 Filter)");
    }
    EXPECT_EQ(kflC_TypeLabelMap::LabelString(kflC_TypeChebyshev1, 0), "(Chebyshev1 Filter)");
    omi_Singleton<kflC_TypeLabelMap>::Finalize();
    EXPECT_EQ(kflC_TypeLabelMap::LabelString(kflC_TypeChebyshev1, 0), "Chebyshev1 Filter");
}

TEST(kflC_TypeLabelMap, FindsLabelsByClass)
{
    const kflC_TypeLabelMap& map = *omi_Singleton<kflC_TypeLabelMap>::Instance();
    EXPECT_EQ(4, map.Count());
    EXPECT_EQ(map.GetText(0x3510003), "Butterworth Filter");
    EXPECT_EQ(map.GetText(0x351000D), "Operator Filter");
    EXPECT_FALSE(map.IsMember(0x3510002)) << "a filter of no kind has no label";
}

TEST(kflC_DefaultFilterEnm, HasOneSymbol)
{
    using Symbol = omu_PrimEnum<kflC_DefaultFilterEnm, 1>;
    EXPECT_EQ(1, Symbol::Table().rowCount);
    EXPECT_STREQ("ANTIALIASING", Symbol::Name(0));
    EXPECT_EQ(0, Symbol::Value(0));
}

} // namespace
