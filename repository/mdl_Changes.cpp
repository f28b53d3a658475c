#include "mdl_Changes.h"

#include "omu_ChangeHistory.h"
#include "thr_ThreadSingleton.h"

namespace
{

/// Stands in an insertion where the history has always had a number, which nobody reads.
constexpr int insertMark = -99;

void Enter(const cow_String& path, const omu_PrimTuple& change)
{
    omu_ChangeHistory& history = *thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    if (path.IsEmpty())
        history.addChange(change);
    else
        history.addChange(path, change);
}

template <class K>
omu_PrimTuple ChangeOf(const char* word, const K& key, int slots)
{
    omu_PrimTuple change(slots, '(');
    change.Put(word);
    change.Put(key);
    return change;
}

template <class K>
void EnterInsert(const cow_String& path, const K& key)
{
    omu_PrimTuple change = ChangeOf("Insert", key, 4);
    change.Put(insertMark);
    Enter(path, change);
}

} // namespace

void mdl_RecordChange(const cow_String& path, const char* word, const cow_String& key, int slots)
{
    Enter(path, ChangeOf(word, key, slots));
}

void mdl_RecordChange(const cow_String& path, const char* word, int key, int slots)
{
    Enter(path, ChangeOf(word, key, slots));
}

void mdl_RecordInsert(const cow_String& path, const cow_String& key)
{
    EnterInsert(path, key);
}

void mdl_RecordInsert(const cow_String& path, int key)
{
    EnterInsert(path, key);
}
