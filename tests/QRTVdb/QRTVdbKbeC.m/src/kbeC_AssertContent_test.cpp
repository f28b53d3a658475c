#include "MessageTest.h"
#include "kbeC_AssertContent.h"

namespace
{

std::string Message(int code, const char* name)
{
    return MessageOf("QRTVdb/QRTVdbKbeC.m/src/kbeC_AssertContent", [code, name]
                     { kbeC_AssertContent(false, static_cast<kbeC_ContentErrorEnm>(code), name); });
}

TEST(kbeC_AssertContent, ReturnsOnTrue)
{
    EXPECT_NO_THROW(kbeC_AssertContent(true, kbeC_UnavailableComponents, "3"));
    EXPECT_NO_THROW(kbeC_AssertContent(true, static_cast<kbeC_ContentErrorEnm>(9), "3"));
}

TEST(kbeC_AssertContent, PutsTheNameInItsMessage)
{
    EXPECT_EQ("Unavailable connector components have been specified (CORM: 4,5).", Message(0, "4,5"));
    EXPECT_EQ("Table rate options cannot be specified for this behavior (damping).", Message(1, "damping"));
    EXPECT_EQ("Table rate options cannot be specified for this behavior ().", Message(1, ""));
    EXPECT_EQ("Table rate options cannot be specified for this behavior (%s%d).", Message(1, "%s%d"));
}

TEST(kbeC_AssertContent, ThrowsAnEmptyTextForAnUnknownCode)
{
    EXPECT_EQ("", Message(2, "damping"));
    EXPECT_EQ("", Message(-1, "damping"));
}

} // namespace
