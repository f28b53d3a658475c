#include "cls_LabelMap.h"

#include "atr_translate.h"

void cls_FillLabels(uti_TranslationMap& map, std::span<const cls_ClassLabel> labels)
{
    for (const cls_ClassLabel& label : labels)
        map.Insert(label.classId, atr_translate(label.text, 0).Result(0), label.text, 0);
}
