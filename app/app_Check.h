#pragma once

#include "app_Model.h"
#include "app_Progress.h"

#include <optional>
#include <string>
#include <vector>

/// A rule that an object breaks.
struct app_Finding
{
    std::string path;      ///< Of the object in its model; empty for an object that stands alone.
    std::string className; ///< Stored name of the object's class.
    std::string id;        ///< As "kamC:2", stable for ever; empty where the text is raised directly.
    std::optional<int> code;
    std::string message;
};

/// Checks one object by its class's rules, which end with the first that is broken.
std::optional<app_Finding> app_CheckObject(const cls_Description& description, const void* object,
                                           const std::string& path);

/// Checks every object of the model; the findings, in the model's order.
std::vector<app_Finding> app_CheckModel(const ddr_Model& model, app_Progress& progress);

/// The finding as a value.
cls_Value app_ValueOfFinding(const app_Finding& finding);

/// Answers one line that describes an object: {"ok": true}, {"ok": false, "code": 2, "message": "..."} for a
/// broken rule, {"ok": false, "error": "..."} for a line that describes none.
struct app_LineAnswer
{
    int exitCode;
    std::string json;
};

app_LineAnswer app_CheckLine(const std::string& line);
