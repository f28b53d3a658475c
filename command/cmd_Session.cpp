#include "cmd_Session.h"

#include "cmd_Attributes.h"
#include "cmd_Error.h"
#include "cmd_Locate.h"

#include <algorithm>

namespace
{

constexpr const char* nameWord = "name";

std::string CallLine(const cmd_Path& path, const std::string& word, const cmd_Arguments& arguments)
{
    return path.Text() + '.' + cmd_Value(cmd_Value::Call{word, arguments}).Text();
}

/// Names go through texts that end at a null character.
void RequireName(const std::string& where, const std::string& name)
{
    if (name.empty() || name.find('\0') != std::string::npos)
        throw cmd_Error(where + ": expected a name that is neither empty nor holds a null character, found " +
                        cmd_QuotedText(name));
}

/// Takes the argument `name` out of the others.
std::string TakeName(const cls_Description& description, cmd_Arguments& arguments)
{
    const auto isName = [](const auto& argument) { return argument.first == nameWord; };
    const auto found = std::find_if(arguments.begin(), arguments.end(), isName);
    if (found == arguments.end())
        throw cmd_Error(std::string(description.Name()) +
                        ": the argument name is missing, expected a text in quotes");
    const std::string where = std::string(description.Name()) + ".name";
    const std::string* text = found->second.AsText();
    if (!text)
        throw cmd_Error(where + ": expected a text in quotes, found " + found->second.Summary());
    RequireName(where, *text);
    std::string name = *text;
    arguments.erase(found);
    return name;
}

/// Sets attributes by their words. The arguments become what a script would write for what was set.
void Apply(const cls_AnyObject& object, cmd_Arguments& arguments)
{
    const cls_Description& description = object.Description();
    for (auto& [word, value] : arguments)
    {
        const cls_Attribute& attribute = cmd_RequireAttribute(description, word, value.Summary());
        cmd_SetAttribute(description, object.Get(), attribute, value);
        value = cmd_GetAttribute(description, object.Get(), attribute);
    }
}

/// Sets attributes of the object to which the path leads within `object`: that is taken out as a value,
/// changed and put back.
void ApplyWithin(const cls_AnyObject& object, const cmd_Path& path, cmd_Arguments& arguments)
{
    const cls_Description& description = object.Description();
    cls_Value whole = description.Export(object.Get());
    cls_Value& part = cmd_FindWithin(whole, path);
    const cls_Description* partClass = cmd_ClassOfValue(part);
    if (!partClass)
        throw cmd_Error(path.Text() + ": expected an object, found " +
                        cmd_ScriptWithin(whole, path).Summary());
    const cls_AnyObject changed = cls_ObjectOfValue(*partClass, part);
    Apply(changed, arguments);
    part = partClass->Export(changed.Get());
    const cls_Attribute& outer = cmd_AttributeAt(description, path);
    outer.kind->Import(outer.member(object.Get()), *whole.Find(outer.field.Name().CString()));
}

/// The attributes that the path and the arguments can have changed.
std::vector<const cls_Attribute*> Touched(const cls_Description& description, const cmd_Path& path,
                                          const cmd_Arguments& arguments)
{
    if (path.steps.size() > 2)
        return {&cmd_AttributeAt(description, path)};
    std::vector<const cls_Attribute*> attributes;
    for (const auto& argument : arguments)
        attributes.push_back(description.FindByWord(argument.first));
    return attributes;
}

void RequireObjectPath(const cmd_Path& path)
{
    if (path.steps.size() > 2)
        throw cmd_Error(path.Text() + ": expected the path of an object of a repository, as " + path.Text(2));
}

/// A class and the repository that takes its objects.
struct Home
{
    std::string repositoryWord;
    const cls_Description* description;
};

Home HomeOf(const ddr_Model& model, const std::string& constructor)
{
    std::vector<Home> homes;
    std::vector<std::string> words;
    for (const std::string& repositoryWord : cmd_RepositoryWords(model))
    {
        const cls_Description& root = cmd_ConstRepository(model, repositoryWord).ObjectRoot();
        for (const cls_Description* description : cmd_ClassesOfWord(root, constructor))
            homes.push_back({repositoryWord, description});
        for (std::string& word : cmd_ConstructorsOf(root))
            words.push_back(std::move(word));
    }
    if (homes.empty())
        throw cmd_Error("model: there is no constructor " + constructor + ", " +
                        cmd_ExpectedOneOf(constructor, words));
    if (homes.size() > 1)
        throw cmd_Error("model: the constructor " + constructor + " makes objects of " +
                        homes[0].description->Name() + " and of " + homes[1].description->Name());
    return homes.front();
}

} // namespace

