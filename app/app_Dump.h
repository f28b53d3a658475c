#pragma once

#include <string>

// Every row of a store as it stands in the file: the tables of classes, whatever their version, the elements
// of collections, the arrays, and the names of what the store holds. Nothing is built of it, so a store that
// no longer or not yet fits the classes is shown too. Throws `rom_StoreException`.

/// Prints them as text of which `app_Load` makes the same store. Returns how many rows are damaged; they are
/// printed too, with a comment.
long app_PrintDump(const std::string& path);

/// Prints them as JSON: texts as texts, bytes as {"blob": "00ff"}. Throws for a damaged row.
void app_PrintDumpAsJson(const std::string& path);
