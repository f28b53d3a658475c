#include "QRTBasCoreUtils.h"

#include "QRTBasAlloc.h"

namespace
{
int initializeCount = 0;
}

void QRTBasCoreUtils_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTBasAlloc_initialize(tally);
}

void QRTBasCoreUtils_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTBasAlloc_finalize(tally);
}
