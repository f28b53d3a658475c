#include "uti_TranslationMap.h"

#include <algorithm>
#include <cstdlib>

namespace
{
template <class Rows, class Matches>
unsigned FirstId(const Rows& rows, Matches matches)
{
    const auto found = std::find_if(rows.begin(), rows.end(), matches);
    return found == rows.end() ? 0 : found->classId;
}
} // namespace

uti_TranslationMap::uti_TranslationMap() = default;

uti_TranslationMap::~uti_TranslationMap() = default;

void uti_TranslationMap::Insert(unsigned classId, const atr_String& translated, const char* text,
                                QRTBasStringMode)
{
    const auto [place, isNew] = positions.try_emplace(classId, rows.size());
    if (isNew)
        rows.push_back({classId, translated, text});
    else
        rows[place->second] = {classId, translated, text};
}

const uti_TranslationMap::Row* uti_TranslationMap::Find(unsigned classId) const
{
    const auto place = positions.find(classId);
    return place == positions.end() ? nullptr : &rows[place->second];
}

bool uti_TranslationMap::IsMember(unsigned classId) const
{
    return Find(classId) != nullptr;
}

atr_String uti_TranslationMap::GetTranslated(unsigned classId) const
{
    const Row* row = Find(classId);
    return row == nullptr ? atr_String() : row->translated;
}

cow_String uti_TranslationMap::GetText(unsigned classId) const
{
    const Row* row = Find(classId);
    return row == nullptr ? cow_String() : row->text;
}

unsigned uti_TranslationMap::FindTranslated(const atr_String& translated) const
{
    return FirstId(rows, [&](const Row& row) { return row.translated == translated; });
}

unsigned uti_TranslationMap::FindText(const char* text) const
{
    return FirstId(rows, [&](const Row& row) { return row.text == text; });
}

unsigned uti_TranslationMap::ClassIdAt(int position) const
{
    if (position < 0 || position >= Count())
        std::abort();
    return rows[static_cast<std::size_t>(position)].classId;
}
