#include "QRTVdbAttrEO2.h"
#include "QRTVdbKamC.h"

#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"
#include "ddr_Model.h"
#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace
{

/// Host components that the entry brings up: the nine whose entries it calls, and the record store below
/// them.
constexpr int hostComponents = 10;
constexpr int modules = 14;
constexpr int wholeTally = 1 + hostComponents + modules + 1;

bool IsUp()
{
    return typ_ArchCompTable::IsKnown(0x2440008) && ddr_Model().ConstGetAmplitudes() != nullptr;
}

TEST(LibraryEntry, AddsToTheTallyAndTakesItBack)
{
    int tally = 0;
    QRTVdbAttrEO2_initialize(tally);
    EXPECT_EQ(wholeTally, tally);
    EXPECT_TRUE(IsUp());
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(0, tally);
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().outerCount);
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().innerCount);
}

TEST(LibraryEntry, OnlyCountsWhenItIsUp)
{
    int tally = 0;
    QRTVdbAttrEO2_initialize(tally);
    const std::size_t registrations = omi_Singleton<cls_MetadataRegistrar>::Instance()->Count();
    int second = 7;
    QRTVdbAttrEO2_initialize(second);
    EXPECT_EQ(7, second);
    EXPECT_EQ(2, QRTVdbAttrEO2_counters().outerCount);
    EXPECT_EQ(1, QRTVdbAttrEO2_counters().innerCount);
    EXPECT_EQ(registrations, omi_Singleton<cls_MetadataRegistrar>::Instance()->Count());
    QRTVdbAttrEO2_finalize(second);
    EXPECT_EQ(7, second);
    EXPECT_TRUE(IsUp());
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(0, tally);
}

TEST(LibraryEntry, ComesUpAgain)
{
    for (int round = 0; round < 3; ++round)
    {
        int tally = 0;
        QRTVdbAttrEO2_initialize(tally);
        EXPECT_EQ(wholeTally, tally);
        EXPECT_TRUE(IsUp());
        EXPECT_NE(nullptr, omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(0x2440008));
        QRTVdbAttrEO2_finalize(tally);
        EXPECT_EQ(0, tally);
        EXPECT_EQ(nullptr, ddr_Model().ConstGetAmplitudes());
    }
}

TEST(LibraryEntry, DoesNotClampItsCounter)
{
    int tally = 0;
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(-1, QRTVdbAttrEO2_counters().outerCount);
    EXPECT_EQ(0, tally);
    QRTVdbAttrEO2_initialize(tally);
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().outerCount);
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().innerCount);
    EXPECT_EQ(0, tally) << "the initialization after one finalization too many does nothing";
    EXPECT_EQ(nullptr, ddr_Model().ConstGetAmplitudes());
}

TEST(LibraryEntry, SharesItsCountBetweenBothForms)
{
    int tally = 0;
    QRTVdbAttrEO2_initializeC();
    EXPECT_EQ(wholeTally, QRTVdbAttrEO2_counters().privateModuleCount);
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(-wholeTally, tally);
    EXPECT_EQ(wholeTally, QRTVdbAttrEO2_counters().privateModuleCount)
        << "the tally that moves is the caller's";
    QRTVdbAttrEO2_initialize(tally);
    EXPECT_EQ(0, tally);
    QRTVdbAttrEO2_finalizeC();
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().privateModuleCount);
    EXPECT_EQ(0, QRTVdbAttrEO2_counters().outerCount);
}

TEST(ModuleEntry, CountsByItselfAndKeepsItsRegistrationsThroughTheLibrarys)
{
    int tally = 0;
    QRTVdbKamC_initialize(tally);
    EXPECT_EQ(1, tally);
    EXPECT_TRUE(IsUp());
    QRTVdbKamC_initialize(tally);
    EXPECT_EQ(1, tally) << "only the first initialization moves the tally";
    QRTVdbKamC_finalize(tally);
    EXPECT_EQ(1, tally);
    EXPECT_TRUE(IsUp());

    QRTVdbAttrEO2_initialize(tally);
    EXPECT_EQ(wholeTally, tally) << "the module was counted already";
    EXPECT_TRUE(IsUp());
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(1, tally) << "the module is still up";
    EXPECT_NE(nullptr, ddr_Model().ConstGetAmplitudes());
    QRTVdbKamC_finalize(tally);
    EXPECT_EQ(0, tally);
    EXPECT_EQ(nullptr, ddr_Model().ConstGetAmplitudes());
}

/// A function of the library by the name under which the file exports it.
template <class Function>
Function* Exported(void* library, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(library, name));
}

TEST(LibraryFile, ExportsBothPairsOfEntries)
{
    void* library = dlopen(OVR_LIBRARY, RTLD_NOW);
    ASSERT_NE(nullptr, library) << dlerror();
    auto* initializeC = Exported<void()>(library, "QRTVdbAttrEO2_initializeC");
    auto* finalizeC = Exported<void()>(library, "QRTVdbAttrEO2_finalizeC");
    auto* initialize = Exported<void(int&)>(library, "_Z24QRTVdbAttrEO2_initializeRi");
    auto* finalize = Exported<void(int&)>(library, "_Z22QRTVdbAttrEO2_finalizeRi");
    ASSERT_NE(nullptr, initializeC);
    ASSERT_NE(nullptr, finalizeC);
    ASSERT_NE(nullptr, initialize);
    ASSERT_NE(nullptr, finalize);
    initializeC();
    int tally = 0;
    initialize(tally);
    EXPECT_EQ(0, tally) << "the library is up already";
    EXPECT_TRUE(IsUp());
    finalize(tally);
    finalizeC();
    EXPECT_EQ(nullptr, ddr_Model().ConstGetAmplitudes());
    dlclose(library);
}

TEST(LibraryFile, HidesWhatItDoesNotExport)
{
    void* library = dlopen(OVR_LIBRARY, RTLD_NOW);
    ASSERT_NE(nullptr, library) << dlerror();
    EXPECT_NE(nullptr, dlsym(library, "_ZNK12kamC_Tabular11AssertValidEv"));
    EXPECT_EQ(nullptr, dlsym(library, "_Z18kamC_AssertSmoothd")) << "a helper of the amplitudes' own";
    dlclose(library);
}

} // namespace
