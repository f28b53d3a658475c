#include "nex_Exceptions.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace
{
using Rule = nex_PrimException<atr_String, 1>;
using Command = nex_CmdException<atr_String, 2>;
using Name = nex_CmdException<cow_String, 9>;

static_assert(Rule::Kind == 1 && Command::Kind == 2 && Name::Kind == 9);
static_assert(std::is_nothrow_copy_constructible_v<Rule> && std::is_nothrow_copy_constructible_v<Name>);
static_assert(!std::is_base_of_v<Rule, Command> && !std::is_base_of_v<Command, Name>);

template <class Exception>
class nex_Exceptions : public testing::Test
{};

using Kinds = testing::Types<Rule, Command, Name>;
TYPED_TEST_SUITE(nex_Exceptions, Kinds);

TYPED_TEST(nex_Exceptions, AreCaughtAsWhatTheyAre)
{
    using Text = std::decay_t<decltype(std::declval<TypeParam>().GetText())>;
    const Text message("Größe \"%s\"");
    try
    {
        TypeParam(message, 0).Throw("QRTVdb/QRTVdbKamC.m/src/kamC_assert", 31);
    }
    catch (const TypeParam& caught)
    {
        EXPECT_STREQ(caught.what(), "Größe \"%s\"");
        EXPECT_EQ(caught.GetText().CString(), message.CString());
        EXPECT_STREQ(caught.File(), "QRTVdb/QRTVdbKamC.m/src/kamC_assert");
        EXPECT_EQ(caught.Line(), 31);
    }
    EXPECT_THROW(TypeParam(message, 0).Throw("", 0), QRTBasException);
    EXPECT_THROW(TypeParam(message, 0).Throw("", 0), std::exception);
}

TYPED_TEST(nex_Exceptions, MayHaveAnEmptyText)
{
    using Text = std::decay_t<decltype(std::declval<TypeParam>().GetText())>;
    const TypeParam exception(Text(), 0);
    EXPECT_STREQ(exception.what(), "");
    EXPECT_TRUE(exception.GetText().IsEmpty());
}

TYPED_TEST(nex_Exceptions, AreRaisedAsWhatTheyAreThroughTheBase)
{
    using Text = std::decay_t<decltype(std::declval<TypeParam>().GetText())>;
    TypeParam exception(Text("text"), 0);
    QRTBasException& base = exception;
    EXPECT_THROW(base.Throw("unit", 1), TypeParam);
}
} // namespace
