#include "omu_ChangeHistory.h"

#include "thr_ThreadSingleton.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{

omu_PrimTuple Inserted(const char* name)
{
    omu_PrimTuple change(4, '(');
    change.Put("Insert");
    change.Put(name);
    change.Put(-99);
    return change;
}

TEST(ChangeHistory, ReadsAsText)
{
    omu_ChangeHistory history;
    EXPECT_EQ(history.AsText(), "");
    history.addChange(Inserted("A"));
    history.addChange("amplitudes", Inserted("it's \"B\""));
    EXPECT_EQ(history.AsText(), "(\"Insert\", \"A\", -99)\n"
                                "amplitudes: (\"Insert\", \"it's \\\"B\\\"\", -99)\n");
    ASSERT_EQ(history.Count(), 2);
    EXPECT_TRUE(history.At(0).path.IsEmpty());
    EXPECT_EQ(history.At(1).path, "amplitudes");
    EXPECT_EQ(history.At(1).change.Capacity(), 4);
}

TEST(ChangeHistory, KeepsTheLastChanges)
{
    omu_ChangeHistory history;
    EXPECT_EQ(history.Bound(), omu_ChangeHistory::DefaultBound);
    history.SetBound(2);
    for (const char* name : {"A", "B", "C"})
        history.addChange(Inserted(name));
    EXPECT_EQ(history.Count(), 2);
    EXPECT_EQ(history.Total(), 3);
    EXPECT_EQ(history.At(0).change.AsRepr(), "('Insert', 'B', -99)");
    history.SetBound(1);
    EXPECT_EQ(history.Count(), 1);
    EXPECT_EQ(history.At(0).change.AsRepr(), "('Insert', 'C', -99)");
    history.SetBound(-1);
    EXPECT_EQ(history.Bound(), 0);
    history.addChange(Inserted("D"));
    EXPECT_EQ(history.Count(), 0);
    EXPECT_EQ(history.Total(), 4);
}

TEST(ChangeHistory, ForgetsWhenCleared)
{
    omu_ChangeHistory history;
    history.addChange(Inserted("A"));
    history.Clear();
    EXPECT_EQ(history.Count(), 0);
    EXPECT_EQ(history.Total(), 1);
}

TEST(ChangeHistory, KeepsTheTupleAsItWas)
{
    omu_ChangeHistory history;
    omu_PrimTuple change = Inserted("A");
    history.addChange(change);
    change.Put("more");
    EXPECT_EQ(history.At(0).change.Count(), 3);
}

TEST(ChangeHistory, TellsItsListener)
{
    omu_ChangeHistory history;
    history.SetBound(0);
    std::vector<std::string> told;
    history.SetListener([&told](const omu_Change& change)
                        { told.emplace_back(omu_TextOfChange(change).CString()); });
    history.addChange("amplitudes", Inserted("A"));
    history.SetListener(nullptr);
    history.addChange(Inserted("B"));
    EXPECT_EQ(told, std::vector<std::string>{"amplitudes: (\"Insert\", \"A\", -99)"});
}

TEST(ChangeHistory, DoesNotTellAListenerOfItsOwnChanges)
{
    omu_ChangeHistory history;
    int told = 0;
    history.SetListener(
        [&](const omu_Change&)
        {
            ++told;
            history.addChange(Inserted("by the listener"));
        });
    history.addChange(Inserted("A"));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(history.Count(), 2);
    history.addChange(Inserted("B"));
    EXPECT_EQ(told, 2);
}

TEST(ChangeHistory, AListenerMayEndItselfAndMayThrow)
{
    omu_ChangeHistory history;
    history.SetListener(
        [&history](const omu_Change&)
        {
            history.SetListener(nullptr);
            throw std::runtime_error("enough");
        });
    EXPECT_THROW(history.addChange(Inserted("A")), std::runtime_error);
    EXPECT_EQ(history.Count(), 1) << "the change was made";
    EXPECT_NO_THROW(history.addChange(Inserted("B")));

    int told = 0;
    history.SetListener(
        [&told](const omu_Change&)
        {
            if (++told == 1)
                throw std::runtime_error("once");
        });
    EXPECT_THROW(history.addChange(Inserted("C")), std::runtime_error);
    history.addChange(Inserted("D"));
    EXPECT_EQ(told, 2) << "an exception must not silence the listener";
}

TEST(ChangeHistory, IsOneForEachThread)
{
    using History = thr_ThreadSingleton<omu_ChangeHistory>;
    EXPECT_EQ(History::Instance(), History::Instance());
    omu_ChangeHistory* other = nullptr;
    std::thread([&other] { other = History::Instance(); }).join();
    EXPECT_NE(other, History::Instance());
    EXPECT_NE(other, nullptr);
}

TEST(ChangeHistoryDeathTest, ABadPositionEndsTheProcess)
{
    const omu_ChangeHistory history;
    EXPECT_DEATH(history.At(0), "");
    EXPECT_DEATH(history.At(-1), "");
}

} // namespace
