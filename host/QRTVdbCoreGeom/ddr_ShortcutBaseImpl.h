#pragma once

#include "cow_String.h"
#include "mem_AllocationOperators.h"
#include "ovr_Export.h"

/// One step of a shortcut's path, whatever it leads to, together with the way to it.
class OVR_EXPORT ddr_ShortcutBaseImpl : public mem_AllocationOperators
{
public:
    virtual ~ddr_ShortcutBaseImpl();

    /// The step by itself: a word, a key or a number.
    virtual cow_String Name() const = 0;
    /// The whole way. Keys stand in single quotes as they are, with nothing escaped.
    virtual cow_String Path() const = 0;
    /// The way as Python source text: a key with quotes, backslashes or control characters stands in double
    /// quotes and has them escaped. Path() itself for a step that has no keys.
    virtual cow_String PythonPath() const;
    /// Whether the way begins here.
    virtual bool IsTop() const = 0;
    /// Whether the step is written into a store.
    virtual bool IsStored() const = 0;
    /// Whether what it leads to can't be changed through it.
    virtual bool IsReadOnly() const = 0;

protected:
    /// How keys stand in a path.
    enum class KeyForm
    {
        Plain,
        Python
    };

    ddr_ShortcutBaseImpl() = default;
    ddr_ShortcutBaseImpl(const ddr_ShortcutBaseImpl&) = default;
    ddr_ShortcutBaseImpl& operator=(const ddr_ShortcutBaseImpl&) = default;

    /// "['key']" in that form.
    static cow_String KeyText(const cow_String& key, KeyForm form);
};
