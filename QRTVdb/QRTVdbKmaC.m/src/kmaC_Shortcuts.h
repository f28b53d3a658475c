#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "ddr_SequenceShortcut.h"
#include "kmaC_OptionLookup.h"

DDR_SHORTCUT(kmaC_Material, 0x2380067, 0x2380069)
DDR_SHORTCUT(kmaC_MaterialContainer, 0x238006A, 0x238006B)
DDR_SHORTCUT(kmaC_MaterialOption, 0x238006C, 0x238006F)
DDR_SHORTCUT(kmaC_MatOptionList, 0x2380088, 0x2380089)
DDR_MODEL_STEP(kmaC_MaterialContainer, 0x238007C, Materials,
               "QRTVdb/QRTVdbKmaC.m/src/kmaC_MaterialContainerShortcut")
DDR_DICTIONARY_STEP(kmaC_MaterialContainer, kmaC_Material, 1, 0x2380068)
DDR_SEQUENCE_STEP(kmaC_MatOptionList, kmaC_MaterialOption, 1, 0x238008A)

/// What the steps by name from a material and from an option have in common.
struct kmaC_OptionStep
{
    static constexpr const char* prefix = ".options";
    static constexpr bool hasPlainKeys = false;
};

/// An option of a material; null where the slot is empty.
template <>
struct ddr_DictionaryStepOf<kmaC_Material, kmaC_MaterialOption, 1> : kmaC_OptionStep
{
    static constexpr unsigned id = 0x238006D;

    static const cls_Attribute* AttributeOf(const cls_Description&, const cow_String& word)
    {
        return &kmaC_FindOption(word);
    }
    OVR_EXPORT static kmaC_MaterialOption* Get(kmaC_Material& material, const cow_String& word);
    OVR_EXPORT static const kmaC_MaterialOption* ConstGet(const kmaC_Material& material,
                                                          const cow_String& word);
};

/// A part of an option; null where it is absent.
template <>
struct ddr_DictionaryStepOf<kmaC_MaterialOption, kmaC_MaterialOption, 1> : kmaC_OptionStep
{
    static constexpr unsigned id = 0x238006E;

    static const cls_Attribute* AttributeOf(const cls_Description& parent, const cow_String& word)
    {
        return kmaC_FindSuboption(parent, word);
    }
    OVR_EXPORT static kmaC_MaterialOption* Get(kmaC_MaterialOption& parent, const cow_String& word);
    OVR_EXPORT static const kmaC_MaterialOption* ConstGet(const kmaC_MaterialOption& parent,
                                                          const cow_String& word);
};

/// The list number `N` of an option.
template <int N, unsigned Id>
struct kmaC_ListStep
{
    static constexpr unsigned id = Id;
    static constexpr unsigned ownerId = 0;

    static const char* Word() { return kmaC_ListMembers[N - 1].word; }
    static const kmaC_MatOptionList* ConstGet(const kmaC_MaterialOption& parent)
    {
        return kmaC_FindList(parent, kmaC_ListMembers[N - 1]);
    }
    static kmaC_MatOptionList* Get(kmaC_MaterialOption& parent)
    {
        // The list is a member of the parent, which may be changed here.
        return const_cast<kmaC_MatOptionList*>(ConstGet(parent));
    }
};

template <>
struct ddr_MemberStepOf<kmaC_MaterialOption, kmaC_MatOptionList, 1> : kmaC_ListStep<1, 0x238008B>
{};
template <>
struct ddr_MemberStepOf<kmaC_MaterialOption, kmaC_MatOptionList, 2> : kmaC_ListStep<2, 0x238008C>
{};
template <>
struct ddr_MemberStepOf<kmaC_MaterialOption, kmaC_MatOptionList, 3> : kmaC_ListStep<3, 0x238008D>
{};
template <>
struct ddr_MemberStepOf<kmaC_MaterialOption, kmaC_MatOptionList, 4> : kmaC_ListStep<4, 0x23800B0>
{};

/// Leads to the materials of a model.
using kmaC_MaterialContainerShortcut = ddr_Shortcut<kmaC_MaterialContainer>;
using kmaC_MaterialContainerIMPLSC = ddr_ShortcutImpl<kmaC_MaterialContainer>;
using kmaC_MaterialContainerInModelShortcut = ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;

/// Leads to a material.
using kmaC_MaterialShortcut = ddr_Shortcut<kmaC_Material>;
using kmaC_MaterialIMPLSC = ddr_ShortcutImpl<kmaC_Material>;
using kmaC_MaterialInMaterialContainerShortcut =
    ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;

/// Leads to an option of a material, of another option or in a list of one.
using kmaC_MaterialOptionShortcut = ddr_Shortcut<kmaC_MaterialOption>;
using kmaC_MaterialOptionIMPLSC = ddr_ShortcutImpl<kmaC_MaterialOption>;
using kmaC_MaterialOptionInMaterialShortcut = ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
using kmaC_MaterialOptionInMaterialOptionShortcut =
    ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;
using kmaC_MaterialOptionInMatOptionListShortcut =
    ddr_SequenceShortcut<kmaC_MatOptionList, kmaC_MaterialOption, 1>;

/// Leads to a list of an option.
using kmaC_MatOptionListShortcut = ddr_Shortcut<kmaC_MatOptionList>;
using kmaC_MatOptionListIMPLSC = ddr_ShortcutImpl<kmaC_MatOptionList>;
using kmaC_UniaxialTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 1>;
using kmaC_BiaxialTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 2>;
using kmaC_PlanarTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 3>;
using kmaC_DamageEvolutionListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 4>;

extern template class ddr_ShortcutImpl<kmaC_Material>;
extern template class ddr_Shortcut<kmaC_Material>;
extern template class ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;
extern template class ddr_ShortcutImpl<kmaC_MaterialContainer>;
extern template class ddr_Shortcut<kmaC_MaterialContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;
extern template class ddr_ShortcutImpl<kmaC_MaterialOption>;
extern template class ddr_Shortcut<kmaC_MaterialOption>;
extern template class ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
extern template class ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;
extern template class ddr_SequenceShortcut<kmaC_MatOptionList, kmaC_MaterialOption, 1>;
extern template class ddr_ShortcutImpl<kmaC_MatOptionList>;
extern template class ddr_Shortcut<kmaC_MatOptionList>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 1>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 2>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 3>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 4>;
