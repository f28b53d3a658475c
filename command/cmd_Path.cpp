#include "cmd_Path.h"

#include "cmd_Value.h"

namespace
{

std::string StepText(const cmd_Path::Step& step)
{
    switch (step.sort)
    {
    case cmd_Path::Step::Sort::Word:
        return '.' + step.text;
    case cmd_Path::Step::Sort::Key:
        return '[' + cmd_QuotedText(step.text) + ']';
    case cmd_Path::Step::Sort::Position:
        break;
    }
    return '[' + std::to_string(step.position) + ']';
}

} // namespace

cmd_Path cmd_Path::OfObject(const std::string& repositoryWord, const std::string& name)
{
    return {{{Step::Sort::Word, repositoryWord}, {Step::Sort::Key, name}}};
}

std::string cmd_Path::Text(std::size_t count) const
{
    std::string text = "model";
    for (std::size_t i = 0; i < count; ++i)
        text += StepText(steps[i]);
    return text;
}

cmd_Path cmd_Path::WithWord(const std::string& word) const
{
    cmd_Path longer = *this;
    longer.steps.push_back({Step::Sort::Word, word});
    return longer;
}
