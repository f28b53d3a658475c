#pragma once

#include <cstddef>
#include <stdexcept>
#include <unordered_set>

/// An element that knows whether it is alive, and whose copies can be made to fail. Construction over a live
/// object and destruction or use of a dead one are counted as misuse.
class Tracked
{
public:
    struct Failure : std::runtime_error
    {
        Failure() : std::runtime_error("copy failed") {}
    };

    Tracked() : Tracked(0) {}
    explicit Tracked(int number) : value(number) { Begin(); }
    Tracked(const Tracked& other) : value(other.Value())
    {
        CountDown();
        Begin();
    }
    Tracked& operator=(const Tracked& other)
    {
        CountDown();
        misuses += static_cast<std::size_t>(!IsAlive());
        value = other.Value();
        return *this;
    }
    ~Tracked() { misuses += 1 - live.erase(this); }

    int Value() const
    {
        misuses += static_cast<std::size_t>(!IsAlive());
        return value;
    }

    bool operator==(const Tracked& other) const { return Value() == other.Value(); }

    static std::size_t LiveCount() { return live.size(); }
    static std::size_t Misuses() { return misuses; }

    /// The copy after the next `copies` ones throws Failure, once; a negative number takes that back.
    static void FailAfter(int copies) { countDown = copies; }

private:
    bool IsAlive() const { return live.count(this) == 1; }
    void Begin() { misuses += static_cast<std::size_t>(!live.insert(this).second); }
    static void CountDown()
    {
        if (countDown >= 0 && countDown-- == 0)
            throw Failure();
    }

    static inline std::unordered_set<const Tracked*> live;
    static inline std::size_t misuses = 0;
    static inline int countDown = -1;

    int value;
};

/// Checks at its end that everything tracked since its beginning is gone and was used as it should.
class TrackedScope
{
public:
    TrackedScope() : liveBefore(Tracked::LiveCount()), misusesBefore(Tracked::Misuses()) {}

    std::size_t Live() const { return Tracked::LiveCount() - liveBefore; }
    std::size_t Misuses() const { return Tracked::Misuses() - misusesBefore; }
    bool IsClean() const { return Live() == 0 && Misuses() == 0; }

private:
    std::size_t liveBefore;
    std::size_t misusesBefore;
};
