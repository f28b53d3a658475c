#include "kamC_assert.h"

#include <iterator>

namespace
{

constexpr const char* texts[] = {
    "Invalid time values, expected monotonically increasing numbers.",                              // 0
    "Invalid decay time, expected a positive number.",                                              // 1
    "Invalid smoothing parameter, expected a value between 0.0 and 0.5.",                           // 2
    "Invalid starting time, expected a positive number.",                                           // 3
    "Invalid frequency, expected a positive number.",                                               // 4
    "Invalid circular frequency, expected a positive number.",                                      // 5
    "Invalid circular frequency 1, expected a positive number.",                                    // 6
    "Invalid circular frequency 2, expected a positive number.",                                    // 7
    "Invalid starting time, expected a non-negative number.",                                       // 8
    "Invalid fixed interval, expected a positive number.",                                          // 9
    "Unknown definition.",                                                                          // 10
    "Number of columns must be less or equal to 2.",                                                // 11
    "The Time-Amplitude table should have at least two rows of data.",                              // 12
    "Invalid reference gravity acceleration, expected a non-negative value.",                       // 13
    "Invalid reference power value, expected non-negative number.",                                 // 14
    "Tabular data must have three columns.",                                                        // 15
    "The amplitude container is empty.",                                                            // 16
    "Unable to copy unknown amplitude.",                                                            // 17
    "Invalid amplitude.",                                                                           // 18
    "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.", // 19
    "Invalid logical relation of initial, minimum and maximum amplitudes.",                         // 20
    "Initial amplitude must be less or equal than maximum amplitude.",                              // 21
    "At least one set of fourier coefficients must be specified for periodic amplitude.",           // 22
    "A user subroutine cannot be specified with DB.",                                               // 23
    "An empty data table is required for user subroutine.",                                         // 24
    "Frequency band numbers must be between 1 and 15 when using DB.",                               // 25
    "Moving noise correlation is not yet supported.",                                               // 26
    "A PSD definition is required.",                                                                // 27
    "The data parameter cannot be specified with USER.",                                            // 28
    "Data cannot have a length of more than 3 with MOVING_NOISE.",                                  // 29
    "At least one value must be specified with the data parameter.",                                // 30
    "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED."};                  // 31

} // namespace

constexpr cls_MessageTable kamC_Messages{"kamC_Assert", texts, static_cast<int>(std::size(texts))};

void kamC_Assert(bool condition, int code)
{
    if (!condition)
        cls_RaiseMessage(kamC_Messages, code, "QRTVdb/QRTVdbKamC.m/src/kamC_assert", __LINE__);
}
