#pragma once

#include "cls_Module.h"
#include "uti_TranslationMap.h"

#include <span>

/// The label of one class, before it is translated.
struct cls_ClassLabel
{
    unsigned classId;
    const char* text;
    /// What the map has as the untranslated label, where it is not `text`.
    const char* name = nullptr;
};

/// Adds the labels in their order, translated to the language in force.
OVR_EXPORT void cls_FillLabels(uti_TranslationMap& map, std::span<const cls_ClassLabel> labels);

/// The labels by class id, not translated, for the catalogue.
OVR_EXPORT std::vector<cls_Label> cls_RowsOf(std::span<const cls_ClassLabel> labels);

/// Base of the label map `X` of a module: a singleton, filled at its first use, in the language then in
/// force.
template <class X>
class cls_LabelMap : public omi_SingletonBase<X>, public uti_TranslationMap
{
protected:
    explicit cls_LabelMap(std::span<const cls_ClassLabel> labels) { cls_FillLabels(*this, labels); }

    ~cls_LabelMap() = default;
};
