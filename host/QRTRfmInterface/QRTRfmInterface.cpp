#include "QRTRfmInterface.h"

#include "QRTRomDiagEx.h"

namespace
{
int initializeCount = 0;
}

void QRTRfmInterface_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTRomDiagEx_initialize(tally);
}

void QRTRfmInterface_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    QRTRomDiagEx_finalize(tally);
}
