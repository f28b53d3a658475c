#include "app_Model.h"

#include "cmd_Locate.h"
#include "mdl_Repository.h"

namespace
{

std::string WordsText(const ddr_Model& model)
{
    std::string text;
    for (const std::string& word : app_RepositoryWords(model))
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

[[noreturn]] void RaiseNoRepository(const ddr_Model& model, const std::string& word)
{
    throw cls_ValueError(word, "a model has no such repository, expected one of: " + WordsText(model));
}

const mdl_NamedObjects* Find(const ddr_Model& model, const std::string& word)
{
    return dynamic_cast<const mdl_NamedObjects*>(model.ConstGet(word.c_str()));
}

} // namespace

std::string app_PathOf(const std::string& repositoryWord, const std::string& name)
{
    std::string path = repositoryWord + "['";
    for (const char c : name)
    {
        if (c == '\'' || c == '\\')
            path += '\\';
        path += c;
    }
    return path + "']";
}

std::vector<std::string> app_RepositoryWords(const ddr_Model& model)
{
    std::vector<std::string> words;
    for (const char* word : ddr_Model::Slots())
    {
        if (Find(model, word))
            words.emplace_back(word);
    }
    return words;
}

const mdl_NamedObjects& app_ConstRepository(const ddr_Model& model, const std::string& word)
{
    const mdl_NamedObjects* const repository = Find(model, word);
    if (!repository)
        RaiseNoRepository(model, word);
    return *repository;
}

mdl_NamedObjects& app_Repository(ddr_Model& model, const std::string& word)
{
    auto* const repository = dynamic_cast<mdl_NamedObjects*>(model.Get(word.c_str()));
    if (!repository)
        RaiseNoRepository(model, word);
    return *repository;
}

int app_ObjectCount(const ddr_Model& model)
{
    int count = 0;
    for (const std::string& word : app_RepositoryWords(model))
        count += model.ConstGet(word.c_str())->Size();
    return count;
}

void app_ForEachObject(const ddr_Model& model, const std::function<void(const app_Object&)>& act)
{
    for (const std::string& word : app_RepositoryWords(model))
    {
        const mdl_NamedObjects& repository = app_ConstRepository(model, word);
        for (const std::string& name : repository.ObjectNames())
        {
            const void* const object = repository.ConstObject(name);
            if (object)
                act({word, name, app_ActualClass(repository.ObjectRoot(), object), object});
        }
    }
}

app_Object app_FindObject(const ddr_Model& model, const cmd_Path& path)
{
    const cmd_Located located = cmd_Locate(model, path);
    return {path.steps[0].text, path.steps[1].text, located.description, located.object};
}

const cls_Description& app_ActualClass(const cls_Description& root, const void* object)
{
    const cls_Description* const actual = cls_Descriptions().Find(root.Info().dynTypeId(object));
    return actual ? *actual : root;
}

const cls_Description* app_ClassOfValue(const cls_Value& value)
{
    const cls_Value* const name = value.Find("class");
    const std::string* const text = name ? name->AsText() : nullptr;
    return text ? cls_Descriptions().Find(*text) : nullptr;
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
