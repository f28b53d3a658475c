#pragma once

#include "RandomValue.h"
#include "tst_EveryKind.h"

#include <gtest/gtest.h>

// Tests of these suites run over every class that the library registers, and over one with every kind of
// attribute, so that a new class is covered as soon as it is declared.

inline std::vector<const cls_Description*> EveryClasses(bool concreteOnly)
{
    tst_RequireEveryKind();
    std::vector<const cls_Description*> classes;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        if (!concreteOnly || !description->IsAbstract())
            classes.push_back(description);
    }
    return classes;
}

inline std::string EveryClassName(const testing::TestParamInfo<const cls_Description*>& info)
{
    return info.param->Name();
}

/// Identities of all layers of an object, the outermost first.
inline std::vector<cls_Uid> UidsOf(const cls_Description& description, const void* object)
{
    std::vector<cls_Uid> uids;
    for (const cls_Description* layer = &description; layer; layer = layer->Base())
        uids.push_back(layer->Info().uid(object));
    return uids;
}

class EveryClass : public testing::TestWithParam<const cls_Description*>
{
protected:
    const cls_Description& description = *GetParam();
};

class EveryConcreteClass : public EveryClass
{
protected:
    static constexpr std::uint32_t seeds = 40;

    cls_AnyObject NewObject() const { return cls_AnyObject(description, description.Info().create()); }

    /// An object with random values, and its value.
    cls_AnyObject RandomObject(std::uint32_t seed, cls_Value& value) const
    {
        value = RandomValue(seed).ObjectOf(description);
        cls_AnyObject object = NewObject();
        description.Import(object.Get(), value);
        return object;
    }
};
