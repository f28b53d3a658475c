#include "omi_Singleton.h"

#include "QRTBasUtlVersion.h"
#include "thr_GlobalSingleton.h"
#include "thr_ThreadSingleton.h"
#include "utl_CommandLine.h"

#include <gtest/gtest.h>
#include <stdexcept>

// Singletons need classes of one name in the whole process, so these stand outside of the anonymous
// namespace.

class test_Plain : public omi_SingletonBase<test_Plain>
{
public:
    test_Plain() { ++made; }
    ~test_Plain() { ++deleted; }

    static inline int made = 0;
    static inline int deleted = 0;
};

struct test_OtherBase
{
    virtual ~test_OtherBase() = default;
    int number = 1;
};

class test_WithBases : public test_OtherBase, public omi_SingletonBase<test_WithBases>
{
public:
    int own = 2;
};

class test_Throwing : public omi_SingletonBase<test_Throwing>
{
public:
    test_Throwing()
    {
        if (fails)
            throw std::runtime_error("not yet");
    }

    static inline bool fails = true;
};

class test_Twice : public omi_SingletonBase<test_Twice>
{
public:
    test_Twice()
    {
        if (!makesAnother)
            return;
        makesAnother = false;
        static test_Twice another;
    }

    static inline bool makesAnother = true;
};

namespace
{
void* Registered(const char* name)
{
    return omi_SingletonRegistry::Instance()->Get(name);
}

TEST(omi_SingletonRegistry, KeepsInstancesByName)
{
    int first = 0;
    int second = 0;
    omi_SingletonRegistry* registry = omi_SingletonRegistry::Instance();
    EXPECT_EQ(registry, omi_SingletonRegistry::Instance());
    EXPECT_EQ(registry->Get("test_name"), nullptr);
    registry->Add("test_name", &first);
    EXPECT_EQ(registry->Get("test_name"), &first);
    registry->Add("test_name", &second);
    EXPECT_EQ(registry->Get("test_name"), &second);
    registry->Remove("test_name");
    registry->Remove("test_name");
    EXPECT_EQ(registry->Get("test_name"), nullptr);
}

TEST(omi_Singleton, IsMadeOnceAndAgainAfterItsDeletion)
{
    EXPECT_EQ(Registered("test_Plain"), nullptr);
    test_Plain* instance = omi_Singleton<test_Plain>::Instance();
    EXPECT_EQ(omi_Singleton<test_Plain>::Instance(), instance);
    EXPECT_EQ(Registered("test_Plain"), instance);
    EXPECT_EQ(test_Plain::made, 1);
    omi_Singleton<test_Plain>::Finalize();
    EXPECT_EQ(test_Plain::deleted, 1);
    EXPECT_EQ(Registered("test_Plain"), nullptr);
    omi_Singleton<test_Plain>::Finalize();
    EXPECT_EQ(test_Plain::deleted, 1);
    omi_Singleton<test_Plain>::Instance();
    EXPECT_EQ(test_Plain::made, 2);
    omi_Singleton<test_Plain>::Finalize();
}

TEST(omi_Singleton, CanBeTakenOffTheRegistryBeforeItIsDeleted)
{
    test_Plain* instance = omi_Singleton<test_Plain>::Instance();
    omi_SingletonRegistry::Instance()->Remove("test_Plain");
    EXPECT_EQ(Registered("test_Plain"), nullptr);
    EXPECT_EQ(omi_Singleton<test_Plain>::Instance(), instance);
    const int deleted = test_Plain::deleted;
    omi_Singleton<test_Plain>::Finalize();
    EXPECT_EQ(test_Plain::deleted, deleted + 1);
}

TEST(omi_Singleton, MayHaveOtherBases)
{
    test_WithBases* instance = omi_Singleton<test_WithBases>::Instance();
    EXPECT_EQ(instance->number, 1);
    EXPECT_EQ(instance->own, 2);
    EXPECT_EQ(omi_Singleton<test_WithBases>::Instance(), instance);
    omi_Singleton<test_WithBases>::Finalize();
    EXPECT_EQ(Registered("test_WithBases"), nullptr);
}

TEST(omi_Singleton, AFailedConstructorLeavesNone)
{
    EXPECT_THROW(omi_Singleton<test_Throwing>::Instance(), std::runtime_error);
    EXPECT_EQ(Registered("test_Throwing"), nullptr);
    test_Throwing::fails = false;
    EXPECT_NE(omi_Singleton<test_Throwing>::Instance(), nullptr);
    omi_Singleton<test_Throwing>::Finalize();
}

TEST(omi_SingletonDeathTest, AbortsWhenAnotherObjectTakesThePlace)
{
    EXPECT_DEATH(omi_Singleton<test_Twice>::Instance(), "");
}

TEST(thr_Singletons, AreMadeOnce)
{
    cow_String* perThread = thr_ThreadSingleton<cow_String>::Instance();
    cow_String* global = thr_GlobalSingleton<cow_String>::Instance();
    EXPECT_NE(perThread, global);
    perThread->append("kept");
    EXPECT_EQ(*thr_ThreadSingleton<cow_String>::Instance(), "kept");
    EXPECT_EQ(thr_GlobalSingleton<cow_String>::Instance(), global);
}

TEST(utl_CommandLine, HoldsWordsAndValues)
{
    utl_CommandLine* line = thr_GlobalSingleton<utl_CommandLine>::Instance();
    EXPECT_FALSE(line->IsMember("mode"));
    EXPECT_TRUE(line->ConstGetValue("mode").IsEmpty());
    line->Insert("mode", "check");
    line->Insert("quiet", "");
    line->Insert("mode", "upgrade");
    EXPECT_TRUE(line->IsMember("quiet"));
    EXPECT_EQ(line->ConstGetValue("quiet"), "");
    EXPECT_EQ(thr_GlobalSingleton<utl_CommandLine>::Instance()->ConstGetValue("mode"), "upgrade");
    EXPECT_FALSE(line->IsMember("Mode"));
}

TEST(QRTBasUtlVersion, IsAboveTheSchemaVersions)
{
    EXPECT_EQ(omi_Singleton<QRTBasUtlVersion>::Instance()->InternalVersion(), 2600);
}
} // namespace
