#include "cls_Module.h"

#include "atr_translate.h"

#include <algorithm>
#include <cstring>

namespace
{

atr_String TextOf(const cls_MessageTable& table, int code)
{
    const char* text = table.Text(code);
    if (!text)
        return atr_String();
    return table.isTranslated ? atr_translate(text, 0).Result(0) : atr_raw(text, 0);
}

} // namespace

cls_RuleException::cls_RuleException(const atr_String& text, const cls_MessageTable& table, int code) noexcept
    : nex_PrimException<atr_String, 1>(text, 0), table(&table), code(code)
{}

cls_RuleException::~cls_RuleException() = default;

void cls_RuleException::Raise() const
{
    throw cls_RuleException(*this);
}

void cls_RaiseMessage(const cls_MessageTable& table, int code, const char* file, int line)
{
    cls_RuleException(TextOf(table, code), table, code).Throw(file, line);
}

void cls_RaiseMessage(const cls_MessageTable& table, int code, const cow_String& name, const char* file,
                      int line)
{
    atr_String text = TextOf(table, code);
    if (table.Text(code))
        text.ReplaceNonTranslated(0, name);
    cls_RuleException(text, table, code).Throw(file, line);
}

cls_Catalogue::cls_Catalogue() = default;

cls_Catalogue::~cls_Catalogue() = default;

void cls_Catalogue::AddMessages(unsigned short module, const cls_MessageTable& table)
{
    const auto same = [&table](const Messages& known) { return known.table == &table; };
    if (std::none_of(messages.begin(), messages.end(), same))
        messages.push_back({module, &table});
}

void cls_Catalogue::AddLabels(const char* name, std::vector<cls_Label> (*rows)())
{
    const auto same = [name](const Labels& known) { return std::strcmp(known.name, name) == 0; };
    if (std::none_of(labels.begin(), labels.end(), same))
        labels.push_back({name, rows});
}
