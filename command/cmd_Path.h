#pragma once

#include "ovr_Export.h"

#include <string>
#include <vector>

/// Where something stands in a model: the model itself, a repository, an object in it, and from there on
/// attributes, elements and entries. Written "model.amplitudes['ramp'].data[1][0]".
struct OVR_EXPORT cmd_Path
{
    struct Step
    {
        enum class Sort
        {
            Word,    ///< ".text"
            Key,     ///< "['text']"
            Position ///< "[position]"
        };

        Sort sort;
        std::string text;
        std::size_t position = 0;

        friend bool operator==(const Step&, const Step&) = default;
    };

    std::vector<Step> steps;

    /// The path of an object of a repository.
    static cmd_Path OfObject(const std::string& repositoryWord, const std::string& name);

    /// The first `count` steps as text.
    std::string Text(std::size_t count) const;

    std::string Text() const { return Text(steps.size()); }

    /// This path and one step more.
    cmd_Path WithWord(const std::string& word) const;

    friend bool operator==(const cmd_Path&, const cmd_Path&) = default;
};
