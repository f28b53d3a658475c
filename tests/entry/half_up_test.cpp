// A module whose initialization fails halfway, for lack of memory.

#include "QRTVdbKamC.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"
#include "ddr_Model.h"
#include "mem_Allocation.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace
{

bool isOutOfMemory = false;

void* NewBlock(std::size_t size)
{
    void* const block = isOutOfMemory ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

} // namespace

// The library's own objects come from the host's memory functions; what the registrars keep comes from here.
void* operator new(std::size_t size)
{
    return NewBlock(size);
}

void* operator new[](std::size_t size)
{
    return NewBlock(size);
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}

namespace
{

void ForgetRegistrations()
{
    omi_Singleton<cls_MetadataRegistrar>::Finalize();
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
}

TEST(ModuleEntry, StaysHalfUpWhenTheHostFails)
{
    int tally = 0;
    // What the host makes once for the whole process is there from then on; the registrars are made anew.
    QRTVdbKamC_initialize(tally);
    QRTVdbKamC_finalize(tally);
    ForgetRegistrations();
    const std::size_t blocks = mem_BlocksInUse();
    isOutOfMemory = true;
    EXPECT_THROW(QRTVdbKamC_initialize(tally), std::bad_alloc);
    isOutOfMemory = false;
    EXPECT_EQ(1, tally) << "what it was given it keeps";
    EXPECT_NE(nullptr, ddr_Model().ConstGetAmplitudes()) << "the step before the failing one is done";
    EXPECT_EQ(0u, omi_Singleton<cls_MetadataRegistrar>::Instance()->Count());

    QRTVdbKamC_initialize(tally);
    EXPECT_EQ(1, tally);
    EXPECT_EQ(0u, omi_Singleton<cls_MetadataRegistrar>::Instance()->Count()) << "nothing is tried again";
    QRTVdbKamC_finalize(tally);
    QRTVdbKamC_finalize(tally);
    EXPECT_EQ(0, tally);
    EXPECT_EQ(nullptr, ddr_Model().ConstGetAmplitudes());
    ForgetRegistrations();
    EXPECT_EQ(blocks, mem_BlocksInUse()) << "container and wrapper went on the way";
}

} // namespace
