// Random operations on a list with live copies and live iterators, against std::vector.

#include "cow_List.h"
#include "cow_ListIter.h"

#include "cow_Tracked.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <type_traits>
#include <vector>

namespace
{
using Handle = cow_ArrayCOW<Tracked, cow_Direct<Tracked>>;

/// What the test needs to know of an element type.
template <class T>
struct Element
{
    static T Make(int number) { return T(number); }
    static int Number(const T& element) { return static_cast<int>(element); }
    static void Write(T* element, int number) { *element = T(number); }
};

template <>
struct Element<Tracked>
{
    static Tracked Make(int number) { return Tracked(number); }
    static int Number(const Tracked& element) { return element.Value(); }
    static void Write(Tracked* element, int number) { *element = Tracked(number); }
};

template <>
struct Element<Handle>
{
    static Handle Make(int number) { return Handle(cow_Direct<Tracked>::New(number)); }
    static int Number(const Handle& element) { return element->Value(); }
    static void Write(Handle* element, int number) { *element->Get() = Tracked(number); }
};

/// Kind, two numbers to choose from, and after how many copies one fails (when the kind of test wants
/// failures).
using Step = std::tuple<int, int, int, int>;

template <class T>
class Machine
{
public:
    explicit Machine(bool withFailures) : failures(withFailures) { lives.emplace_back(); }

    void Run(const Step& step)
    {
        const auto& [kind, a, b, copies] = step;
        Live& live = lives[static_cast<std::size_t>(b) % lives.size()];
        const int countBefore = live.list.Count();
        Tracked::FailAfter(failures ? copies : -1);
        try
        {
            Apply(kind, live, a, b);
        }
        catch (const Tracked::Failure&)
        {
            // The count stays, the order of what was being moved may not. Kinds of several steps stop in
            // between.
            const bool isOneStep = kind != setFromArray && kind != appendRun && kind != prependRun;
            RC_ASSERT(!isOneStep || live.list.Count() == countBefore);
            live.model = Numbers(live.list);
        }
        Tracked::FailAfter(-1);
        CheckAll();
    }

private:
    struct Live
    {
        cow_List<T> list;
        std::vector<int> model;
    };

    struct Walk
    {
        cow_ListIter<T> iter;
        std::vector<int> content;
    };

    enum Kind
    {
        append,
        prepend,
        insert,
        remove,
        pop,
        resize,
        fill,
        slice,
        concatenate,
        setFromArray,
        write,
        copy,
        assign,
        drop,
        walk,
        initialize,
        appendRun,
        prependRun,
        kinds
    };

public:
    static constexpr int kindCount = kinds;

private:
    void Apply(int kind, Live& live, int a, int b)
    {
        cow_List<T>& list = live.list;
        std::vector<int>& model = live.model;
        const int n = list.Count();
        const int at = n == 0 ? 0 : a % n;
        switch (kind)
        {
        case append:
            list.Append(Element<T>::Make(a));
            model.push_back(a);
            break;
        case prepend:
            list.Prepend(Element<T>::Make(a));
            model.insert(model.begin(), a);
            break;
        case insert:
        {
            const int place = a % (n + 1);
            list.InsertIndex(place, Element<T>::Make(b));
            model.insert(model.begin() + place, b);
            break;
        }
        case remove:
            if (n == 0)
                break;
            list.RemoveIndex(at);
            model.erase(model.begin() + at);
            break;
        case pop:
            if (n == 0)
                break;
            RC_ASSERT(Element<T>::Number(list.Pop()) == model.back());
            model.pop_back();
            break;
        case resize:
            list.Resize(a % 600);
            model.resize(std::min(model.size(), static_cast<std::size_t>(a % 600)));
            break;
        case fill:
            list.Fill(a % 400, Element<T>::Make(b));
            model.resize(std::max(model.size(), static_cast<std::size_t>(a % 400)), b);
            break;
        case slice:
        {
            const int end = at + (n == at ? 0 : b % (n - at + 1));
            live.list = list.Slice(at, end);
            model = std::vector<int>(model.begin() + at, model.begin() + end);
            break;
        }
        case concatenate:
        {
            const Live& other = lives[static_cast<std::size_t>(a) % lives.size()];
            if (n + other.list.Count() > 2000)
                break;
            const std::vector<int> added = other.model;
            list.Concatenate(other.list);
            model.insert(model.end(), added.begin(), added.end());
            break;
        }
        case setFromArray:
        {
            std::vector<T> array;
            std::vector<int> numbers;
            for (int i = 0; i < a % 100; ++i)
            {
                array.push_back(Element<T>::Make(i));
                numbers.push_back(i);
            }
            list.SetFromArray(array.data(), a % 100);
            model = numbers;
            break;
        }
        case write:
            if (n == 0)
                break;
            Element<T>::Write(list.Get(at), b);
            model[static_cast<std::size_t>(at)] = b;
            break;
        case copy:
        {
            const Live added = live;
            if (lives.size() < 6)
                lives.push_back(added);
            break;
        }
        case assign:
            live = Live(lives[static_cast<std::size_t>(a) % lives.size()]);
            break;
        case drop:
            if (lives.size() > 1)
                lives.erase(lives.begin() + b % static_cast<int>(lives.size()));
            break;
        case walk:
            if (walks.size() == 4)
                walks.erase(walks.begin() + a % 4);
            walks.push_back({cow_ListIter<T>(list), model});
            break;
        case initialize:
            list.Initialize(a);
            model.clear();
            break;
        case appendRun:
            for (int i = 0; i < a % 60; ++i)
                Apply(append, live, i, b);
            break;
        case prependRun:
            for (int i = 0; i < a % 60; ++i)
                Apply(prepend, live, i, b);
            break;
        }
    }

