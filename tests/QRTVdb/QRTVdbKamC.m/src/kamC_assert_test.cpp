#include "MessageTest.h"
#include "kamC_TimeLabelMap.h"
#include "kamC_TypeLabelMap.h"
#include "kamC_assert.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

std::string Message(int code)
{
    return MessageOf("QRTVdb/QRTVdbKamC.m/src/kamC_assert", [code] { kamC_Assert(false, code); });
}

TEST(kamC_Assert, ReturnsOnTrueWhateverTheCode)
{
    EXPECT_NO_THROW(kamC_Assert(true, 0));
    EXPECT_NO_THROW(kamC_Assert(true, 99));
    EXPECT_NO_THROW(kamC_Assert(true, -1));
}

TEST(kamC_Assert, ThrowsTheTextOfTheCode)
{
    const char* const texts[] = {
        "Invalid time values, expected monotonically increasing numbers.",
        "Invalid decay time, expected a positive number.",
        "Invalid smoothing parameter, expected a value between 0.0 and 0.5.",
        "Invalid starting time, expected a positive number.",
        "Invalid frequency, expected a positive number.",
        "Invalid circular frequency, expected a positive number.",
        "Invalid circular frequency 1, expected a positive number.",
        "Invalid circular frequency 2, expected a positive number.",
        "Invalid starting time, expected a non-negative number.",
        "Invalid fixed interval, expected a positive number.",
        "Unknown definition.",
        "Number of columns must be less or equal to 2.",
        "The Time-Amplitude table should have at least two rows of data.",
        "Invalid reference gravity acceleration, expected a non-negative value.",
        "Invalid reference power value, expected non-negative number.",
        "Tabular data must have three columns.",
        "The amplitude container is empty.",
        "Unable to copy unknown amplitude.",
        "Invalid amplitude.",
        "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.",
        "Invalid logical relation of initial, minimum and maximum amplitudes.",
        "Initial amplitude must be less or equal than maximum amplitude.",
        "At least one set of fourier coefficients must be specified for periodic amplitude.",
        "A user subroutine cannot be specified with DB.",
        "An empty data table is required for user subroutine.",
        "Frequency band numbers must be between 1 and 15 when using DB.",
        "Moving noise correlation is not yet supported.",
        "A PSD definition is required.",
        "The data parameter cannot be specified with USER.",
        "Data cannot have a length of more than 3 with MOVING_NOISE.",
        "At least one value must be specified with the data parameter.",
        "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED.",
    };
    ASSERT_EQ(32u, std::size(texts));
    for (int code = 0; code < 32; ++code)
        EXPECT_EQ(texts[code], Message(code)) << code;
}

TEST(kamC_Assert, ThrowsAnEmptyTextForAnUnknownCode)
{
    for (const int code : {-1, 32, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ("", Message(code)) << code;
}

TEST(kamC_TypeLabelMap, LabelsOneToEleven)
{
    const char* const labels[] = {"",
                                  "Tabular",
                                  "Smooth Step",
                                  "Equally spaced",
                                  "Periodic",
                                  "Modulated",
                                  "Decay",
                                  "Solution dependent",
                                  "PSD-Definition",
                                  "Spectrum",
                                  "Actuator",
                                  "User",
                                  ""};
    for (int value = 0; value < 13; ++value)
        EXPECT_EQ(kamC_TypeLabelMap::LabelString(static_cast<kamC_TypeLabelEnm>(value), 0), labels[value])
            << value;
    EXPECT_TRUE(kamC_TypeLabelMap::LabelString(static_cast<kamC_TypeLabelEnm>(-1), 0).IsEmpty());
}

TEST(kamC_TimeLabelMap, LabelsOneToThree)
{
    const char* const labels[] = {"", "Step Time", "Total Time", "N/A", ""};
    for (int value = 0; value < 5; ++value)
        EXPECT_EQ(kamC_TimeLabelMap::LabelString(static_cast<kamC_TimeLabelEnm>(value), 0), labels[value])
            << value;
}

} // namespace
