#include "omu_ChangeHistory.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

namespace
{

/// Sets a flag for as long as it lives.
class Raised
{
public:
    explicit Raised(bool& flag) : flag(flag) { flag = true; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag = false; }

private:
    bool& flag;
};

} // namespace

omu_ChangeHistory::omu_ChangeHistory() = default;

omu_ChangeHistory::~omu_ChangeHistory() = default;

void omu_ChangeHistory::addChange(omu_PrimTuple change)
{
    addChange(cow_String(), std::move(change));
}

void omu_ChangeHistory::addChange(const cow_String& path, omu_PrimTuple change)
{
    const omu_Change added{path, std::move(change)};
    changes.push_back(added);
    ++total;
    Trim();
    if (!listener || isTelling)
        return;
    const Raised telling(isTelling);
    // The listener may put another one, or none, in its own place.
    const Listener told = listener;
    told(added);
}

const omu_Change& omu_ChangeHistory::At(int position) const
{
    if (position < 0 || position >= Count())
        std::abort();
    return changes[static_cast<std::size_t>(position)];
}

void omu_ChangeHistory::SetBound(int newBound)
{
    bound = std::max(newBound, 0);
    Trim();
}

void omu_ChangeHistory::SetListener(Listener newListener)
{
    listener = std::move(newListener);
}

void omu_ChangeHistory::Trim()
{
    while (Count() > bound)
        changes.pop_front();
}

cow_String omu_ChangeHistory::AsText() const
{
    std::string text;
    for (const omu_Change& change : changes)
    {
        text += omu_TextOfChange(change).CString();
        text += '\n';
    }
    return cow_String(text.c_str());
}

cow_String omu_TextOfChange(const omu_Change& change)
{
    const cow_String text = change.change.AsString(0);
    if (change.path.IsEmpty())
        return text;
    return cow_String(change.path).append(": ").append(text);
}
