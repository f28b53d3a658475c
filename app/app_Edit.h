#pragma once

#include "app_Error.h"
#include "app_Store.h"
#include "cmd_Session.h"

#include <iosfwd>

#include <CLI/CLI.hpp>

/// How a store is changed, as the command line says.
struct app_EditOptions
{
    std::string journal;
    bool unchecked = false;

    void AddTo(CLI::App& parser);
    /// The journal alone, for commands that break no rule.
    void AddJournalTo(CLI::App& parser);
    /// Throws `app_Error` if there is to be a journal and it cannot be written, or is the store itself.
    void RequireJournal(const std::string& store) const;
};

/// A store under change: its model takes commands, and all of them reach the file together, or none.
class app_Editor
{
public:
    /// Reads the store. Changes that break a rule are warned of where they are taken. Throws
    /// `rom_StoreException`, and `app_Error` if the journal cannot be written.
    app_Editor(const std::string& store, const app_EditOptions& options);

    cmd_Session& Session() { return session; }

    const ddr_Model& Model() const { return *session.Model(); }

    /// Puts the changed model into the store, and then adds the commands to the journal. Throws
    /// `rom_StoreException` if the one fails, and `app_Error` if the other does.
    void Save();

private:
    std::string store;
    std::string journal;
    std::string lines;
    cmd_Session session;
};

/// An attribute that was changed.
struct app_Change
{
    std::string word;
    cls_Value before;
    cls_Value after;
};

/// Sets attributes of the object that the path leads to; each setting is "word=value" with JSON, a value as
/// scripts write it, or plain text. Throws `cmd_Error`, `app_Error` or `app_RuleError`; nothing is changed
/// then.
std::vector<app_Change> app_SetValues(cmd_Session& session, const cmd_Path& path,
                                      const std::vector<std::string>& settings);

/// Makes an object by a call as scripts write it, "model." before it left out or not. Throws as above, also
/// if the name is taken and `replace` is false.
void app_MakeByCall(cmd_Session& session, const std::string& call, bool replace);
/// Makes an object of a class, with settings as above. Throws as above.
void app_MakeObject(cmd_Session& session, const cmd_Path& path, const cls_Description& description,
                    const std::vector<std::string>& settings, bool replace);

/// Carries out the lines of a script, which `source` names in messages, and prints what they say. Throws
/// `cmd_Error` or `app_RuleError` with source and line; the session then stands before that line.
void app_RunScript(cmd_Session& session, std::istream& script, const std::string& source);

/// The same line by line with a person, who is asked for each and told of those that are refused.
void app_TalkScript(cmd_Session& session, std::istream& input);

/// Changes as a value.
cls_Value app_ValueOfChanges(const std::string& path, const std::vector<app_Change>& changes);

/// How to save to a store: in place if there is one and `force` is given. Throws `app_Error` if there is one
/// otherwise.
app_SaveMode app_SaveModeFor(const std::string& store, bool force);
