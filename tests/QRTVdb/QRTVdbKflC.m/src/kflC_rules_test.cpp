#include "RuleTest.h"
#include "kflC_ButterworthFilter.h"
#include "kflC_Chebyshev1Filter.h"
#include "kflC_Chebyshev2Filter.h"
#include "kflC_OperatorFilter.h"

#include <cmath>

namespace
{

const std::string badLimit = "The limit value must be positive.";
const std::string limitAlone = "Limit requires that operation is specified.";
const std::string haltAlone = "Halt requires that limit is specified..";
const std::string badCutoff = "Cutoff frequency must be greater than 0.";
const std::string badOrder = "Order must be a positive value less than or equal to 20.";
const std::string badRipple1 = "Ripple factor must be greater than 0.";
const std::string badRipple2 = "Ripple factor must be greater than 0 and less than or equal to 1.";
const std::string cutoffUnused = "The cutoffFrequency value is not used by the operator filter.";
const std::string orderUnused = "The order value is not used by the operator filter.";
const std::string noOperation = "The operator filter requires an operation value.";
const std::string invariantAlone = "Invariant requires an operation value.";

using Operation = kflC_Filter::OperationEnm;
using Invariant = kflC_Filter::InvariantEnm;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double least = std::numeric_limits<double>::denorm_min();
constexpr double unset = 1.7976931348623157e308;

/// A filter that its kind has nothing to say to.
template <class T>
T Valid()
{
    T filter;
    filter.cutoffFrequency = 10.0;
    return filter;
}

template <>
kflC_Filter Valid()
{
    return kflC_Filter();
}

template <>
kflC_OperatorFilter Valid()
{
    kflC_OperatorFilter filter;
    filter.operation = Operation::MAX;
    return filter;
}

/// The rules of the base, as far as an operator filter, which wants an operation, can be brought to them. A
/// verdict on a filter without operation is that of the base wherever it is a refusal.
template <class T>
std::vector<RuleRow<T>> BaseRows()
{
    const std::string plainVerdict = std::is_same_v<T, kflC_OperatorFilter> ? noOperation : passes;
    const auto with = [](Operation operation, double limit)
    {
        return [=](T& f)
        {
            f.operation = operation;
            f.limit = limit;
        };
    };
    return {
        {"no operation", with(Operation::NONE, unset), plainVerdict},
        {"ABS without limit", with(Operation::ABS, unset), passes},
        {"ABS, limit 0", with(Operation::ABS, 0.0), badLimit},
        {"ABS, limit -0", with(Operation::ABS, -0.0), badLimit},
        {"ABS, the least limit", with(Operation::ABS, least), passes},
        {"ABS, limit just below 0", with(Operation::ABS, -least), badLimit},
        {"ABS, limit infinite", with(Operation::ABS, infinity), passes},
        {"ABS, limit NaN", with(Operation::ABS, notANumber), badLimit},
        {"MIN, limit 0", with(Operation::MIN, 0.0), passes},
        {"MAX, limit -1", with(Operation::MAX, -1.0), passes},
        {"MAX, limit NaN", with(Operation::MAX, notANumber), passes},
        {"limit without operation", with(Operation::NONE, 1.0), limitAlone},
        {"limit 0 without operation", with(Operation::NONE, 0.0), limitAlone},
        {"limit NaN without operation", with(Operation::NONE, notANumber), limitAlone},
        {"limit just below the marker without operation", with(Operation::NONE, std::nextafter(unset, 0.0)),
         limitAlone},
        {"limit infinite without operation", with(Operation::NONE, infinity), limitAlone},
        {"the negative of the marker without operation", with(Operation::NONE, -unset), limitAlone},
        {"halt without limit",
         [](T& f)
         {
             f.operation = Operation::MAX;
             f.halt = true;
         },
         haltAlone},
        {"halt with limit",
         [](T& f)
         {
             f.operation = Operation::MAX;
             f.halt = true;
             f.limit = 0.0;
         },
         passes},
        {"halt without operation",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.halt = true;
         },
         haltAlone},
        {"halt with a limit without operation",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.halt = true;
             f.limit = 1.0;
         },
         limitAlone},
        {"invariant without operation",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.invariant = Invariant::FIRST;
         },
         invariantAlone},
        {"invariant with operation",
         [](T& f)
         {
             f.operation = Operation::MIN;
             f.invariant = Invariant::SECOND;
         },
         passes},
        {"halt before invariant",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.halt = true;
             f.invariant = Invariant::FIRST;
         },
         haltAlone},
        {"limit without operation before halt and invariant",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.limit = 1.0;
             f.halt = true;
             f.invariant = Invariant::FIRST;
         },
         limitAlone},
        {"a bad limit before halt",
         [](T& f)
         {
             f.operation = Operation::ABS;
             f.limit = -1.0;
             f.halt = true;
         },
         badLimit},
        {"the base before the kind",
         [](T& f)
         {
             f.operation = Operation::NONE;
             f.invariant = Invariant::FIRST;
             f.cutoffFrequency = -1.0;
             f.order = 0;
         },
         invariantAlone},
    };
}

