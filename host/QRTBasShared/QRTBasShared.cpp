#include "QRTBasShared.h"

#include "QRTBasCoreUtils.h"

namespace
{
int initializeCount = 0;
}

void QRTBasShared_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTBasCoreUtils_initialize(tally);
}

void QRTBasShared_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTBasCoreUtils_finalize(tally);
}
