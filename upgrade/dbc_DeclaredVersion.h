#pragma once

#include "dbc_OldClassRegistrar.h"
#include "dbc_OldForm.h"

#include <typeinfo>

// An old version of a class is one declaration, from which come its class, its description, its step and its
// entry in the catalogue:
//
//     DBC_OLD_CLASS(kamC_Amplitude, 208, dbc_Root(0x2440002),
//                   dbc_Step(424, DBC_FUNCTION(Upgrade_kamC_Amplitude_208_424)),
//                   dbc_Enum(1, "definition"), dbc_Enum(2, "time"))
//
// declares kamC_Amplitude_208: the form of kamC_Amplitude at version 208, a root, which the function brings
// to version 424, and its attributes with the indices that they had. A module registers its old versions with
// `dbc_RegisterOldClasses`. docs/upgrades.md tells the whole procedure.

/// An old class version that is described by data.
class OVR_EXPORT dbc_DeclaredVersion : public dbc_OldClassVersion
{
public:
    void InitializeMetadata(cls_ClassRegistrar& registrar) override;
    void SchemaChanges(dbc_DatabaseConverter& converter) override;
    void ClassesToDelete(dbc_DatabaseConverter& converter) override;
    void ClassesToRename(dbc_DatabaseConverter& converter) override;

    virtual const dbc_OldForm& Form() const = 0;
};

/// The form in the body of a class `Class_Version` that has more to it than a form: members, or tables to
/// move.
#define DBC_OLD_FORM(Class, Version, Identity, Step, ...)                                                    \
public:                                                                                                      \
    static constexpr auto dbc_attributes = dbc_Attributes(__VA_ARGS__);                                      \
    static constexpr dbc_OldForm dbc_form{#Class, Version, Identity, Step, dbc_attributes};                  \
    const dbc_OldForm& Form() const override                                                                 \
    {                                                                                                        \
        return dbc_form;                                                                                     \
    }

/// The class `Class_Version`, an old form of `Class`: identity, step, attributes in stored order.
#define DBC_OLD_CLASS(Class, Version, Identity, Step, ...)                                                   \
    class Class##_##Version : public dbc_DeclaredVersion                                                     \
    {                                                                                                        \
        DBC_OLD_FORM(Class, Version, Identity, Step, __VA_ARGS__)                                            \
    };

namespace dbc_detail
{

template <class Version>
void RegisterOldClass(unsigned mask)
{
    dbc_OldClassRegistrar& registrar = *omi_Singleton<dbc_OldClassRegistrar>::Instance();
    if (!registrar.Has(typeid(Version)))
        registrar.Register(cow_NewHolder<dbc_OldClassVersion>(new Version), mask);
}

} // namespace dbc_detail

/// Hands old versions to the host in the order given. One that is registered already, because its module was
/// brought up before, is not registered again.
template <class... Versions>
void dbc_RegisterOldClasses(unsigned mask)
{
    (dbc_detail::RegisterOldClass<Versions>(mask), ...);
}
