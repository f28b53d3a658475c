#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

// What repositories enter into the history of changes of the calling thread. `path` is the name under which a
// repository reports, empty for none; `key` is the name, number or position of the object.

/// Enters (word, key), a tuple made with `slots` slots.
OVR_EXPORT void mdl_RecordChange(const cow_String& path, const char* word, const cow_String& key, int slots);
OVR_EXPORT void mdl_RecordChange(const cow_String& path, const char* word, int key, int slots);

/// Enters ("Insert", key, -99).
OVR_EXPORT void mdl_RecordInsert(const cow_String& path, const cow_String& key);
OVR_EXPORT void mdl_RecordInsert(const cow_String& path, int key);

/// Enters ("Remove", key).
template <class K>
void mdl_RecordRemove(const cow_String& path, const K& key)
{
    mdl_RecordChange(path, "Remove", key, 2);
}

/// Enters ("Modify", key).
template <class K>
void mdl_RecordModify(const cow_String& path, const K& key)
{
    mdl_RecordChange(path, "Modify", key, 4);
}
