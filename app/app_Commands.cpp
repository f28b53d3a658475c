#include "app_Commands.h"

#include "app_Catalog.h"
#include "app_Check.h"
#include "app_Dump.h"
#include "app_Edit.h"
#include "app_Error.h"
#include "app_File.h"
#include "app_Json.h"
#include "app_Load.h"
#include "app_Picture.h"
#include "app_Show.h"
#include "app_Store.h"
#include "app_Table.h"
#include "app_Upgrade.h"
#include "cmd_Attributes.h"
#include "cmd_Difference.h"
#include "cmd_Error.h"
#include "cmd_Locate.h"
#include "cmd_Statement.h"

#include <iostream>
#include <memory>
#include <optional>
#include <sstream>

#include <fmt/format.h>
#include <unistd.h>

namespace
{

constexpr const char* storeHelp = "Stored model";
constexpr const char* modelHelp = "Stored model, or model as JSON";
constexpr const char* pathHelp = "Path of an object or of a value in it, as amplitudes['ramp'].data";
constexpr const char* jsonHelp = "Answer as JSON";
constexpr const char* forceHelp = "Replace what is there";

/// One command: its words on the command line, and what it does.
class Command
{
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    /// Adds the command to the parser.
    virtual void AddTo(CLI::App& parser) = 0;
    /// Carries it out; the exit code.
    virtual int Run() = 0;

protected:
    void AddJson(CLI::App& command) { command.add_flag("--json", json, jsonHelp); }

    bool json = false;
};

void PrintValue(const cls_Value& value, app_JsonLayout layout = app_JsonLayout::Model)
{
    app_Print(app_WriteJson(value, layout) + '\n');
}

class CatalogCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "  vdbattr catalog                    modules with their classes and constructor words\n"
            "  vdbattr catalog TabularAmplitude   one class: words, defaults, kinds of its attributes\n"
            "  vdbattr catalog --json             everything, for other programs");
        parser.add_option("CLASS", className, "Class name or constructor word; without it, all classes");
        AddJson(parser);
    }

    int Run() override
    {
        if (className.empty())
            app_Print(json ? app_CatalogJson(app_Catalog()) : app_CatalogText());
        else if (json)
            app_Print(app_CatalogJson(app_CatalogOfClass(app_FindClass(className))));
        else
            app_Print(app_CatalogTextOfClass(app_FindClass(className)));
        return app_Fine;
    }

private:
    std::string className;
};

class NewCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "  vdbattr new model.vdb\n"
            "  vdbattr new model.vdb \"TabularAmplitude(name='ramp', data=((0, 0), (1, 1)))\"\n"
            "  vdbattr new model.vdb \"amplitudes['ramp']\" TabularAmplitude data='[[0, 0], [1, 1]]'\n"
            "  vdbattr new model.vdb \"amplitudes['ramp'].BaselineCorrection(intervals=(0, 5))\"");
        parser.add_option("STORE", store, storeHelp)->required();
        CLI::Option* const objectOption =
            parser.add_option("OBJECT", object, "A new object in STORE: the call that makes it, or its path");
        parser.add_option("CLASS", className, "With a path: constructor word or class name")
            ->needs(objectOption);
        parser.add_option("WORD=VALUE", settings, "With a path: attributes, as for `set`");
        parser.add_flag("--force", force, forceHelp);
        options.AddTo(parser);
    }

    int Run() override
    {
        if (object.empty())
            MakeStore();
        else
            MakeObject();
        return app_Fine;
    }

private:
    void MakeStore() const
    {
        const app_SaveMode mode = app_SaveModeFor(store, force);
        options.RequireJournal(store);
        app_WriteStore(ddr_ModelHandle(new ddr_Model), store, mode);
    }

    void MakeObject() const
    {
        app_Editor editor(store, options);
        if (className.empty())
            app_MakeByCall(editor.Session(), object, force);
        else
            app_MakeObject(editor.Session(), cmd_ParsePath(object), app_FindClass(className), settings,
                           force);
        editor.Save();
    }

    std::string store;
    std::string object;
    std::string className;
    std::vector<std::string> settings;
    bool force = false;
    app_EditOptions options;
};

class ImportCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "A model is an object of repositories of named objects; left-out attributes take their "
            "defaults:\n"
            "  {\"amplitudes\": {\"ramp\": {\"class\": \"kamC_Tabular\", \"data\": [[0, 0], [1, 1]]}}}\n"
            "A model that is refused leaves no trace.");
        parser.add_option("MODEL", model, "Model as JSON")->required();
        parser.add_option("STORE", store, "Stored model to make")->required();
        parser.add_flag("--force", force, forceHelp);
        AddJson(parser);
    }

    int Run() override
    {
        const app_SaveMode mode = app_SaveModeFor(store, force);
        const ddr_ModelHandle taken = app_ReadJsonModel(app_ReadFile(model), model);
        app_WriteStore(taken, store, mode);
        const int count = app_ObjectCount(*taken);
        if (json)
            PrintValue(cls_Value::Object{{"store", store}, {"objects", count}}, app_JsonLayout::OneLine);
        else
            app_Print(fmt::format("{}: {}\n", store, app_Count(count, "object")));
        return app_Fine;
    }

private:
    std::string model;
    std::string store;
    bool force = false;
};

class ExportCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "What is exported and imported again is the same model, and exported again the same text.\n"
            "  vdbattr export model.vdb | diff reviewed.json -");
        parser.add_option("STORE", store, modelHelp)->required();
        parser.add_option("-o,--output", output, "File to write; standard output without it");
        parser.add_flag("--json", json, "The form that is written in any case");
    }

    int Run() override
    {
        const std::string text = app_WriteJsonModel(*app_ReadModel(store));
        if (output.empty())
            app_Print(text);
        else
            app_WriteFile(output, text);
        return app_Fine;
    }

private:
    std::string store;
    std::string output;
};

class ShowCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("  vdbattr show model.vdb\n"
                      "  vdbattr show model.vdb \"amplitudes['ramp']\"\n"
                      "  vdbattr show model.vdb \"profiles['girder']\" --svg girder.svg\n"
                      "A picture is drawn of an amplitude that stands for a curve, of a beam profile with a\n"
                      "shape, and of a material with a table of hardening or test data.");
        parser.add_option("STORE", store, modelHelp)->required();
        CLI::Option* const pathOption =
            parser.add_option("PATH", path, "Path of one object; without it, all objects are listed");
        AddJson(parser);
        parser.add_option("--svg", picture, "Draw the object to this file, as SVG")
            ->needs(pathOption)
            ->excludes("--json");
    }

    int Run() override
    {
        const ddr_ModelHandle model = app_ReadModel(store);
        if (path.empty())
            ShowList(*model);
        else
            ShowObject(*model);
        return app_Fine;
    }

private:
    void ShowList(const ddr_Model& model) const
    {
        if (json)
            PrintValue(app_ValueOfList(model), app_JsonLayout::Records);
        else
            app_Print(app_ShowModel(model, store));
    }

    void ShowObject(const ddr_Model& model) const
    {
        const cmd_Path where = cmd_ParsePath(path);
        const app_Object object = app_FindObject(model, where);
        cls_Value whole = object.description.Export(object.object);
        const cls_Value& shown = cmd_FindWithin(whole, where);
        if (!cmd_ClassOfValue(shown))
            throw app_Error("show: " + path + ": expected an object; `vdbattr get` prints a value in one");
        if (picture)
            Draw(shown);
        else if (json)
            PrintValue(shown);
        else
            app_Print(where.steps.size() == 2 ? app_ShowObject(object) : app_ShowPart(path, shown));
    }

    void Draw(const cls_Value& object) const
    {
        if (app_IsSameFile(*picture, store))
            throw app_Error("show: " + *picture + ": is the model itself, expected another file to draw to");
        app_WriteFile(*picture, app_PictureOf(path, object));
    }

    std::string store;
    std::string path;
    std::optional<std::string> picture;
};

class GetCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("  vdbattr get model.vdb \"amplitudes['ramp']\" timeSpan\n"
                      "  vdbattr get model.vdb \"amplitudes['ramp'].data[1][0]\"\n"
                      "  vdbattr get model.vdb \"amplitudes['record'].baselineCorrection\"");
        parser.add_option("STORE", store, modelHelp)->required();
        parser.add_option("PATH", path, pathHelp)->required();
        parser.add_option("WORD", word, "Attribute; without it, the whole value");
        AddJson(parser);
    }

    int Run() override
    {
        const cmd_Session session(app_ReadModel(store));
        const cmd_Path object = cmd_ParsePath(path);
        const cmd_Path where = word.empty() ? object : object.WithWord(word);
        const cmd_Value value = session.Get(where);
        if (json)
            PrintValue(where.steps.size() < 2 ? NamesOf(value) : StoredValue(*session.Model(), where));
        else
            app_Print(value.Text() + '\n');
        return app_Fine;
    }

private:
    static cls_Value NamesOf(const cmd_Value& names)
    {
        cls_Value::Array texts;
        for (const cmd_Value& name : *names.AsElements())
            texts.emplace_back(*name.AsText());
        return texts;
    }

    static cls_Value StoredValue(const ddr_Model& model, const cmd_Path& where)
    {
        const cmd_Located located = cmd_Locate(model, where);
        cls_Value whole = located.description.Export(located.object);
        return cmd_FindWithin(whole, where);
    }

    std::string store;
    std::string path;
    std::string word;
};

class SetCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "VALUE is JSON, a value as scripts write it, or plain text: smooth=0.25 timeSpan=TOTAL\n"
            "smooth=unset data='[[0, 0], [1, 1]]' baselineCorrection='{\"intervals\": [0, 5]}'\n"
            "baselineCorrection=null 'baselineCorrection=BaselineCorrection(intervals=(0, 5))'.\n"
            "All values are set together, and none if a rule would be broken. With --unchecked broken\n"
            "rules are only warned of, and `vdbattr check` lists them.");
        parser.add_option("STORE", store, storeHelp)->required();
        parser.add_option("PATH", path, "Path of an object, or of an object in one")->required();
        parser.add_option("WORD=VALUE", settings, "Attributes and their new values")->required();
        options.AddTo(parser);
        AddJson(parser);
    }

    int Run() override
    {
        app_Editor editor(store, options);
        const cmd_Path where = cmd_ParsePath(path);
        const std::vector<app_Change> changes = app_SetValues(editor.Session(), where, settings);
        editor.Save();
        for (const app_Change& change : changes)
        {
            if (!json)
                app_Print(fmt::format("{}.{}: {} -> {}\n", path, change.word, app_DigestText(change.before),
                                      app_DigestText(change.after)));
        }
        if (json)
            PrintValue(app_ValueOfChanges(path, changes));
        return app_Fine;
    }

private:
    std::string store;
    std::string path;
    std::vector<std::string> settings;
    app_EditOptions options;
};

class DeleteCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("  vdbattr del model.vdb \"amplitudes['ramp']\"");
        parser.add_option("STORE", store, storeHelp)->required();
        parser.add_option("PATH", path, "Path of the object")->required();
        options.AddJournalTo(parser);
    }

    int Run() override
    {
        app_Editor editor(store, options);
        editor.Session().Delete(cmd_ParsePath(path));
        editor.Save();
        return app_Fine;
    }

private:
    std::string store;
    std::string path;
    app_EditOptions options;
};

class RenameCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("  vdbattr rename model.vdb \"amplitudes['ramp']\" rise");
        parser.add_option("STORE", store, storeHelp)->required();
        parser.add_option("PATH", path, "Path of the object")->required();
        parser.add_option("NAME", name, "Its new name")->required();
        parser.add_flag("--force", force, "Replace an object that has the name");
        options.AddJournalTo(parser);
    }

    int Run() override
    {
        app_Editor editor(store, options);
        editor.Session().Rename(cmd_ParsePath(path), name, force);
        editor.Save();
        return app_Fine;
    }

private:
    std::string store;
    std::string path;
    std::string name;
    bool force = false;
    app_EditOptions options;
};

constexpr const char* scriptHelp =
    "Commands are lines of Python, as a journal has them; a path alone prints what is there:\n"
    "  model.TabularAmplitude(name='ramp', data=((0.0, 0.0), (1.0, 1.0)))\n"
    "  model.amplitudes['ramp'].setValues(timeSpan=TOTAL, smooth=0.25)\n"
    "  model.amplitudes['ramp'].rename(name='rise')\n"
    "  del model.amplitudes['rise']\n"
    "  model.undo()\n"
    "  model.amplitudes['ramp'].data\n"
    "The store is changed when all lines are done. A line that is refused ends a script, and nothing\n"
    "is changed; ";

class RunCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(std::string(scriptHelp) + "the message tells file and line.");
        parser.add_option("STORE", store, storeHelp)->required();
        parser.add_option("SCRIPT", script, "Script or journal to carry out; - for standard input")
            ->required();
        options.AddTo(parser);
    }

    int Run() override
    {
        const bool isInput = script == "-";
        std::istringstream lines(isInput ? "" : app_ReadFile(script));
        app_Editor editor(store, options);
        if (isInput)
            app_RunScript(editor.Session(), std::cin, standardInput);
        else
            app_RunScript(editor.Session(), lines, script);
        editor.Save();
        return app_Fine;
    }

    static constexpr const char* standardInput = "standard input";

private:
    std::string store;
    std::string script;
    app_EditOptions options;
};

class EditCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(std::string(scriptHelp) + "at a terminal the next line is asked for.");
        parser.add_option("STORE", store, storeHelp)->required();
        options.AddTo(parser);
    }

    int Run() override
    {
        app_Editor editor(store, options);
        if (::isatty(STDIN_FILENO) == 1)
            app_TalkScript(editor.Session(), std::cin);
        else
            app_RunScript(editor.Session(), std::cin, RunCommand::standardInput);
        editor.Save();
        return app_Fine;
    }

private:
    std::string store;
    app_EditOptions options;
};

class DiffCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "Objects that are only in B are shown with +, those only in A with -, those that differ\n"
            "with ~ and their attributes in A and in B. Exit code: 0 if nothing differs, 1 if\n"
            "something does, 2 if a model cannot be read.");
        parser.add_option("A", before, modelHelp)->required();
        parser.add_option("B", after, modelHelp)->required();
        AddJson(parser);
    }

    int Run() override
    {
        const ddr_ModelHandle old = app_ReadModel(before);
        const ddr_ModelHandle current = app_ReadModel(after);
        const std::vector<cmd_ObjectDifference> differences = cmd_Compare(*old, *current);
        if (json)
            PrintValue(cmd_ValueOfDifferences(differences), app_JsonLayout::Records);
        else
            app_Print(cmd_TextOfDifferences(differences));
        return differences.empty() ? app_Fine : app_Findings;
    }

private:
    std::string before;
    std::string after;
};

class CheckCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "An object on its own is JSON that names its class: {\"class\": \"kamC_Tabular\", ...}.\n"
            "With --lines each line of standard input is such an object, and each is answered by a\n"
            "line: {\"ok\": true}, {\"ok\": false, \"code\": 2, \"message\": \"...\"} for a broken rule\n"
            "(no code where the text is raised directly), {\"ok\": false, \"error\": \"...\"} for a line\n"
            "that describes no object. Exit code: 0 if all is well, 1 if a rule is broken, 2 if a\n"
            "file or line cannot be read.");
        CLI::Option* const fileOption =
            parser.add_option("FILE", file, "Stored model, model as JSON, or one object as JSON");
        parser.add_flag("--lines", lines, "Check one object a line from standard input")
            ->excludes(fileOption);
        AddJson(parser);
    }

    int Run() override
    {
        if (lines)
            return CheckLines();
        if (file.empty())
            throw app_Error("check: expected a file, or --lines");
        std::vector<app_Finding> findings;
        const int count = CheckFile(findings);
        if (json)
            PrintJson(findings, count);
        else
            PrintText(findings, count);
        return findings.empty() ? app_Fine : app_Findings;
    }

private:
    static int CheckLines()
    {
        int exitCode = app_Fine;
        std::string line;
        while (std::getline(std::cin, line))
        {
            const app_LineAnswer answer = app_CheckLine(line);
            app_PrintNow(answer.json + '\n');
            exitCode = std::max(exitCode, answer.exitCode);
        }
        return exitCode;
    }

    /// Gathers the findings; count of objects.
    int CheckFile(std::vector<app_Finding>& findings) const
    {
        if (app_IsJsonFile(file))
        {
            const std::string text = app_ReadFile(file);
            if (app_IsJsonObject(text))
                return CheckObject(text, findings);
            return CheckModel(app_ReadJsonModel(text, file), findings);
        }
        return CheckModel(app_ReadStore(file), findings);
    }

    int CheckObject(const std::string& text, std::vector<app_Finding>& findings) const
    {
        const cls_Value value = app_ParseJson(text, file);
        try
        {
            const cls_AnyObject object = app_ObjectOfValue(value);
            if (auto finding = app_CheckObject(object.Description(), object.Get(), ""))
                findings.push_back(*finding);
            return 1;
        }
        catch (const cls_ValueError& error)
        {
            throw app_Error(file + ": " + error.what());
        }
    }

    static int CheckModel(const ddr_ModelHandle& model, std::vector<app_Finding>& findings)
    {
        const int count = app_ObjectCount(*model);
        app_Progress progress("checking", count);
        findings = app_CheckModel(*model, progress);
        return count;
    }

    void PrintJson(const std::vector<app_Finding>& findings, int count) const
    {
        cls_Value::Array values;
        for (const app_Finding& finding : findings)
            values.push_back(app_ValueOfFinding(finding));
        PrintValue(cls_Value::Object{{"file", file},
                                     {"ok", findings.empty()},
                                     {"objects", count},
                                     {"findings", std::move(values)}},
                   app_JsonLayout::Records);
    }

    void PrintText(const std::vector<app_Finding>& findings, int count) const
    {
        using enum app_Table::Align;
        app_Table table({Left, Left, Left});
        for (const app_Finding& finding : findings)
            table.Add({finding.path.empty() ? finding.className : finding.path, finding.id,
                       app_OnOneLine(finding.message)});
        app_Print(table.Text(0));
        const std::string objects = app_Count(count, "object");
        if (findings.empty())
            app_Print(fmt::format("{}: {}, all rules hold\n", file, objects));
        else
            app_Print(fmt::format("{}: {}, {}\n", file, objects,
                                  app_Count(static_cast<long>(findings.size()), "finding")));
    }

    std::string file;
    bool lines = false;
};

class DumpCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer(
            "A store of any version is shown, also one that cannot be read as a model. `vdbattr load`\n"
            "makes the same store of the text again. Exit code: 0 fine, 1 if rows are damaged; they\n"
            "are printed too, with a comment.");
        parser.add_option("STORE", store, storeHelp)->required();
        AddJson(parser);
    }

    int Run() override
    {
        if (!json)
            return PrintText();
        app_PrintDumpAsJson(store);
        return app_Fine;
    }

