#pragma once

#include "cls_Description.h"
#include "cmd_Value.h"

// From what a script writes to what attributes hold, and back, for every registered class alike.

/// The word that makes objects of this very class, or null if it has none.
OVR_EXPORT const char* cmd_ConstructorOf(const cls_Description& description);

/// The class that the plain value of an object names, or null for any other value.
OVR_EXPORT const cls_Description* cmd_ClassOfValue(const cls_Value& value);

/// The symbol that stands for "not set" in a number attribute: the only text of the enumeration that the
/// class has for it or for the last words of its name, as SOLVER_DEFAULT of SmoothEnm for `smooth`. Null if
/// there is none.
OVR_EXPORT const char* cmd_UnsetSymbolOf(const cls_Description& description, const cls_Attribute& attribute);

/// The classes that have objects, are `root` or derive from it, and have this constructor word.
OVR_EXPORT std::vector<const cls_Description*> cmd_ClassesOfWord(const cls_Description& root,
                                                                 const std::string& word);

/// The constructor words of the classes that are `root` or derive from it, in order of registration.
OVR_EXPORT std::vector<std::string> cmd_ConstructorsOf(const cls_Description& root);

/// The attribute of this word. Throws `cmd_Error`, which names `given`, what the word was to be set to.
OVR_EXPORT const cls_Attribute& cmd_RequireAttribute(const cls_Description& description,
                                                     const std::string& word, const std::string& given);

/// Sets an attribute of an object of this class. Throws `cmd_Error` and leaves the attribute as it was if the
/// value does not fit.
OVR_EXPORT void cmd_SetAttribute(const cls_Description& description, void* object,
                                 const cls_Attribute& attribute, const cmd_Value& value);

/// What a script would write for an attribute.
OVR_EXPORT cmd_Value cmd_GetAttribute(const cls_Description& description, const void* object,
                                      const cls_Attribute& attribute);

/// The same from the plain value of the attribute, or of a part of it.
OVR_EXPORT cmd_Value cmd_ScriptOfAttribute(const cls_Description& description, const cls_Attribute& attribute,
                                           const cls_Value& value);

/// What a script would write for an object, given as its plain value with "class" first: the call of its
/// constructor with all attributes; for a class without constructor word a tuple of the attributes where no
/// other class can stand in its place, else a dictionary.
OVR_EXPORT cmd_Value cmd_ScriptOfObject(const cls_Value& object);