    static std::vector<int> Numbers(const cow_List<T>& list)
    {
        std::vector<int> numbers;
        for (const T& element : list)
            numbers.push_back(Element<T>::Number(element));
        return numbers;
    }

    static std::vector<int> Rest(cow_ListIter<T> iter)
    {
        std::vector<int> numbers;
        for (; !iter.AtEnd(); iter.Next())
            numbers.push_back(Element<T>::Number(iter.Element()));
        return numbers;
    }

    void CheckAll() const
    {
        for (const Live& live : lives)
        {
            const cow_List<T>& list = live.list;
            RC_ASSERT(list.Count() == static_cast<int>(live.model.size()));
            RC_ASSERT(Numbers(list) == live.model);
            for (int i = 0; i < list.Count(); i += 7)
                RC_ASSERT(Element<T>::Number(list[i]) == live.model[static_cast<std::size_t>(i)]);
            RC_ASSERT((list.TableSize() << list.BlockShift()) >= list.Offset() + list.Count());
            RC_ASSERT(list.Offset() >= 0);
        }
        for (const Walk& at : walks)
            RC_ASSERT(Rest(at.iter) == at.content);
    }

    bool failures;
    std::vector<Live> lives;
    std::vector<Walk> walks;
};

template <class T>
void CheckRandomSteps(bool withFailures)
{
    const auto number = rc::gen::inRange(0, 1000);
    const auto steps = *rc::gen::container<std::vector<Step>>(
        rc::gen::tuple(rc::gen::inRange(0, Machine<T>::kindCount), number, number, rc::gen::inRange(0, 60)));
    const std::size_t before = mem_BlocksInUse();
    const TrackedScope scope;
    {
        Machine<T> machine(withFailures);
        for (const Step& step : steps)
            machine.Run(step);
        RC_ASSERT(scope.Misuses() == 0u);
    }
    RC_ASSERT(scope.IsClean());
    RC_ASSERT(mem_BlocksInUse() == before);
}

RC_GTEST_PROP(cow_ListProperty, OfIntegers, ())
{
    CheckRandomSteps<int>(false);
}

RC_GTEST_PROP(cow_ListProperty, OfDoubles, ())
{
    CheckRandomSteps<double>(false);
}

RC_GTEST_PROP(cow_ListProperty, OfHandles, ())
{
    CheckRandomSteps<Handle>(false);
}

RC_GTEST_PROP(cow_ListProperty, OfTrackedElements, ())
{
    CheckRandomSteps<Tracked>(false);
}

RC_GTEST_PROP(cow_ListProperty, OfElementsWhoseCopiesFail, ())
{
    CheckRandomSteps<Tracked>(true);
}
} // namespace