private:
    int PrintText() const
    {
        const long damaged = app_PrintDump(store);
        if (damaged == 0)
            return app_Fine;
        app_Warn(
            fmt::format("{}: {} not fit the check number", store, app_Count(damaged, "row does", "rows do")));
        return app_Findings;
    }

    std::string store;
};

class LoadCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("Rows are text as `vdbattr dump` prints it, of any version and of any class:\n"
                      "  vdbattr dump model.vdb > model.rows\n"
                      "  vdbattr load model.rows copy.vdb\n"
                      "Check numbers are made anew, and identities where the text has none. Text that is\n"
                      "refused leaves no trace.");
        parser.add_option("ROWS", rows, "Rows as text")->required();
        parser.add_option("STORE", store, "Stored model to make")->required();
        parser.add_flag("--force", force, forceHelp);
    }

    int Run() override
    {
        app_Load(rows, store, app_SaveModeFor(store, force));
        return app_Fine;
    }

private:
    std::string rows;
    std::string store;
    bool force = false;
};

class UpgradeCommand : public Command
{
public:
    void AddTo(CLI::App& parser) override
    {
        parser.footer("  vdbattr upgrade --dry-run old.vdb    what would be done\n"
                      "  vdbattr upgrade old.vdb new.vdb\n"
                      "The old file stays as it is. The new one is there when it is complete and checked.");
        parser.add_option("OLD", oldStore, "Stored model of this or an older release")->required();
        parser.add_option("NEW", newStore, "Stored model to make; there must be no such file");
        parser.add_flag("--dry-run", options.dryRun, "Make nothing, tell what would be done");
        AddJson(parser);
    }

    int Run() override
    {
        options.json = json;
        app_Upgrade(oldStore, newStore, options);
        return app_Fine;
    }

private:
    std::string oldStore;
    std::string newStore;
    app_UpgradeOptions options;
};

template <class C>
void Add(CLI::App& parser, int& exitCode, const char* name, const char* about)
{
    CLI::App* const sub = parser.add_subcommand(name, about);
    const auto command = std::make_shared<C>();
    command->AddTo(*sub);
    sub->callback([command, &exitCode] { exitCode = command->Run(); });
}

} // namespace

void app_AddCommands(CLI::App& parser, int& exitCode)
{
    Add<CatalogCommand>(parser, exitCode, "catalog",
                        "List all that the library has: classes, words, messages");
    Add<NewCommand>(parser, exitCode, "new", "Make an empty stored model, or an object in one");
    Add<ImportCommand>(parser, exitCode, "import", "Make a stored model of a model as JSON");
    Add<ExportCommand>(parser, exitCode, "export", "Print a stored model as JSON");
    Add<ShowCommand>(parser, exitCode, "show", "List the objects of a model, or show or draw one");
    Add<GetCommand>(parser, exitCode, "get", "Print an attribute");
    Add<SetCommand>(parser, exitCode, "set", "Change attributes of an object");
    Add<DeleteCommand>(parser, exitCode, "del", "Delete an object");
    Add<RenameCommand>(parser, exitCode, "rename", "Give an object another name");
    Add<RunCommand>(parser, exitCode, "run", "Carry out a script or a journal on a stored model");
    Add<EditCommand>(parser, exitCode, "edit", "Carry out commands as they are typed, with undo and redo");
    Add<DiffCommand>(parser, exitCode, "diff", "Show what differs between two models");
    Add<CheckCommand>(parser, exitCode, "check", "Check objects by the rules of their classes");
    Add<UpgradeCommand>(parser, exitCode, "upgrade", "Make a stored model of this release of an older one");
    Add<DumpCommand>(parser, exitCode, "dump", "Print the tables of a stored model, row by row");
    Add<LoadCommand>(parser, exitCode, "load", "Make a stored model of rows as text, of any version");
}
