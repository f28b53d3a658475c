#include "app_Edit.h"

#include "app_Error.h"
#include "app_File.h"
#include "app_Json.h"
#include "cls_Unset.h"

#include <optional>

namespace
{

struct Setting
{
    std::string word;
    std::string text;
};

Setting ParseSetting(const std::string& setting)
{
    const std::size_t equals = setting.find('=');
    if (equals == std::string::npos || equals == 0)
        throw app_Error(setting + ": expected WORD=VALUE");
    return {setting.substr(0, equals), setting.substr(equals + 1)};
}

/// The text as JSON, or nothing if it is none. A text that begins like JSON must be JSON.
std::optional<cls_Value> TryJson(const Setting& setting)
{
    try
    {
        return app_ParseJson(setting.text, setting.word);
    }
    catch (const app_Error&)
    {
        const char first = setting.text.empty() ? '\0' : setting.text.front();
        if (first == '[' || first == '{' || first == '"')
            throw;
        return std::nullopt;
    }
}

/// What the text of a setting stands for in an attribute of this kind.
cls_Value ValueOf(const Setting& setting, const cls_Kind& kind)
{
    const std::optional<cls_Value> json = TryJson(setting);
    const bool isQuoted = json && json->AsText();
    switch (kind.Id())
    {
    case cls_KindEnm::String:
        return isQuoted ? *json : cls_Value(setting.text);
    case cls_KindEnm::Enum:
        return isQuoted || (json && json->AsInteger()) ? *json : cls_Value(setting.text);
    case cls_KindEnm::Double:
        return setting.text == "unset" ? cls_Value(cls_UnsetDouble) : json.value_or(setting.text);
    case cls_KindEnm::Int:
        return setting.text == "unset" ? cls_Value(cls_UnsetInt) : json.value_or(setting.text);
    default:
        return json.value_or(setting.text);
    }
}

/// Imports a value into an attribute; errors name the attribute.
void Import(const cls_Attribute& attribute, void* object, const cls_Value& value, const std::string& where)
{
    try
    {
        attribute.kind->Import(attribute.member(object), value);
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(where);
    }
}

/// Sets one attribute of the object itself.
app_Change SetOwn(const cls_Description& description, void* object, const Setting& setting,
                  const std::string& path)
{
    const cls_Attribute& attribute = app_FindAttribute(description, setting.word, path);
    app_Change change{attribute.word, attribute.kind->Export(attribute.Member(object)), {}};
    Import(attribute, object, ValueOf(setting, *attribute.kind), path + '.' + attribute.word);
    change.after = attribute.kind->Export(attribute.Member(object));
    return change;
}

const cls_Description& ClassOfNested(const cls_Value& value, const std::string& where)
{
    const cls_Description* const description = app_ClassOfValue(value);
    if (!description)
        throw app_Error(where + " is " + value.Summary() + ", expected an object");
    return *description;
}

/// Sets one attribute of an object within the object: the value is taken out, changed and put back.
app_Change SetNested(const cls_Description& description, void* object, const Setting& setting,
                     const app_Path& path)
{
    const app_Path::Step& first = path.steps.front();
    const cls_Attribute& outer = app_FindAttribute(description, first.text, path.Text(0));
    cls_Value whole = description.Export(object);
    cls_Value& nested = app_FindValue(whole, path);
    const std::string where = path.Text(path.steps.size());
    const cls_Description& nestedClass = ClassOfNested(nested, where);
    const cls_Attribute& inner = app_FindAttribute(nestedClass, setting.word, where);
    app_Path toValue = path;
    toValue.steps.push_back({app_Path::Step::Sort::Word, inner.word});
    cls_Value& target = app_FindValue(whole, toValue);
    app_Change change{inner.word, target, ValueOf(setting, *inner.kind)};
    target = change.after;
    Import(outer, object, *whole.Find(outer.field.Name().CString()), path.Text(0) + '.' + outer.word);
    return change;
}

void RequireObjectPath(const app_Path& path)
{
    if (!path.steps.empty())
        throw app_Error(path.Text(path.steps.size()) + ": expected the path of an object, as " +
                        path.Text(0));
}

} // namespace

std::vector<app_Change> app_SetValues(ddr_Model& model, const app_Path& path,
                                      const std::vector<std::string>& settings)
{
    const cls_Description& description = app_FindObject(model, path).description;
    void* const object = app_Repository(model, path.repositoryWord).Object(path.name);
    std::vector<app_Change> changes;
    for (const std::string& setting : settings)
    {
        const Setting parsed = ParseSetting(setting);
        changes.push_back(path.steps.empty() ? SetOwn(description, object, parsed, path.Text(0))
                                             : SetNested(description, object, parsed, path));
    }
    return changes;
}

void app_MakeObject(ddr_Model& model, const app_Path& path, const cls_Description& description,
                    const std::vector<std::string>& settings, bool replace)
{
    RequireObjectPath(path);
    mdl_NamedObjects& repository = app_Repository(model, path.repositoryWord);
    const cls_Description& root = repository.ObjectRoot();
    if (description.IsAbstract() || !description.IsA(root.Id()))
        throw app_Error(path.Text(0) + ": expected a class derived from " + root.Name() +
                        " that has objects, found " + description.Name());
    if (repository.ConstObject(path.name) && !replace)
        throw app_Error(path.Text(0) + ": there is such an object already; --force replaces it");
    cls_AnyObject object(description, description.Info().create());
    for (const std::string& setting : settings)
        SetOwn(description, object.Get(), ParseSetting(setting), path.Text(0));
    repository.InsertObject(path.name, std::move(object));
}

void app_DeleteObject(ddr_Model& model, const app_Path& path)
{
    RequireObjectPath(path);
    app_FindObject(model, path);
    app_Repository(model, path.repositoryWord).RemoveObject(path.name);
}

void app_RenameObject(ddr_Model& model, const app_Path& path, const std::string& name, bool replace)
{
    RequireObjectPath(path);
    app_FindObject(model, path);
    mdl_NamedObjects& repository = app_Repository(model, path.repositoryWord);
    if (repository.ConstObject(name) && !replace)
        throw app_Error(app_PathOf(path.repositoryWord, name) +
                        ": there is such an object already; --force replaces it");
    repository.RenameObject(path.name, name);
}

cls_Value app_ValueOfChanges(const std::string& path, const std::vector<app_Change>& changes)
{
    cls_Value::Array values;
    for (const app_Change& change : changes)
        values.push_back(
            cls_Value::Object{{"word", change.word}, {"before", change.before}, {"after", change.after}});
    return cls_Value::Object{{"path", path}, {"changes", std::move(values)}};
}

app_SaveMode app_SaveModeFor(const std::string& store, bool force)
{
    if (!app_Exists(store))
        return app_SaveMode::New;
    if (!force)
        throw app_Error(store + ": there is such a file already; --force replaces the model in it");
    return app_SaveMode::InPlace;
}
