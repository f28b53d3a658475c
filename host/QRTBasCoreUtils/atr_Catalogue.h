#pragma once

#include "ovr_Export.h"

/// A language: gives the translation of a message or label.
class OVR_EXPORT atr_Catalogue
{
public:
    virtual ~atr_Catalogue();

    /// The translation of `text`, or null if there is none, in which case the text itself is used. It is
    /// copied at once. Its placeholders follow the rules of `atr_translate`.
    virtual const char* Lookup(const char* text) const = 0;
};

/// The catalogue in use, or null.
OVR_EXPORT const atr_Catalogue* atr_getCatalogue();

/// Puts `catalogue` to use (null: texts as they are) and returns the one used before. It stays the caller's,
/// who must take it out of use before deleting it. What is translated already stays so.
OVR_EXPORT const atr_Catalogue* atr_setCatalogue(const atr_Catalogue* catalogue);
