#include "QRTRomCore.h"

#include "QRTRomDiagEx.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"

namespace
{
int initializeCount = 0;
} // namespace

void QRTRomCore_initialize(int& tally)
{
    if (initializeCount++ != 0)
        return;
    ++tally;
    QRTRomDiagEx_initialize(tally);
}

void QRTRomCore_finalize(int& tally)
{
    if (--initializeCount != 0)
        return;
    --tally;
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
    omi_Singleton<cls_MetadataRegistrar>::Finalize();
    QRTRomDiagEx_finalize(tally);
}
