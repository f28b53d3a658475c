#include "MessageTest.h"
#include "klcC_AssertLoadCaseContent.h"

namespace
{

std::string Message(int code, const char* name)
{
    return MessageOf("QRTVdb/QRTVdbKlcC.m/src/klcC_AssertLoadCaseContent", [code, name]
                     { klcC_AssertLoadCaseContent(false, static_cast<klcC_CompoundErrorEnm>(code), name); });
}

TEST(klcC_AssertLoadCaseContent, ReturnsOnTrue)
{
    EXPECT_NO_THROW(klcC_AssertLoadCaseContent(true, klcC_MissingLoad, "wind"));
    EXPECT_NO_THROW(klcC_AssertLoadCaseContent(true, static_cast<klcC_CompoundErrorEnm>(9), "wind"));
}

TEST(klcC_AssertLoadCaseContent, PutsTheNameInItsMessage)
{
    const char* const messages[] = {
        "The load \"wind\" is suppressed or does not exist.",
        "The boundary condition \"wind\" is suppressed or does not exist.",
        "The field \"wind\" is suppressed or does not exist.",
        "The load \"wind\" is suppressed or does not exist.\n\n"
        "Available loads may be viewed by clicking the Add... button.",
        "The boundary condition \"wind\" is suppressed or does not exist.\n\n"
        "Available boundary conditions may be viewed by clicking the Add... button.",
        "The field \"wind\" is suppressed or does not exist.\n\n"
        "Available fields may be viewed by clicking the Add... button.",
    };
    for (int code = 0; code < 6; ++code)
        EXPECT_EQ(messages[code], Message(code, "wind")) << code;
    EXPECT_EQ("The load \"100% %s\" is suppressed or does not exist.", Message(0, "100% %s"));
}

TEST(klcC_AssertLoadCaseContent, ThrowsAnEmptyTextForAnUnknownCode)
{
    EXPECT_EQ("", Message(6, "wind"));
    EXPECT_EQ("", Message(-1, "wind"));
}

} // namespace
