#include "kamC_TimeLabelMap.h"
#include "kamC_TypeLabelMap.h"

#include <span>

namespace
{

// The first label belongs to the value 1.
constexpr const char* typeLabels[] = {
    "Tabular",        "Smooth Step", "Equally spaced", "Periodic", "Modulated", "Decay", "Solution dependent",
    "PSD-Definition", "Spectrum",    "Actuator",       "User"};
constexpr const char* timeLabels[] = {"Step Time", "Total Time", "N/A"};

atr_String LabelOf(std::span<const char* const> labels, int value, QRTBasStringMode mode)
{
    if (value < 1 || value > static_cast<int>(labels.size()))
        return atr_String();
    return atr_raw(labels[static_cast<std::size_t>(value - 1)], mode);
}

std::vector<cls_Label> RowsOf(std::span<const char* const> labels)
{
    std::vector<cls_Label> rows;
    for (const char* label : labels)
        rows.push_back({static_cast<int>(rows.size()) + 1, label});
    return rows;
}

} // namespace

atr_String kamC_TypeLabelMap::LabelString(kamC_TypeLabelEnm type, QRTBasStringMode mode)
{
    return LabelOf(typeLabels, type, mode);
}

std::vector<cls_Label> kamC_TypeLabelMap::Rows()
{
    return RowsOf(typeLabels);
}

atr_String kamC_TimeLabelMap::LabelString(kamC_TimeLabelEnm time, QRTBasStringMode mode)
{
    return LabelOf(timeLabels, time, mode);
}

std::vector<cls_Label> kamC_TimeLabelMap::Rows()
{
    return RowsOf(timeLabels);
}
