#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BeamProfileDescriptionMap.h"
#include "kbpC_BeamProfileLabelMap.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CbeamProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HatProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"

#include <array>

namespace
{

// Translations find the rectangle by these literals, the misspelled one too.
constexpr const char* rectangleLabel = "Rectangular\\@PROFILE_RECTANGULAR";
constexpr const char* rectangleDescription = "Rectangular\\@RECTAGULAR_BEAM_PROFILE";

constexpr auto labels = std::to_array<cls_ClassLabel>({
    {kbpC_GeneralizedProfile::TypeId(), "Generalized"},
    {kbpC_BoxProfile::TypeId(), "Box", "PROFILE_BOX"},
    {kbpC_PipeProfile::TypeId(), "Pipe"},
    {kbpC_IbeamProfile::TypeId(), "I"},
    {kbpC_LbeamProfile::TypeId(), "L"},
    {kbpC_TbeamProfile::TypeId(), "T"},
    {kbpC_ArbitraryProfile::TypeId(), "Arbitrary"},
    {kbpC_CircularProfile::TypeId(), "Circular"},
    {kbpC_HexagonalProfile::TypeId(), "Hexagonal"},
    {kbpC_RectangularProfile::TypeId(), rectangleLabel, "Rectangular"},
    {kbpC_TrapezoidalProfile::TypeId(), "Trapezoidal"},
    {kbpC_CbeamProfile::TypeId(), "Channel"},
    {kbpC_HatProfile::TypeId(), "Hat"},
});

/// The same texts but for the rectangle's; none has another name than its text.
constexpr auto DescriptionsOf(auto rows)
{
    for (cls_ClassLabel& row : rows)
    {
        row.name = nullptr;
        if (row.classId == kbpC_RectangularProfile::TypeId())
            row.text = rectangleDescription;
    }
    return rows;
}

constexpr auto descriptions = DescriptionsOf(labels);

} // namespace

kbpC_BeamProfileLabelMap::kbpC_BeamProfileLabelMap() : cls_LabelMap(labels) {}

std::vector<cls_Label> kbpC_BeamProfileLabelMap::Rows()
{
    return cls_RowsOf(labels);
}

kbpC_BeamProfileDescriptionMap::kbpC_BeamProfileDescriptionMap() : cls_LabelMap(descriptions) {}

std::vector<cls_Label> kbpC_BeamProfileDescriptionMap::Rows()
{
    return cls_RowsOf(descriptions);
}
