#include "QRTRomDiagEx.h"

#include "QRTBasShared.h"

namespace
{
int initializeCount = 0;
}

void QRTRomDiagEx_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTBasShared_initialize(tally);
}

void QRTRomDiagEx_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTBasShared_finalize(tally);
}