cmd_Session::cmd_Session(Checks checks) : checks(checks) {}

cmd_Session::cmd_Session(const ddr_ModelHandle& model, Checks checks) : container(model), checks(checks) {}

void cmd_Session::Make(const cmd_Path& owner, const std::string& constructor, const cmd_Arguments& arguments)
{
    if (owner.steps.empty())
        MakeInModel(constructor, arguments);
    else
        MakeInObject(owner, constructor, arguments);
}

void cmd_Session::MakeInModel(const std::string& constructor, const cmd_Arguments& arguments)
{
    const Home home = HomeOf(*container.ConstGetModel(), constructor);
    const cls_Description& description = *home.description;
    cmd_Arguments settings = arguments;
    const std::string name = TakeName(description, settings);
    cls_AnyObject object(description, description.Info().create());
    Apply(object, settings);
    const cmd_Path path = cmd_Path::OfObject(home.repositoryWord, name);
    Check(path, object);
    settings.insert(settings.begin(), {nameWord, name});
    Commit({constructor, CallLine(cmd_Path(), constructor, settings)},
           [&](ddr_Model& model)
           {
               if (!cmd_Repository(model, home.repositoryWord).InsertObject(name, std::move(object)))
                   throw cmd_Error(path.Text() + ": the repository does not take the object");
           });
}

void cmd_Session::MakeInObject(const cmd_Path& owner, const std::string& constructor,
                               const cmd_Arguments& arguments)
{
    const cmd_Located located = cmd_Locate(*container.ConstGetModel(), owner);
    cls_Value whole = located.description.Export(located.object);
    const cls_Description* description = cmd_ClassOfValue(cmd_FindWithin(whole, owner));
    if (!description)
        throw cmd_Error(owner.Text() + ": expected an object, found " +
                        cmd_ScriptWithin(whole, owner).Summary());
    std::vector<std::string> words;
    std::vector<const cls_Attribute*> takers;
    for (const cls_Attribute* attribute : description->AllAttributes())
    {
        const cls_KindEnm kind = attribute->kind->Id();
        if (kind != cls_KindEnm::Optional && kind != cls_KindEnm::Object)
            continue;
        const cls_Description& root = *attribute->kind->Of();
        if (!cmd_ClassesOfWord(root, constructor).empty())
            takers.push_back(attribute);
        for (std::string& word : cmd_ConstructorsOf(root))
            words.push_back(std::move(word));
    }
    if (takers.empty())
        throw cmd_Error(owner.Text() + ": " + description->Name() + " has no constructor " + constructor +
                        ", " + cmd_ExpectedOneOf(constructor, words));
    if (takers.size() > 1)
        throw cmd_Error(owner.Text() + ": " + constructor + " fits the attributes " + takers[0]->word +
                        " and " + takers[1]->word + ", expected setValues with one of them");
    SetValues(owner, {{takers.front()->word, cmd_Value::Call{constructor, arguments}}});
}

void cmd_Session::SetValues(const cmd_Path& path, const cmd_Arguments& arguments)
{
    const cmd_Located located = cmd_Locate(*container.ConstGetModel(), path);
    const cls_Description& description = located.description;
    if (arguments.empty())
        throw cmd_Error(path.Text() + ".setValues: expected at least one word and its value");
    const cls_AnyObject copy(description, description.Info().copy(located.object));
    cmd_Arguments settings = arguments;
    if (path.steps.size() == 2)
        Apply(copy, settings);
    else
        ApplyWithin(copy, path, settings);
    Check(path, copy);
    Commit({"setValues", CallLine(path, "setValues", settings)},
           [&](ddr_Model& model)
           {
               void* object = cmd_Repository(model, path.steps[0].text).Object(path.steps[1].text);
               for (const cls_Attribute* attribute : Touched(description, path, settings))
                   attribute->kind->Import(attribute->member(object),
                                           attribute->kind->Export(attribute->Member(copy.Get())));
           });
}

