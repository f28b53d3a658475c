#pragma once

#include "app_Model.h"
#include "cls_Value.h"

#include <string>
#include <vector>

/// Where something stands in a model: a named object of a repository, and the way from there to a value
/// within it.
struct app_Path
{
    /// One step into a value: an attribute by word, an element by position or by key.
    struct Step
    {
        enum class Sort
        {
            Word,
            Position,
            Key
        };

        Sort sort;
        std::string text;
        std::size_t position = 0;
    };

    std::string repositoryWord;
    std::string name;
    std::vector<Step> steps;

    /// The path up to the object, then the first `count` steps.
    std::string Text(std::size_t count) const;
};

/// Reads a path such as "amplitudes['record'].baselineCorrection". Throws `app_Error`.
app_Path app_ParsePath(const std::string& text);

/// The object that the path begins with, as a value of the model. Throws `app_Error` if it is not there.
app_Object app_FindObject(const ddr_Model& model, const app_Path& path);

/// The attribute of this word, or of this stored name. Throws `app_Error`, which lists the words there are.
const cls_Attribute& app_FindAttribute(const cls_Description& description, const std::string& word,
                                       const std::string& where);

/// The value to which the steps lead from `value`, the value of the object. Throws `app_Error`.
cls_Value& app_FindValue(cls_Value& value, const app_Path& path);
