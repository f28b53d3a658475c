#include "QRTVdbAttrEO2.h"

#include "QRTBasAlloc.h"
#include "QRTBasCoreUtils.h"
#include "QRTBasShared.h"
#include "QRTOvuBasicUtils.h"
#include "QRTOvuGeom.h"
#include "QRTRomCore.h"
#include "QRTRomDiagEx.h"
#include "QRTShpCore.h"
#include "QRTVdbCoreGeom.h"
#include "QRTVdbKadC.h"
#include "QRTVdbKamC.h"
#include "QRTVdbKarC.h"
#include "QRTVdbKbeC.h"
#include "QRTVdbKbpC.h"
#include "QRTVdbKcoC.h"
#include "QRTVdbKefC.h"
#include "QRTVdbKfdC.h"
#include "QRTVdbKflC.h"
#include "QRTVdbKipC.h"
#include "QRTVdbKlcC.h"
#include "QRTVdbKmaC.h"
#include "QRTVdbKopC.h"
#include "QRTVdbKtbC.h"
#include "cls_Description.h"
#include "cls_Module.h"
#include "ddr_ShortcutRegistry.h"

#include <cstdlib>
#include <iterator>

namespace
{

int outerCount = 0;
int innerCount = 0;
int privateModuleCount = 0;

using Entry = void (*)(int&);

/// A component that the library brings up and takes down.
struct Component
{
    Entry initialize;
    Entry finalize;
};

// In order of initialization; finalization runs the other way.
constexpr Component components[] = {
    {QRTVdbCoreGeom_initialize, QRTVdbCoreGeom_finalize},
    {QRTShpCore_initialize, QRTShpCore_finalize},
    {QRTRomDiagEx_initialize, QRTRomDiagEx_finalize},
    {QRTRomCore_initialize, QRTRomCore_finalize},
    {QRTOvuGeom_initialize, QRTOvuGeom_finalize},
    {QRTOvuBasicUtils_initialize, QRTOvuBasicUtils_finalize},
    {QRTBasShared_initialize, QRTBasShared_finalize},
    {QRTBasCoreUtils_initialize, QRTBasCoreUtils_finalize},
    {QRTBasAlloc_initialize, QRTBasAlloc_finalize},
    {QRTVdbKefC_initialize, QRTVdbKefC_finalize},
    {QRTVdbKtbC_initialize, QRTVdbKtbC_finalize},
    {QRTVdbKbeC_initialize, QRTVdbKbeC_finalize},
    {QRTVdbKipC_initialize, QRTVdbKipC_finalize},
    {QRTVdbKamC_initialize, QRTVdbKamC_finalize},
    {QRTVdbKbpC_initialize, QRTVdbKbpC_finalize},
    {QRTVdbKflC_initialize, QRTVdbKflC_finalize},
    {QRTVdbKmaC_initialize, QRTVdbKmaC_finalize},
    {QRTVdbKlcC_initialize, QRTVdbKlcC_finalize},
    {QRTVdbKfdC_initialize, QRTVdbKfdC_finalize},
    {QRTVdbKcoC_initialize, QRTVdbKcoC_finalize},
    {QRTVdbKarC_initialize, QRTVdbKarC_finalize},
    {QRTVdbKadC_initialize, QRTVdbKadC_finalize},
    {QRTVdbKopC_initialize, QRTVdbKopC_finalize},
};

// Keeps the name and form of the library in the file, where tools that look into files find it.
[[maybe_unused]] const long keptText = std::strtol("0 OVRQRTVdbAttrEO2 attribute library", nullptr, 10);

} // namespace

void QRTVdbAttrEO2_initialize(int& tally)
{
    if (outerCount++ != 0)
        return;
    tally += 1;
    for (const Component& component : components)
        component.initialize(tally);
    if (innerCount++ == 0)
        tally += 1;
}

void QRTVdbAttrEO2_finalize(int& tally)
{
    if (--outerCount != 0)
        return;
    tally -= --innerCount == 0 ? 2 : 1;
    for (auto component = std::rbegin(components); component != std::rend(components); ++component)
        component->finalize(tally);
    omi_Singleton<ddr_ShortcutRegistry>::Finalize();
    omi_Singleton<cls_DescriptionRegistry>::Finalize();
    omi_Singleton<cls_Catalogue>::Finalize();
}

void QRTVdbAttrEO2_initializeC()
{
    QRTVdbAttrEO2_initialize(privateModuleCount);
}

void QRTVdbAttrEO2_finalizeC()
{
    QRTVdbAttrEO2_finalize(privateModuleCount);
}

QRTVdbAttrEO2_Counters QRTVdbAttrEO2_counters()
{
    return {outerCount, innerCount, privateModuleCount};
}
