#include "Program.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

TEST(DemoTour, FindsEverythingAsItExpects)
{
    const ScratchFolder folder;
    const std::string out = folder.Path("out");
    const std::string command = OVR_SOURCE_DIR "/scripts/demo-tour '" OVR_PROGRAM "' > '" + out + "' 2>&1";
    EXPECT_EQ(0, std::system(command.c_str())) << ContentOf(out);
    EXPECT_NE(std::string::npos, ContentOf(out).find("That was the tour."));
}

} // namespace
