#pragma once

#include "omu_PrimTuple.h"

#include <deque>
#include <functional>

/// One change: what was changed, and how. `path` names the repository that reported it, or is empty;
/// `change` is a tuple such as ("Insert", "A", -99).
struct omu_Change
{
    cow_String path;
    omu_PrimTuple change;
};

/// The last changes of the model, for a user interface that follows them. There is one for each thread,
/// reached through thr_ThreadSingleton<omu_ChangeHistory>.
class OVR_EXPORT omu_ChangeHistory
{
public:
    using Listener = std::function<void(const omu_Change&)>;

    /// The bound of a new history.
    static constexpr int DefaultBound = 1000;

    omu_ChangeHistory();
    omu_ChangeHistory(const omu_ChangeHistory&) = delete;
    omu_ChangeHistory& operator=(const omu_ChangeHistory&) = delete;
    ~omu_ChangeHistory();

    /// Adds a change, dropping the oldest one above the bound, and tells the listener.
    void addChange(omu_PrimTuple change);
    void addChange(const cow_String& path, omu_PrimTuple change);

    /// Number of changes kept.
    int Count() const { return static_cast<int>(changes.size()); }
    /// The change at a position below Count(), the oldest first; a bad position aborts.
    const omu_Change& At(int position) const;
    /// Number of changes ever added, those that were dropped included.
    long Total() const { return total; }

    int Bound() const { return bound; }
    /// How many changes are kept at most; less than 0 stands for 0. Drops the oldest ones above it.
    void SetBound(int newBound);
    /// Drops all changes.
    void Clear() { changes.clear(); }

    /// Is called with each change after it was made; an empty function ends that. What it throws reaches who
    /// made the change. Changes that the listener itself makes are added, and it is not told of them.
    void SetListener(Listener newListener);

    /// A line for each change, the oldest first: the path and a colon, if there is one, and the tuple.
    cow_String AsText() const;

private:
    void Trim();

    std::deque<omu_Change> changes;
    int bound = DefaultBound;
    long total = 0;
    Listener listener;
    bool isTelling = false;
};

/// A change as a line of text, without its end: `amplitudes: ("Insert", "A", -99)`.
OVR_EXPORT cow_String omu_TextOfChange(const omu_Change& change);
