#pragma once

#include "cls_Value.h"

#include <functional>
#include <string>

/// Takes one named object of a model as soon as it is read; `reached` bytes of the text are read by then.
using app_TakeObject = std::function<void(const std::string& repositoryWord, const std::string& name,
                                          const cls_Value& object, std::size_t reached)>;
/// Takes the word of a repository when all of its objects are read.
using app_TakeRepository = std::function<void(const std::string& repositoryWord)>;

/// A JSON text as a value. Throws `app_Error` with source, line and column for a text that is no JSON, for a
/// member that stands twice, and for nesting deeper than any model is.
cls_Value app_ParseJson(const std::string& text, const std::string& source);

/// Reads a model, an object of repositories of named objects, and hands over one object after the other, so
/// that no more than one stands in memory as a value. Throws `app_Error` as above; to a `cls_ValueError` of
/// the takers it adds source and line.
void app_ParseJsonModel(const std::string& text, const std::string& source, const app_TakeObject& takeObject,
                        const app_TakeRepository& takeRepository);

/// Whether the text is an object that names its class at the top: one object, not a model.
bool app_IsJsonObject(const std::string& text);

/// How a value is laid out as JSON. In every layout the rows of a table stand on a line each.
enum class app_JsonLayout
{
    Model,   ///< A line for each member.
    Records, ///< A line for each object that holds nothing but scalars.
    OneLine  ///< One line for all.
};

/// The value as JSON without a line feed at its end; lines after the first are indented by `indent`.
/// Numbers have the shortest form that reads back as the same number.
std::string app_WriteJson(const cls_Value& value, app_JsonLayout layout, std::size_t indent = 0);

/// A text as JSON, with its quotes.
std::string app_JsonText(const std::string& text);
/// A number as JSON.
std::string app_JsonNumber(double number);
