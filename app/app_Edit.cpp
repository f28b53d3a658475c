#include "app_Edit.h"

#include "app_File.h"
#include "app_Json.h"
#include "cls_Unset.h"
#include "cmd_Attributes.h"
#include "cmd_Error.h"
#include "cmd_Locate.h"
#include "cmd_Script.h"
#include "cmd_Statement.h"

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

std::optional<cmd_Value> TryScript(const std::string& text)
{
    try
    {
        return cmd_ParseValue(text);
    }
    catch (const cmd_Error&)
    {
        return std::nullopt;
    }
}

/// The text as JSON or as scripts write it, or nothing if it is neither. A text that begins like JSON must be
/// one of them.
std::optional<cmd_Value> TryValue(const Setting& setting)
{
    try
    {
        return cmd_ValueOfPlain(app_ParseJson(setting.text, setting.word));
    }
    catch (const app_Error&)
    {
        std::optional<cmd_Value> value = TryScript(setting.text);
        const char first = setting.text.empty() ? '\0' : setting.text.front();
        if (!value && (first == '[' || first == '{' || first == '"'))
            throw;
        return value;
    }
}

/// What the text of a setting stands for in an attribute of this kind.
cmd_Value ValueOf(const Setting& setting, const cls_Kind& kind)
{
    const std::optional<cmd_Value> value = TryValue(setting);
    switch (kind.Id())
    {
    case cls_KindEnm::String:
        return value && value->AsText() ? *value : cmd_Value(setting.text);
    case cls_KindEnm::Double:
        return setting.text == "unset" ? cmd_Value(cls_UnsetDouble) : value.value_or(setting.text);
    case cls_KindEnm::Int:
        return setting.text == "unset" ? cmd_Value(cls_UnsetInt) : value.value_or(setting.text);
    default:
        return value.value_or(setting.text);
    }
}

cmd_Arguments ArgumentsOf(const cls_Description& description, const std::vector<std::string>& settings)
{
    cmd_Arguments arguments;
    for (const std::string& text : settings)
    {
        const Setting setting = ParseSetting(text);
        const cls_Attribute& attribute = cmd_RequireAttribute(description, setting.word, setting.text);
        arguments.emplace_back(setting.word, ValueOf(setting, *attribute.kind));
    }
    return arguments;
}

/// Runs a command on the object at a path; a rule that it breaks is told with the path.
template <class Command>
void Obeying(const std::string& path, Command command)
{
    try
    {
        command();
    }
    catch (const nex_PrimException<atr_String, 1>& rule)
    {
        throw app_RuleError((path.empty() ? "" : path + ": ") + rule.what());
    }
}

/// The object at a path as a value.
cls_Value ObjectAt(const ddr_Model& model, const cmd_Path& path)
{
    const cmd_Located located = cmd_Locate(model, path);
    cls_Value whole = located.description.Export(located.object);
    cls_Value part = cmd_FindWithin(whole, path);
    if (!cmd_ClassOfValue(part))
        throw app_Error(path.Text() + " is " + part.Summary() + ", expected an object");
    return part;
}

} // namespace

void app_EditOptions::AddJournalTo(CLI::App& parser)
{
    parser.add_option("--journal", journal, "File to which each command is added as a line of Python");
}

void app_EditOptions::AddTo(CLI::App& parser)
{
    AddJournalTo(parser);
    parser.add_flag("--unchecked", unchecked, "Take changes that break a rule");
}

app_Editor::app_Editor(const std::string& store, const app_EditOptions& options)
    : store(store),
      journal(options.journal),
      session(app_ReadStore(store), options.unchecked ? cmd_Session::Checks::None : cmd_Session::Checks::All)
{
    session.SetJournal([this](const std::string& line) { lines += line + '\n'; });
    if (!journal.empty())
        app_AppendToFile(journal, "");
}

void app_Editor::Save()
{
    if (lines.empty())
        return;
    app_WriteStore(session.Model(), store, app_SaveMode::InPlace);
    if (!journal.empty())
        app_AppendToFile(journal, lines);
    lines.clear();
}

std::vector<app_Change> app_SetValues(cmd_Session& session, const cmd_Path& path,
                                      const std::vector<std::string>& settings)
{
    const cls_Value before = ObjectAt(*session.Model(), path);
    const cls_Description& description = *cmd_ClassOfValue(before);
    const cmd_Arguments arguments = ArgumentsOf(description, settings);
    Obeying(path.Text(), [&] { session.SetValues(path, arguments); });
    const cls_Value after = ObjectAt(*session.Model(), path);
    std::vector<app_Change> changes;
    for (const auto& argument : arguments)
    {
        const char* const name = description.FindByWord(argument.first)->field.Name().CString();
        changes.push_back({argument.first, *before.Find(name), *after.Find(name)});
    }
    return changes;
}

void app_MakeObject(cmd_Session& session, const cmd_Path& path, const cls_Description& description,
                    const std::vector<std::string>& settings, bool replace)
{
    if (path.steps.size() != 2)
        throw app_Error(path.Text() + ": expected the path of an object, as model.amplitudes['ramp']");
    const mdl_NamedObjects& repository = cmd_ConstRepository(*session.Model(), path.steps[0].text);
    const std::string& name = path.steps[1].text;
    const cls_Description& root = repository.ObjectRoot();
    const char* const constructor = cmd_ConstructorOf(description);
    if (!constructor || description.IsAbstract() || !description.IsA(root.Id()))
        throw app_Error(path.Text() + ": expected a class derived from " + root.Name() +
                        " that has objects, found " + description.Name());
    if (repository.ConstObject(name) && !replace)
        throw app_Error(path.Text() + ": there is such an object already; --force replaces it");
    cmd_Arguments arguments = ArgumentsOf(description, settings);
    arguments.insert(arguments.begin(), {"name", name});
    Obeying(path.Text(), [&] { session.Make(cmd_Path(), constructor, arguments); });
}

std::string app_RunLine(cmd_Session& session, const std::string& line)
{
    std::string answer;
    Obeying("", [&] { answer = cmd_Run(session, line); });
    return answer;
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
