#include "app_Edit.h"

#include "app_File.h"
#include "app_Json.h"
#include "cls_Unset.h"
#include "cmd_Attributes.h"
#include "cmd_Error.h"
#include "cmd_Locate.h"
#include "cmd_Script.h"
#include "cmd_Statement.h"

#include <cstring>
#include <filesystem>
#include <istream>
#include <optional>
#include <string_view>

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

/// The text as JSON or as scripts write it. Throws `cmd_Error` if it is neither.
cmd_Value ReadValue(const Setting& setting)
{
    try
    {
        return cmd_ValueOfPlain(app_ParseJson(setting.text, setting.word));
    }
    catch (const app_Error&)
    {
        return cmd_ParseValue(setting.text);
    }
}

/// The text itself, for an attribute that takes plain texts, unless it begins as a value does.
std::optional<cmd_Value> TryPlainText(const std::string& text, cls_KindEnm kind)
{
    const bool isValue = !text.empty() && std::strchr("[{(\"'", text.front());
    if (isValue || (kind != cls_KindEnm::String && kind != cls_KindEnm::Enum))
        return std::nullopt;
    return text;
}

/// What the text of a setting stands for in an attribute.
cmd_Value ValueOf(const Setting& setting, const cls_Attribute& attribute)
{
    const cls_KindEnm kind = attribute.kind->Id();
    if (setting.text == "unset" && kind == cls_KindEnm::Double)
        return cls_UnsetDouble;
    if (setting.text == "unset" && kind == cls_KindEnm::Int)
        return cls_UnsetInt;
    try
    {
        const cmd_Value value = ReadValue(setting);
        return kind == cls_KindEnm::String && !value.AsText() ? cmd_Value(setting.text) : value;
    }
    catch (const cmd_Error&)
    {
        if (const std::optional<cmd_Value> text = TryPlainText(setting.text, kind))
            return *text;
        throw;
    }
}

cmd_Arguments ArgumentsOf(const cls_Description& description, const std::vector<std::string>& settings)
{
    cmd_Arguments arguments;
    for (const std::string& text : settings)
    {
        const Setting setting = ParseSetting(text);
        const cls_Attribute& attribute = cmd_RequireAttribute(description, setting.word, setting.text);
        try
        {
            arguments.emplace_back(setting.word, ValueOf(setting, attribute));
        }
        catch (const cmd_Error& error)
        {
            throw cmd_Error(std::string(description.Name()) + '.' + setting.word + ": ", error);
        }
    }
    return arguments;
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

void PrintAnswer(const std::string& answer)
{
    if (!answer.empty())
        app_Print(answer + '\n');
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

void app_EditOptions::RequireJournal(const std::string& store) const
{
    if (journal.empty())
        return;
    std::error_code ignored;
    if (std::filesystem::equivalent(journal, store, ignored))
        throw app_Error(journal + ": is the store, expected another file as journal");
    app_AppendLines(journal, "");
}

app_Editor::app_Editor(const std::string& store, const app_EditOptions& options)
    : store(store),
      journal(options.journal),
      session(app_ReadStore(store), options.unchecked ? cmd_Session::Checks::None : cmd_Session::Checks::All)
{
    session.SetJournal([this](const std::string& line) { lines += line + '\n'; });
    session.SetWarning([](const cmd_RuleError& broken) { app_Warn(broken.what()); });
    options.RequireJournal(store);
}

void app_Editor::Save()
{
    if (lines.empty())
        return;
    app_WriteStore(session.Model(), store, app_SaveMode::InPlace);
    if (journal.empty())
        return;
    try
    {
        app_AppendLines(journal, lines);
    }
    catch (const app_Error& error)
    {
        throw app_Error(std::string(error.what()) + "; " + store + " is changed all the same");
    }
    lines.clear();
}

std::vector<app_Change> app_SetValues(cmd_Session& session, const cmd_Path& path,
                                      const std::vector<std::string>& settings)
{
    const cls_Value before = ObjectAt(*session.Model(), path);
    const cls_Description& description = *cmd_ClassOfValue(before);
    const cmd_Arguments arguments = ArgumentsOf(description, settings);
    session.SetValues(path, arguments);
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
    session.Make(cmd_Path(), constructor, arguments);
}

void app_MakeByCall(cmd_Session& session, const std::string& call, bool replace)
{
    constexpr std::string_view model = "model.";
    const bool isWhole = call.compare(0, model.size(), model) == 0;
    const cmd_Statement statement = cmd_ParseStatement(isWhole ? call : std::string(model) + call);
    if (statement.sort != cmd_Statement::Sort::Call)
        throw app_Error(call +
                        ": expected a constructor's call, as DecayAmplitude(name='fading', initial=1.0), "
                        "or the class of the new object after its path");
    const int count = app_ObjectCount(*session.Model());
    session.Make(statement.path, statement.word, statement.arguments);
    const bool isReplaced = statement.path.steps.empty() && app_ObjectCount(*session.Model()) == count;
    if (isReplaced && !replace)
        throw app_Error(call + ": there is an object of this name already; --force replaces it");
}

void app_RunScript(cmd_Session& session, std::istream& script, const std::string& source)
{
    std::string line;
    for (long number = 1; std::getline(script, line); ++number)
    {
        const std::string where = source + ':' + std::to_string(number) + ": ";
        try
        {
            PrintAnswer(cmd_Run(session, line));
        }
        catch (const cmd_RuleError& error)
        {
            throw cmd_RuleError(where, error);
        }
        catch (const cmd_Error& error)
        {
            throw cmd_Error(where, error);
        }
    }
}

void app_TalkScript(cmd_Session& session, std::istream& input)
{
    std::string line;
    while (app_PrintNow(">>> "), std::getline(input, line))
    {
        try
        {
            PrintAnswer(cmd_Run(session, line));
        }
        catch (const cmd_RuleError& error)
        {
            app_Warn(error.what());
        }
        catch (const cmd_Error& error)
        {
            app_Warn(error.what(), error.Place());
        }
    }
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
