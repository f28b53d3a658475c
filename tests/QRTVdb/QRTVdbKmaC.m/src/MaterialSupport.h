#pragma once

#include "LibraryEnvironment.h"
#include "RuleTest.h"
#include "kmaC_Material.h"

#include <initializer_list>

/// A table of these rows, which must be of one length.
inline kmaC_MaterialTable TableOf(std::initializer_list<std::initializer_list<double>> rows)
{
    kmaC_MaterialTable table(static_cast<int>(rows.size()),
                             rows.size() == 0 ? 0 : static_cast<int>(rows.begin()->size()));
    int r = 0;
    for (const std::initializer_list<double>& row : rows)
    {
        int c = 0;
        for (const double value : row)
            table.table.Set(r, c++, value);
        ++r;
    }
    return table;
}

/// A table whose only row is zero.
inline kmaC_MaterialTable BlankTable()
{
    return TableOf({{0.0, 0.0}});
}

/// An option with a blank table, in a handle.
template <class T>
kmaC_Option<T> WithBlankTable()
{
    T option;
    option.table = BlankTable();
    option.table.allowEmptyFirstRow = false;
    return kmaC_Option<T>(option);
}

/// An option with a negative count of field variables, in a handle.
template <class T>
kmaC_Option<T> WithNegativeDependencies()
{
    T option;
    option.dependencies = -1;
    return kmaC_Option<T>(option);
}

inline const std::string fewDependencies = "Number of dependencies specified is less than the minimum.";
inline const std::string blankRow =
    "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).";
