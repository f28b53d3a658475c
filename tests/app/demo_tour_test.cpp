#include "Program.h"

#include <gmock/gmock.h>
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
    for (const char* part :
         {"amplitudes['ramp'].smooth: not set -> 0.75\n", "\nmodel.undo()\n",
          "~ model.amplitudes['ramp'] (kamC_Tabular)\n    smooth: 0.25 -> SOLVER_DEFAULT\n",
          "show frame.json \"profiles['crane girder']\" --svg",
          "did you mean 'blow'?\n  model.amplitudes['bolw']\n                  ^~~~~~~~\n",
          "quake.vdb and again.vdb hold the same model.", "+ model.amplitudes['blow'] (kamC_Decay)\n",
          "kamC_Amplitude      12 rows  from 203  to 430  by 208, 424 (Upgrade_kamC_Amplitude_208_424), "
          "430\n",
          "new.vdb: 5 of 20 tables upgraded", "That was the tour."})
        EXPECT_THAT(ContentOf(out), testing::HasSubstr(part));
}

} // namespace
