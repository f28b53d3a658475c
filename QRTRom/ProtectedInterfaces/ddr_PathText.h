#pragma once

#include "ovr_Export.h"

#include <string>
#include <vector>

/// One step of a path as text: a word, a key or an index.
struct ddr_PathStep
{
    enum class Sort
    {
        Word,
        Key,
        Index
    };

    Sort sort = Sort::Word;
    std::string text; ///< The word or the key.
    int index = 0;
    std::size_t end = 0; ///< Position behind the step.
};

/// Where a path went wrong, and what would have to stand there.
struct ddr_PathFault
{
    std::size_t position = 0;
    std::string expected;
};

/// The steps that can begin at `position` of a path; none if the text is wrong there, as `fault` then says.
/// A word stands behind a point, or at the begin of the path. A key stands in "['" and "']" as it is, and may
/// hold those too: it ends at any "']" behind which the path ends or goes on, so there can be several steps,
/// the one of the shortest key first. In "[\"" and "\"]" a key is written as in Python, with escapes, and
/// there is one step at most.
OVR_EXPORT std::vector<ddr_PathStep> ddr_PathStepsAt(const std::string& path, std::size_t position,
                                                     ddr_PathFault& fault);
