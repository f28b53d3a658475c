#pragma once

#include "cls_ClassRegistrar.h"
#include "cls_Kind.h"
#include "omi_Singleton.h"

#include <string>
#include <unordered_map>
#include <vector>

/// One line of a class's declaration, made by the macros of the class pattern at compile time.
struct cls_Entry
{
    enum class Sort
    {
        Attribute,
        Word,
        Enum
    };

    /// Index of an attribute that takes the next one in stored order.
    static constexpr int NextIndex = -2;

    Sort sort;
    int index = NextIndex;
    const char* name = nullptr;
    const char* word = nullptr;
    const cls_Kind* kind = nullptr;
    const omu_EnumTable* (*enumTable)() = nullptr;
    /// From the object, seen as its root class, to the member.
    void* (*member)(void* object) = nullptr;
};

/// What the class pattern knows of a class at compile time. Objects are passed as pointers to their root
/// class.
struct cls_ClassInfo
{
    const char* name;
    unsigned id;
    int version;
    unsigned baseId;
    /// Description of the base; null for a root or where the base is the host's.
    const cls_Description& (*base)();
    const cls_Entry* entries;
    int entryCount;
    /// A default object, owned by the caller; null for an abstract class.
    void* (*create)();
    /// A copy under the same identity, owned by the caller; null for an abstract class.
    void* (*copy)(const void* object);
    void (*destroy)(void* object);
    void (*write)(const void* object, const cls_WriteVisitor& visitor);
    /// The class's own rules; null where it has none.
    void (*assertValid)(const void* object);
    /// Class id of the object's actual class.
    unsigned (*dynTypeId)(const void* object);
    /// The identity of this class's layer of the object.
    const cls_Uid& (*uid)(const void* object);
};

/// One attribute, ready for use.
struct cls_Attribute
{
    cls_FieldHandle field;
    const char* word;
    const cls_Kind* kind;
    void* (*member)(void* object);

    const void* Member(const void* object) const { return member(const_cast<void*>(object)); }
};

/// A word that belongs to no attribute: the name of its function without "Cmd", and the word.
struct cls_Word
{
    const char* name;
    const char* word;
};

/// Describes a class to everything that works on all classes alike: its identity, attributes, words and
/// enumerations, and the operations on its objects. Objects are passed as pointers to their root class.
class OVR_EXPORT cls_Description
{
public:
    explicit cls_Description(const cls_ClassInfo& info);
    cls_Description(const cls_Description&) = delete;
    cls_Description& operator=(const cls_Description&) = delete;
    ~cls_Description();

    const cls_ClassInfo& Info() const { return info; }

    const char* Name() const { return info.name; }

    unsigned Id() const { return info.id; }

    bool IsAbstract() const { return info.create == nullptr; }

    /// Null for a root or where the base is the host's.
    const cls_Description* Base() const { return info.base ? &info.base() : nullptr; }

    /// Whether this class is `id` or derives from it.
    bool IsA(unsigned id) const;

    /// This layer's own attributes, in stored order.
    const std::vector<cls_Attribute>& Attributes() const { return attributes; }

    /// This layer's words that belong to no attribute.
    const std::vector<cls_Word>& Words() const { return words; }

    /// Tables of the enumerations that this class owns.
    const std::vector<const omu_EnumTable*>& Enums() const { return enums; }

    /// The attribute of this stored name, or word, in this layer or one below it; null if there is none.
    const cls_Attribute* FindByName(const std::string& name) const;
    const cls_Attribute* FindByWord(const std::string& word) const;
    /// The word of this name, in this layer or one below it; null if there is none.
    const char* FindWord(const std::string& name) const;
    /// Attributes of all layers, the root's first.
    std::vector<const cls_Attribute*> AllAttributes() const;

    void WriteAttributes(const void* object, const cls_WriteVisitor& visitor) const;
    void ReadAttributes(void* object, const cls_ReadVisitor& visitor) const;
    /// Adds the attributes to this class's metadata.
    void DescribeTo(cls_ClassMetadata& metadata) const;

    /// The object as a value: "class", then every attribute by stored name, those of bases first. The object
    /// must be of this very class.
    cls_Value Export(const void* object) const;
    /// Sets the attributes that the value names, and leaves the others alone. Throws `cls_ValueError` for a
    /// name that is no attribute and for a value that does not fit; the object may then hold part of the
    /// values.
    void Import(void* object, const cls_Value& value) const;

private:
    const cls_ClassInfo& info;
    std::vector<cls_Attribute> attributes;
    std::vector<cls_Word> words;
    std::vector<const omu_EnumTable*> enums;
};

/// All descriptions, in the order of registration of their classes.
class OVR_EXPORT cls_DescriptionRegistry : public omi_SingletonBase<cls_DescriptionRegistry>
{
public:
    cls_DescriptionRegistry();
    ~cls_DescriptionRegistry();

    void Add(const cls_Description& description);
    /// The description of a class id or stored name, or null.
    const cls_Description* Find(unsigned id);
    const cls_Description* Find(const std::string& name);
    const std::vector<const cls_Description*>& All();

private:
    std::vector<const cls_Description*> all;
    std::unordered_map<unsigned, const cls_Description*> byId;
    std::unordered_map<std::string, const cls_Description*> byName;
};

/// The registry of descriptions.
OVR_EXPORT cls_DescriptionRegistry& cls_Descriptions();

/// A handle-sized owner of an object whose class is known at run time only.
class OVR_EXPORT cls_AnyObject
{
public:
    /// Takes ownership of `object`, seen as its root class.
    cls_AnyObject(const cls_Description& description, void* object);
    cls_AnyObject(cls_AnyObject&& other) noexcept;
    cls_AnyObject(const cls_AnyObject&) = delete;
    cls_AnyObject& operator=(const cls_AnyObject&) = delete;
    ~cls_AnyObject();

    const cls_Description& Description() const { return description; }

    void* Get() const { return object; }

    /// Hands the object over to the caller.
    void* Release();

private:
    const cls_Description& description;
    void* object;
};

/// The object of class `root` or one derived from it that `value` describes; its class may be left out where
/// `root` itself can be built and nothing derives from it. Throws `cls_ValueError`.
OVR_EXPORT cls_AnyObject cls_ObjectOfValue(const cls_Description& root, const cls_Value& value);
/// The value of an object whose root is `root`, by its actual class.
OVR_EXPORT cls_Value cls_ValueOfObject(const cls_Description& root, const void* object);
