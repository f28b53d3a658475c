#pragma once

#include "kmaC_MaterialContainer.h"

// Options by the words under which paths name them.

/// The slot of a material that a word names. Throws `nex_CmdException<atr_String, 2>` for any other word;
/// some slots have none.
OVR_EXPORT const cls_Attribute& kmaC_FindOption(const cow_String& word);

/// The sub-option of an option of this class that a word names; null where the word leads to the option
/// itself. Throws `nex_CmdException<atr_String, 2>` for any other word, and for a class without sub-options.
OVR_EXPORT const cls_Attribute* kmaC_FindSuboption(const cls_Description& parent, const cow_String& word);

/// A list that some options have, and what is thrown for those that have none.
struct kmaC_ListMember
{
    const char* word;
    const char* attribute;
    unsigned ownerId;
    const char* failure;
};

/// The lists, by number from 1 on.
OVR_EXPORT extern const kmaC_ListMember kmaC_ListMembers[];

/// The list of an option. Throws `nex_CmdException<atr_String, 2>` for an option of another class.
OVR_EXPORT const kmaC_MatOptionList* kmaC_FindList(const kmaC_MaterialOption& parent,
                                                   const kmaC_ListMember& member);
