#pragma once

#include "Program.h"

// What is tried with every model among the examples.

/// The model passes `vdbattr check`, and has so many objects.
void CheckModel(const std::string& example, int objects);

/// Every line of single objects passes `vdbattr check --lines`.
void CheckLines(const std::string& example);

/// Makes `store` of the model; what is exported of it gives the same store again, and its rules hold.
void ImportAndExport(const std::string& example, const std::string& store);

/// One object by its constructor word, one change of it, and one that a rule refuses.
struct ObjectLine
{
    const char* call;
    const char* path;
    const char* change;
    const char* value;
    const char* badChange;
    const char* rule;
};

/// Makes the object in a new store by scripting words, changes it, reads the value back, and is refused the
/// bad change.
void MakeAndChange(const ObjectLine& line);
