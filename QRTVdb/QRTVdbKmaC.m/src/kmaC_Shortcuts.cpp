#include "kmaC_Shortcuts.h"

namespace
{

const kmaC_MaterialOption* ConstOptionIn(const void* parent, const cls_Attribute& attribute)
{
    return static_cast<const kmaC_MaterialOption*>(attribute.kind->ConstObject(attribute.Member(parent)));
}

/// The same to write.
kmaC_MaterialOption* OptionIn(void* parent, const cls_Attribute& attribute)
{
    return static_cast<kmaC_MaterialOption*>(attribute.kind->Object(attribute.member(parent)));
}

/// The attribute of an option that a word names, or null where it names the option itself.
const cls_Attribute* SuboptionOf(const kmaC_MaterialOption& parent, const cow_String& word)
{
    const cls_Description* description = cls_Descriptions().Find(parent.DynTypeId());
    return kmaC_FindSuboption(description ? *description : kmaC_MaterialOption::Description(), word);
}

} // namespace

using FromMaterial = ddr_DictionaryStepOf<kmaC_Material, kmaC_MaterialOption, 1>;
using FromOption = ddr_DictionaryStepOf<kmaC_MaterialOption, kmaC_MaterialOption, 1>;

kmaC_MaterialOption* FromMaterial::Get(kmaC_Material& material, const cow_String& word)
{
    return OptionIn(&material, kmaC_FindOption(word));
}

const kmaC_MaterialOption* FromMaterial::ConstGet(const kmaC_Material& material, const cow_String& word)
{
    return ConstOptionIn(&material, kmaC_FindOption(word));
}

kmaC_MaterialOption* FromOption::Get(kmaC_MaterialOption& parent, const cow_String& word)
{
    const cls_Attribute* attribute = SuboptionOf(parent, word);
    return attribute ? OptionIn(&parent, *attribute) : &parent;
}

const kmaC_MaterialOption* FromOption::ConstGet(const kmaC_MaterialOption& parent, const cow_String& word)
{
    const cls_Attribute* attribute = SuboptionOf(parent, word);
    return attribute ? ConstOptionIn(&parent, *attribute) : &parent;
}

template class ddr_ShortcutImpl<kmaC_Material>;
template class ddr_Shortcut<kmaC_Material>;
template class ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;
template class ddr_ShortcutImpl<kmaC_MaterialContainer>;
template class ddr_Shortcut<kmaC_MaterialContainer>;
template class ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;
template class ddr_ShortcutImpl<kmaC_MaterialOption>;
template class ddr_Shortcut<kmaC_MaterialOption>;
template class ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
template class ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;
template class ddr_SequenceShortcut<kmaC_MatOptionList, kmaC_MaterialOption, 1>;
template class ddr_ShortcutImpl<kmaC_MatOptionList>;
template class ddr_Shortcut<kmaC_MatOptionList>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 1>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 2>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 3>;
template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, 4>;