/// The rules that all kinds with a cutoff share.
template <class T>
std::vector<RuleRow<T>> CutoffRows()
{
    return {
        {"cutoff 0", [](T& f) { f.cutoffFrequency = 0.0; }, badCutoff},
        {"cutoff -0", [](T& f) { f.cutoffFrequency = -0.0; }, badCutoff},
        {"the least cutoff", [](T& f) { f.cutoffFrequency = least; }, passes},
        {"cutoff just below 0", [](T& f) { f.cutoffFrequency = -least; }, badCutoff},
        {"cutoff infinite", [](T& f) { f.cutoffFrequency = infinity; }, passes},
        {"cutoff NaN", [](T& f) { f.cutoffFrequency = notANumber; }, badCutoff},
        {"order 0", [](T& f) { f.order = 0; }, badOrder},
        {"order 1", [](T& f) { f.order = 1; }, passes},
        {"order 20", [](T& f) { f.order = 20; }, passes},
        {"order 21", [](T& f) { f.order = 21; }, badOrder},
        {"order -1", [](T& f) { f.order = -1; }, badOrder},
        {"the largest order", [](T& f) { f.order = std::numeric_limits<int>::max(); }, badOrder},
        {"cutoff before order",
         [](T& f)
         {
             f.cutoffFrequency = 0.0;
             f.order = 0;
         },
         badCutoff},
    };
}

template <class T>
std::vector<RuleRow<T>> RippleRows(const std::string& badRipple)
{
    return {
        {"ripple 0", [](T& f) { f.rippleFactor = 0.0; }, badRipple},
        {"ripple -0", [](T& f) { f.rippleFactor = -0.0; }, badRipple},
        {"the least ripple", [](T& f) { f.rippleFactor = least; }, passes},
        {"ripple just below 0", [](T& f) { f.rippleFactor = -least; }, badRipple},
        {"ripple 1", [](T& f) { f.rippleFactor = 1.0; }, passes},
        {"ripple NaN", [](T& f) { f.rippleFactor = notANumber; }, badRipple},
        {"cutoff before ripple",
         [](T& f)
         {
             f.cutoffFrequency = 0.0;
             f.rippleFactor = 0.0;
         },
         badCutoff},
        {"ripple before order",
         [](T& f)
         {
             f.rippleFactor = 0.0;
             f.order = 21;
         },
         badRipple},
    };
}

TEST(kflC_Filter, HasTheRulesOfAllFilters)
{
    CheckRules(Valid<kflC_Filter>(), BaseRows<kflC_Filter>());
}

TEST(kflC_Filter, AsksNothingOfCutoffAndOrder)
{
    kflC_Filter filter;
    filter.cutoffFrequency = notANumber;
    filter.order = -1;
    EXPECT_EQ(passes, Verdict(filter));
}

TEST(kflC_ButterworthFilter, HasItsRules)
{
    const auto valid = Valid<kflC_ButterworthFilter>();
    CheckRules(valid, BaseRows<kflC_ButterworthFilter>());
    CheckRules(valid, CutoffRows<kflC_ButterworthFilter>());
}

TEST(kflC_Chebyshev1Filter, HasItsRules)
{
    using Filter = kflC_Chebyshev1Filter;
    const auto valid = Valid<Filter>();
    CheckRules(valid, BaseRows<Filter>());
    CheckRules(valid, CutoffRows<Filter>());
    CheckRules(valid, RippleRows<Filter>(badRipple1));
    CheckRules(valid, {{"ripple above 1", [](Filter& f) { f.rippleFactor = 1.5; }, passes},
                       {"ripple infinite", [](Filter& f) { f.rippleFactor = infinity; }, passes}});
}

TEST(kflC_Chebyshev2Filter, HasItsRules)
{
    using Filter = kflC_Chebyshev2Filter;
    const auto valid = Valid<Filter>();
    CheckRules(valid, BaseRows<Filter>());
    CheckRules(valid, CutoffRows<Filter>());
    CheckRules(valid, RippleRows<Filter>(badRipple2));
    CheckRules(valid, {{"ripple just above 1", [](Filter& f) { f.rippleFactor = std::nextafter(1.0, 2.0); },
                        badRipple2},
                       {"ripple infinite", [](Filter& f) { f.rippleFactor = infinity; }, badRipple2}});
}

TEST(kflC_OperatorFilter, HasItsRules)
{
    using Filter = kflC_OperatorFilter;
    const auto valid = Valid<Filter>();
    CheckRules(valid, BaseRows<Filter>());
    CheckRules(valid, {{"cutoff -0", [](Filter& f) { f.cutoffFrequency = -0.0; }, passes},
                       {"the least cutoff", [](Filter& f) { f.cutoffFrequency = least; }, cutoffUnused},
                       {"cutoff NaN", [](Filter& f) { f.cutoffFrequency = notANumber; }, cutoffUnused},
                       {"order 3", [](Filter& f) { f.order = 3; }, orderUnused},
                       {"order 1", [](Filter& f) { f.order = 1; }, orderUnused},
                       {"cutoff before order",
                        [](Filter& f)
                        {
                            f.cutoffFrequency = 1.0;
                            f.order = 3;
                        },
                        cutoffUnused},
                       {"order before operation",
                        [](Filter& f)
                        {
                            f.order = 3;
                            f.operation = Operation::NONE;
                        },
                        orderUnused}});
}

TEST(kflC_Filters, AreRefusedAsNewButTheBase)
{
    EXPECT_EQ(passes, Verdict(kflC_Filter()));
    EXPECT_EQ(badCutoff, Verdict(kflC_ButterworthFilter()));
    EXPECT_EQ(badCutoff, Verdict(kflC_Chebyshev1Filter()));
    EXPECT_EQ(badCutoff, Verdict(kflC_Chebyshev2Filter()));
    EXPECT_EQ(noOperation, Verdict(kflC_OperatorFilter()));
}

} // namespace
