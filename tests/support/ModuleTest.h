#pragma once

#include "MessageTest.h"
#include "cls_MetadataRegistrar.h"
#include "cls_Module.h"

#include <limits>
#include <ostream>
#include <string>
#include <vector>

/// A class as a module registers it.
struct RegisteredClass
{
    std::string name;
    unsigned mask;

    friend bool operator==(const RegisteredClass&, const RegisteredClass&) = default;

    friend void PrintTo(const RegisteredClass& one, std::ostream* stream)
    {
        *stream << one.name << " under " << one.mask;
    }
};

/// What a module registered, in order.
inline std::vector<RegisteredClass> RegisteredClassesOf(unsigned moduleNumber)
{
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    std::vector<RegisteredClass> classes;
    for (std::size_t i = 0; i < registrar.Classes().Count(); ++i)
    {
        const cls_ClassMetadata& metadata = *registrar.Classes().At(i);
        if (metadata.ClassId() >> 16 == moduleNumber)
            classes.push_back({metadata.Name().CString(), registrar.Mask(metadata.ClassId())});
    }
    return classes;
}

/// Checks that a module's assert function throws exactly these texts, in order of their codes from 0 on, with
/// its own `file` as the place, an empty text for any other code, and nothing on true. `Code` is the type of
/// its codes.
template <class Code>
void CheckMessages(void (*assertFunction)(bool, Code), const char* file,
                   const std::vector<std::string>& texts)
{
    const auto message = [&](int code)
    { return MessageOf(file, [&] { assertFunction(false, static_cast<Code>(code)); }); };
    const int count = static_cast<int>(texts.size());
    for (int code = 0; code < count; ++code)
        EXPECT_EQ(texts[static_cast<std::size_t>(code)], message(code)) << code;
    for (const int code :
         {-1, count, count + 1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ("", message(code)) << code;
        EXPECT_NO_THROW(assertFunction(true, static_cast<Code>(code))) << code;
    }
    EXPECT_NO_THROW(assertFunction(true, static_cast<Code>(0)));
}
