#pragma once

#include "ovr_Export.h"

#include <functional>
#include <string>
#include <string_view>

class rfm_Database;

// A store as text, row for row, and back. The text knows the form of a store and nothing of its classes: it
// holds tables of any version and of classes that nobody knows alike. docs/store-text.md describes it.

/// What is left out of a text, for comparisons.
struct rfm_StoreTextOptions
{
    bool withUids = true;
    bool withChecks = true;
    bool withEmptyColumns = true; ///< those that hold nothing in any row
};

/// Writes every row of a store; `out` takes the text piece by piece. Returns how many rows do not fit their
/// check numbers; they are written as they stand, with a comment. Throws `rom_StoreException`.
OVR_EXPORT long rfm_WriteStoreText(rfm_Database& database, const std::function<void(std::string_view)>& out,
                                   const rfm_StoreTextOptions& options = {});

/// The same as one text.
OVR_EXPORT std::string rfm_StoreText(rfm_Database& database, const rfm_StoreTextOptions& options = {});

/// Fills a store that holds nothing yet. `source` names the text in errors, which are `rom_StoreException`s
/// with file, line and column, and say what was expected.
OVR_EXPORT void rfm_ReadStoreText(rfm_Database& database, std::string_view text, const std::string& source);

/// Makes the store `path` of such a text. There must be no file of that name, and there is none if the text
/// is refused.
OVR_EXPORT void rfm_MakeStoreOfText(const std::string& path, std::string_view text,
                                    const std::string& source);
