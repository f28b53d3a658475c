#pragma once

#include "QRTBasStringMode.h"
#include "atr_String.h"
#include "cow_String.h"
#include "ovr_Export.h"

#include <unordered_map>
#include <vector>

/// The labels of classes: from a class id to the text that users see and to the text from which it was
/// translated.
class OVR_EXPORT uti_TranslationMap
{
public:
    uti_TranslationMap();
    uti_TranslationMap(const uti_TranslationMap&) = delete;
    uti_TranslationMap& operator=(const uti_TranslationMap&) = delete;
    ~uti_TranslationMap();

    /// Adds a label behind the others; a class that has one gets the new one in its place. `text` is the
    /// untranslated label.
    void Insert(unsigned classId, const atr_String& translated, const char* text, QRTBasStringMode mode);

    /// Whether the class has a label.
    bool IsMember(unsigned classId) const;
    /// The label of a class as users see it; empty for an unknown class.
    atr_String GetTranslated(unsigned classId) const;
    /// The untranslated label of a class; empty for an unknown class.
    cow_String GetText(unsigned classId) const;

    /// The first class with this label as users see it, or 0.
    unsigned FindTranslated(const atr_String& translated) const;
    /// The first class with this untranslated label, or 0.
    unsigned FindText(const char* text) const;

    /// Number of labels.
    int Count() const { return static_cast<int>(rows.size()); }
    /// The class at a position below Count(), in the order of insertion; a bad position aborts.
    unsigned ClassIdAt(int position) const;

private:
    struct Row
    {
        unsigned classId;
        atr_String translated;
        cow_String text;
    };

    const Row* Find(unsigned classId) const;

    std::vector<Row> rows;
    std::unordered_map<unsigned, std::size_t> positions;
};
