#pragma once

#include <string>

// Every row of a store as it stands in the file: the tables of classes, whatever their version, the elements
// of collections, the arrays, and the names of what the store holds. Nothing is built of it, so a store that
// no longer or not yet fits the classes is shown too. Throws `rom_StoreException`.

/// Prints them as tables: texts in quotes, bytes as x'00ff', arrays as their numbers, "-" for nothing.
void app_PrintDump(const std::string& path);

/// Prints them as JSON: texts as texts, bytes as {"blob": "00ff"}.
void app_PrintDumpAsJson(const std::string& path);
