#pragma once

#include "cmd_Path.h"
#include "cmd_Rules.h"
#include "cmd_Value.h"
#include "ddr_DdbContainer.h"

#include <functional>

class cls_AnyObject;

/// One change of a model, as it is shown and written down.
struct cmd_Step
{
    /// What kind of change it is: "TabularAmplitude", "setValues", "del" or "rename".
    std::string name;
    /// The command as one line of Python that would do it again.
    std::string line;
};

/// A model under work: every change of it goes through here, from whatever front end. A command is carried
/// out whole or not at all: the changed object is checked by the rules of its class before it takes the place
/// of the old one, and what throws leaves the model as it was. Each command can be undone, and is told to a
/// listener as a line of Python.
///
/// A command that cannot be carried out throws `cmd_Error`, and one that breaks a rule `cmd_RuleError`.
class OVR_EXPORT cmd_Session
{
public:
    /// Told of each command after it was carried out, of undo and redo too. If it throws, the command is
    /// taken back.
    using Journal = std::function<void(const std::string& line)>;

    enum class Checks
    {
        All, ///< A change after which a rule is broken is refused.
        None ///< Any change is taken; the listener to warnings is told of the rule.
    };

    /// Begins with an empty model.
    explicit cmd_Session(Checks checks = Checks::All);
    /// Begins with this model, which is shared: changes are this session's own.
    explicit cmd_Session(const ddr_ModelHandle& model, Checks checks = Checks::All);

    /// The model, also to take a share of it.
    const ddr_ModelHandle& Model() const { return container.Handle(); }

    void SetJournal(Journal listener) { journal = std::move(listener); }

    /// Told of the rules that changes break which are taken all the same.
    using Warning = std::function<void(const cmd_RuleError& broken)>;

    void SetWarning(Warning listener) { warning = std::move(listener); }

    /// Makes an object by its constructor word. At the model, the argument `name` tells under which name it
    /// goes into its repository, where it takes the place of one that has the name; at an object, it becomes
    /// the value of the one attribute that can hold it.
    void Make(const cmd_Path& owner, const std::string& constructor, const cmd_Arguments& arguments);

    /// Sets attributes of an object of a repository, or of an object within it, by their words.
    void SetValues(const cmd_Path& path, const cmd_Arguments& arguments);

    /// Removes an object from its repository.
    void Delete(const cmd_Path& path);

    /// Gives an object of a repository another name. An object that has it already is replaced only on
    /// request.
    void Rename(const cmd_Path& path, const std::string& name, bool replace = false);

    /// The value at a path: of an object, the call that would make it; of a repository, the names in it; of
    /// the model, the words of its repositories.
    cmd_Value Get(const cmd_Path& path) const;

    /// The command that Undo would take back, or Redo carry out again; null if there is none.
    const cmd_Step* NextUndo() const { return done.empty() ? nullptr : &done.back().step; }

    const cmd_Step* NextRedo() const { return undone.empty() ? nullptr : &undone.back().step; }

    /// Takes the last command back, or carries out again what was taken back last. Throws `cmd_Error` if
    /// there is none.
    void Undo();
    void Redo();

private:
    /// A command, and the model that undoing or redoing it brings back.
    struct Past
    {
        cmd_Step step;
        ddr_ModelHandle model;
    };

    using Change = std::function<void(ddr_Model& model)>;

    void Commit(cmd_Step step, const Change& change);
    void Travel(std::vector<Past>& from, std::vector<Past>& to, const char* command);
    void Tell(const std::string& line) const;
    /// By the rules of its class, the object to which the first two steps of the path lead.
    void Check(const cmd_Path& path, const cls_AnyObject& object) const;
    void MakeInModel(const std::string& constructor, const cmd_Arguments& arguments);
    void MakeInObject(const cmd_Path& owner, const std::string& constructor, const cmd_Arguments& arguments);

    ddr_DdbContainer container;
    Checks checks;
    Journal journal;
    Warning warning;
    std::vector<Past> done;
    std::vector<Past> undone;
};
