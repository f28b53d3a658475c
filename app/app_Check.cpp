#include "app_Check.h"

#include "app_Error.h"
#include "app_Json.h"
#include "cmd_Rules.h"

std::optional<app_Finding> app_CheckObject(const cls_Description& description, const void* object,
                                           const std::string& path)
{
    const std::optional<cmd_BrokenRule> rule = cmd_FindBrokenRule(description, object);
    if (!rule)
        return std::nullopt;
    return app_Finding{path, description.Name(), rule->id, rule->code, rule->message};
}

std::vector<app_Finding> app_CheckModel(const ddr_Model& model, app_Progress& progress)
{
    std::vector<app_Finding> findings;
    app_ForEachObject(model,
                      [&](const app_Object& object)
                      {
                          const std::string path = app_PathOf(object.repositoryWord, object.name);
                          if (auto finding = app_CheckObject(object.description, object.object, path))
                              findings.push_back(*finding);
                          progress.Step();
                      });
    return findings;
}

cls_Value app_ValueOfFinding(const app_Finding& finding)
{
    cls_Value::Object members;
    members.emplace_back("path", finding.path);
    members.emplace_back("class", finding.className);
    if (finding.code)
    {
        members.emplace_back("id", finding.id);
        members.emplace_back("code", *finding.code);
    }
    members.emplace_back("message", finding.message);
    return members;
}

namespace
{

cls_Value AnswerOf(const std::optional<app_Finding>& finding)
{
    cls_Value::Object members;
    members.emplace_back("ok", !finding);
    if (finding && finding->code)
        members.emplace_back("code", *finding->code);
    if (finding)
        members.emplace_back("message", finding->message);
    return members;
}

app_LineAnswer Answer(int exitCode, const cls_Value& value)
{
    return {exitCode, app_WriteJson(value, app_JsonLayout::OneLine)};
}

app_LineAnswer Refuse(const std::string& reason)
{
    cls_Value::Object members;
    members.emplace_back("ok", false);
    members.emplace_back("error", reason);
    return Answer(app_Unusable, members);
}

} // namespace

app_LineAnswer app_CheckLine(const std::string& line)
{
    try
    {
        const cls_AnyObject object = app_ObjectOfValue(app_ParseJson(line, "line"));
        const auto finding = app_CheckObject(object.Description(), object.Get(), "");
        return Answer(finding ? app_Findings : app_Fine, AnswerOf(finding));
    }
    catch (const app_Error& error)
    {
        return Refuse(error.what());
    }
    catch (const cls_ValueError& error)
    {
        return Refuse(error.what());
    }
}
