#include "ddr_PathParser.h"

#include "atr_translate.h"
#include "ddr_PathText.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace
{

[[noreturn]] void Raise(const std::string& path, std::size_t position, const std::string& message)
{
    const int column = static_cast<int>(position) + 1;
    atr_translate text("Path %s, column %d: %s.", 0);
    atr_SubstituteFormat(text, 1, path.c_str(), 0);
    atr_SubstituteFormat(text, 2, column, 0);
    atr_SubstituteFormat(text, 3, message.c_str(), 0);
    ddr_PathException(text.Result(0), column).Throw("QRTRom/ProtectedInterfaces/ddr_PathParser", __LINE__);
}

/// What can stand behind a shortcut of a class: its members' words, a key, a number.
std::string Continuations(const std::vector<const ddr_StepClass*>& steps)
{
    std::vector<std::string> ways;
    for (const ddr_StepClass* step : steps)
    {
        std::string way = step->sort == ddr_StepClass::Sort::Member
                              ? std::string("the word ") + step->word
                              : std::string(step->word) +
                                    (step->sort == ddr_StepClass::Sort::Dictionary ? "['key']" : "[index]");
        if (std::find(ways.begin(), ways.end(), way) == ways.end())
            ways.push_back(std::move(way));
    }
    std::string text;
    for (const std::string& way : ways)
        text += (text.empty() ? "" : ", ") + way;
    return text.empty() ? "the end of the path" : text;
}

/// Tries the ways to read a path, those with short keys first, and each place with each class once.
class PathReader
{
public:
    explicit PathReader(const std::string& path) : path(path) {}

    ddr_AnyShortcut Read()
    {
        const ddr_HolderClass& model = *ddr_Shortcuts().FindHolder(ddr_Shortcut<ddr_Model>::TypeId());
        const std::optional<ddr_AnyShortcut> found =
            Follow(BehindTheModel(), ddr_AnyShortcut(model, new ddr_Shortcut<ddr_Model>));
        if (!found)
            Raise(path, fault.position, "expected " + fault.expected);
        return *found;
    }

private:
    /// Position behind "model", which may be left out.
    std::size_t BehindTheModel()
    {
        ddr_PathFault unused;
        const std::vector<ddr_PathStep> steps = ddr_PathStepsAt(path, 0, unused);
        const bool isNamed = steps.size() == 1 && steps[0].sort == ddr_PathStep::Sort::Word &&
                             steps[0].text == ddr_Shortcut<ddr_Model>().Name().CString();
        return isNamed ? steps[0].end : 0;
    }

    /// The shortcut to which the path leads on from `position`, if any.
    std::optional<ddr_AnyShortcut> Follow(std::size_t position, const ddr_AnyShortcut& from)
    {
        if (position == path.size() && position > 0)
            return from;
        if (depth == mostSteps)
            Raise(path, position, "expected at most " + std::to_string(mostSteps) + " steps");
        ++depth;
        std::optional<ddr_AnyShortcut> found;
        ddr_PathFault textFault;
        const std::vector<ddr_PathStep> texts = ddr_PathStepsAt(path, position, textFault);
        if (texts.empty())
            Blame(textFault);
        else
            found = Take(position, texts, from);
        --depth;
        if (!found)
            failed.insert({position, from.Class().id});
        return found;
    }

    /// Follows each step that fits one of the texts until one leads to the end.
    std::optional<ddr_AnyShortcut> Take(std::size_t position, const std::vector<ddr_PathStep>& texts,
                                        const ddr_AnyShortcut& from)
    {
        const std::vector<const ddr_StepClass*> steps = ddr_Shortcuts().StepsFrom(from.Class().id);
        bool fits = false;
        for (const ddr_PathStep& text : texts)
        {
            for (const ddr_StepClass* step : steps)
            {
                std::vector<ddr_PathStep> keys;
                if (!Fits(*step, text, keys))
                    continue;
                fits = true;
                for (const ddr_PathStep& key : keys)
                {
                    if (failed.contains({key.end, step->childId}))
                        continue;
                    if (const auto found = Follow(key.end, Make(*step, from, key)))
                        return found;
                }
            }
        }
        if (!fits)
            Blame({position, Continuations(steps)});
        return std::nullopt;
    }

    /// Whether the text begins the step; `keys` are then its possible last parts.
    bool Fits(const ddr_StepClass& step, const ddr_PathStep& text, std::vector<ddr_PathStep>& keys)
    {
        using Sort = ddr_StepClass::Sort;
        if (step.sort == Sort::Member)
        {
            keys = {text};
            return text.sort == ddr_PathStep::Sort::Word && text.text == step.word;
        }
        keys = {text};
        if (step.word[0] != '\0')
        {
            if (text.sort != ddr_PathStep::Sort::Word || '.' + text.text != step.word)
                return false;
            ddr_PathFault keyFault;
            keys = ddr_PathStepsAt(path, text.end, keyFault);
            if (keys.empty())
                Blame(keyFault);
        }
        const auto wanted =
            step.sort == Sort::Dictionary ? ddr_PathStep::Sort::Key : ddr_PathStep::Sort::Index;
        std::erase_if(keys, [wanted](const ddr_PathStep& key) { return key.sort != wanted; });
        return !keys.empty();
    }

    static ddr_AnyShortcut Make(const ddr_StepClass& step, const ddr_AnyShortcut& from,
                                const ddr_PathStep& key)
    {
        omu_ShortcutBase* shortcut = step.make(from.Base(), key.text.c_str(), key.index);
        return ddr_AnyShortcut(*ddr_Shortcuts().FindHolder(step.childId), shortcut);
    }

    /// Keeps the fault that lies furthest on: up to there the path could be read.
    void Blame(const ddr_PathFault& newFault)
    {
        if (fault.expected.empty() || newFault.position > fault.position)
            fault = newFault;
    }

    /// More than any model has; each takes a part of the stack.
    static constexpr int mostSteps = 1000;

    const std::string& path;
    int depth = 0;
    ddr_PathFault fault;
    std::set<std::pair<std::size_t, unsigned>> failed;
};

} // namespace

ddr_PathException::ddr_PathException(const atr_String& text, int column) noexcept
    : nex_CmdException<atr_String, 2>(text, 0), column(column)
{}

ddr_PathException::~ddr_PathException() = default;

void ddr_PathException::Raise() const
{
    throw ddr_PathException(*this);
}

ddr_AnyShortcut ddr_ParsePath(const cow_String& path)
{
    const std::string text = path.CString();
    return PathReader(text).Read();
}

void ddr_detail::RaiseOtherTarget(const cow_String& path, unsigned expected, unsigned found)
{
    const std::string text = path.CString();
    ::Raise(text, text.size(),
            std::string("expected the way to a ") + typ_ArchCompTable::GetName(expected) +
                ", found that to a " + typ_ArchCompTable::GetName(found));
}
