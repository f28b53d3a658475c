#include "cls_LabelMap.h"

#include "atr_translate.h"

void cls_FillLabels(uti_TranslationMap& map, std::span<const cls_ClassLabel> labels)
{
    for (const cls_ClassLabel& label : labels)
        map.Insert(label.classId, atr_translate(label.text, 0).Result(0),
                   label.name != nullptr ? label.name : label.text, 0);
}

std::vector<cls_Label> cls_RowsOf(std::span<const cls_ClassLabel> labels)
{
    std::vector<cls_Label> rows;
    for (const cls_ClassLabel& label : labels)
        rows.push_back({static_cast<int>(label.classId), label.text});
    return rows;
}
