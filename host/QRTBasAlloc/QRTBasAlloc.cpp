#include "QRTBasAlloc.h"

namespace
{
int initializeCount = 0;
}

void QRTBasAlloc_initialize(int& tally)
{
    if (initializeCount++ == 0)
        ++tally;
}

void QRTBasAlloc_finalize(int& tally)
{
    if (--initializeCount == 0)
        --tally;
}
