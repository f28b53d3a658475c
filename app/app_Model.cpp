#include "app_Model.h"

#include "cmd_Error.h"
#include "cmd_Locate.h"
#include "mdl_Repository.h"

#include <cstring>

std::string app_PathOf(const std::string& repositoryWord, const std::string& name)
{
    return cmd_Path::OfObject(repositoryWord, name).Text().substr(std::strlen("model."));
}

mdl_NamedObjects& app_Repository(ddr_Model& model, const std::string& word)
{
    try
    {
        return cmd_Repository(model, word);
    }
    catch (const cmd_Error& error)
    {
        throw cls_ValueError("", error.what());
    }
}

int app_ObjectCount(const ddr_Model& model)
{
    int count = 0;
    for (const std::string& word : cmd_RepositoryWords(model))
        count += model.ConstGet(word.c_str())->Size();
    return count;
}

void app_ForEachObject(const ddr_Model& model, const app_Visit& visit)
{
    for (const std::string& word : cmd_RepositoryWords(model))
        app_ForEachObjectOf(model, word, visit);
}

void app_ForEachObjectOf(const ddr_Model& model, const std::string& repositoryWord, const app_Visit& visit)
{
    const mdl_NamedObjects& repository = cmd_ConstRepository(model, repositoryWord);
    for (const std::string& name : repository.ObjectNames())
    {
        if (repository.ConstObject(name))
            visit(app_FindObject(model, cmd_Path::OfObject(repositoryWord, name)));
    }
}

app_Object app_FindObject(const ddr_Model& model, const cmd_Path& path)
{
    const cmd_Located located = cmd_Locate(model, path);
    return {path.steps[0].text, path.steps[1].text, located.description, located.object};
}

void app_InsertValue(ddr_Model& model, const std::string& repositoryWord, const std::string& name,
                     const cls_Value& value)
{
    mdl_NamedObjects& repository = app_Repository(model, repositoryWord);
    const std::string path = app_PathOf(repositoryWord, name);
    try
    {
        cls_AnyObject object = cls_ObjectOfValue(repository.ObjectRoot(), value);
        // Names that sort as equal are one name to the repository, which would replace the first object.
        if (repository.ConstObject(name))
            throw cls_ValueError("", "the name is taken by another object");
        if (!repository.InsertObject(name, std::move(object)))
            throw cls_ValueError("", "the repository refuses the name");
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(path);
    }
}

cls_AnyObject app_ObjectOfValue(const cls_Value& value)
{
    if (!value.AsObject())
        cls_RaiseUnexpected("an object", value);
    const cls_Value* const name = value.Find("class");
    if (!name)
        throw cls_ValueError("class", "expected the name of a class, found none");
    const cls_Description* const description = cls_Descriptions().Find(cls_TextOfValue(*name));
    if (!description)
        throw cls_ValueError("class", "no class has the name " + name->Summary());
    return cls_ObjectOfValue(*description, value);
}