void cmd_Session::Delete(const cmd_Path& path)
{
    cmd_Locate(*container.ConstGetModel(), path);
    RequireObjectPath(path);
    Commit({"del", "del " + path.Text()}, [&path](ddr_Model& model)
           { cmd_Repository(model, path.steps[0].text).RemoveObject(path.steps[1].text); });
}

void cmd_Session::Rename(const cmd_Path& path, const std::string& name, bool replace)
{
    const cmd_Located located = cmd_Locate(*container.ConstGetModel(), path);
    RequireObjectPath(path);
    RequireName(path.Text() + ".rename", name);
    const cmd_Path renamed = cmd_Path::OfObject(path.steps[0].text, name);
    const void* other = cmd_ConstRepository(*container.ConstGetModel(), path.steps[0].text).ConstObject(name);
    // Names that sort as equal are one name to the repository: the object itself may answer to its new one.
    if (other && other != located.object && !replace)
        throw cmd_Error(path.Text() + ".rename: there is an object " + renamed.Text() +
                        " already; replace=True replaces it");
    cmd_Arguments arguments{{nameWord, name}};
    if (replace)
        arguments.emplace_back("replace", true);
    Commit({"rename", CallLine(path, "rename", arguments)}, [&](ddr_Model& model)
           { cmd_Repository(model, path.steps[0].text).RenameObject(path.steps[1].text, name); });
}

cmd_Value cmd_Session::Get(const cmd_Path& path) const
{
    const ddr_Model& model = *container.ConstGetModel();
    if (path.steps.size() < 2 && (path.steps.empty() || path.steps[0].sort == cmd_Path::Step::Sort::Word))
    {
        cmd_Value::Tuple names;
        for (std::string& name : path.steps.empty()
                                     ? cmd_RepositoryWords(model)
                                     : cmd_ConstRepository(model, path.steps[0].text).ObjectNames())
            names.elements.emplace_back(std::move(name));
        return names;
    }
    const cmd_Located located = cmd_Locate(model, path);
    const cmd_Value value = cmd_ScriptWithin(located.description.Export(located.object), path);
    const cmd_Value::Call* call = path.steps.size() == 2 ? value.AsCall() : nullptr;
    if (!call)
        return value;
    cmd_Value::Call named = *call;
    named.arguments.insert(named.arguments.begin(), {nameWord, path.steps[1].text});
    return named;
}

void cmd_Session::Undo()
{
    Travel(done, undone, "undo");
}

void cmd_Session::Redo()
{
    Travel(undone, done, "redo");
}

void cmd_Session::Commit(cmd_Step step, const Change& change)
{
    const ddr_ModelHandle before = container.ConstGetModel()->Snapshot();
    done.push_back({std::move(step), before});
    try
    {
        change(*container.GetModel());
        Tell(done.back().step.line);
    }
    catch (...)
    {
        container.GetModel()->Restore(*before);
        done.pop_back();
        throw;
    }
    undone.clear();
}

void cmd_Session::Travel(std::vector<Past>& from, std::vector<Past>& to, const char* command)
{
    if (from.empty())
        throw cmd_Error(std::string("there is no command to ") + command);
    const ddr_ModelHandle before = container.ConstGetModel()->Snapshot();
    to.push_back({from.back().step, before});
    try
    {
        container.GetModel()->Restore(*from.back().model);
        Tell(std::string("model.") + command + "()");
    }
    catch (...)
    {
        container.GetModel()->Restore(*before);
        to.pop_back();
        throw;
    }
    from.pop_back();
}

void cmd_Session::Tell(const std::string& line) const
{
    if (journal)
        journal(line);
}

void cmd_Session::Check(const cmd_Path& path, const cls_AnyObject& object) const
{
    if (checks == Checks::None && !warning)
        return;
    const std::optional<cmd_BrokenRule> rule = cmd_FindBrokenRule(object.Description(), object.Get());
    if (!rule)
        return;
    const cmd_RuleError broken(path.Text(2), *rule);
    if (checks == Checks::All)
        throw broken;
    warning(broken);
}
