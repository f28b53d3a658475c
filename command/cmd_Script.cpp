#include "cmd_Script.h"

#include "cmd_Error.h"
#include "cmd_Statement.h"

namespace
{

void RequireNoArguments(const cmd_Statement& statement)
{
    if (!statement.arguments.empty())
        throw cmd_Error(statement.path.Text() + '.' + statement.word + ": expected no arguments, found " +
                        statement.arguments.front().first + '=' +
                        statement.arguments.front().second.Summary());
}

void Rename(cmd_Session& session, const cmd_Statement& statement)
{
    const std::string where = statement.path.Text() + ".rename";
    const std::string* name = nullptr;
    bool replace = false;
    for (const auto& [word, value] : statement.arguments)
    {
        const bool isName = word == "name" && value.AsText();
        const bool isReplace = word == "replace" && value.AsBool();
        if (isName)
            name = value.AsText();
        else if (isReplace)
            replace = *value.AsBool();
        else
            throw cmd_Error(where + ": found " + word + '=' + value.Summary() +
                            ", expected name and a text in quotes, or replace and True or False");
    }
    if (!name)
        throw cmd_Error(where + ": the argument name is missing, expected a text in quotes");
    session.Rename(statement.path, *name, replace);
}

void Call(cmd_Session& session, const cmd_Statement& statement)
{
    if (statement.path.steps.empty() && statement.word == "undo")
    {
        RequireNoArguments(statement);
        session.Undo();
    }
    else if (statement.path.steps.empty() && statement.word == "redo")
    {
        RequireNoArguments(statement);
        session.Redo();
    }
    else if (statement.word == "setValues")
        session.SetValues(statement.path, statement.arguments);
    else if (statement.word == "rename")
        Rename(session, statement);
    else
        session.Make(statement.path, statement.word, statement.arguments);
}

} // namespace

std::string cmd_Run(cmd_Session& session, const std::string& line)
{
    const cmd_Statement statement = cmd_ParseStatement(line);
    switch (statement.sort)
    {
    case cmd_Statement::Sort::Empty:
        break;
    case cmd_Statement::Sort::Value:
        return session.Get(statement.path).Text();
    case cmd_Statement::Sort::Call:
        Call(session, statement);
        break;
    case cmd_Statement::Sort::Assignment:
        session.SetValues(statement.path, {{statement.word, statement.value}});
        break;
    case cmd_Statement::Sort::Deletion:
        session.Delete(statement.path);
        break;
    }
    return "";
}
