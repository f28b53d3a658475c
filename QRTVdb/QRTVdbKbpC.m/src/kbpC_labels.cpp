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

namespace
{

// Translations find the rectangle by these literals, the misspelled one too.
constexpr cls_ClassLabel labels[] = {
    {kbpC_GeneralizedProfile::TypeId(), "Generalized"},
    {kbpC_BoxProfile::TypeId(), "Box", "PROFILE_BOX"},
    {kbpC_PipeProfile::TypeId(), "Pipe"},
    {kbpC_IbeamProfile::TypeId(), "I"},
    {kbpC_LbeamProfile::TypeId(), "L"},
    {kbpC_TbeamProfile::TypeId(), "T"},
    {kbpC_ArbitraryProfile::TypeId(), "Arbitrary"},
    {kbpC_CircularProfile::TypeId(), "Circular"},
    {kbpC_HexagonalProfile::TypeId(), "Hexagonal"},
    {kbpC_RectangularProfile::TypeId(), "Rectangular\\@PROFILE_RECTANGULAR", "Rectangular"},
    {kbpC_TrapezoidalProfile::TypeId(), "Trapezoidal"},
    {kbpC_CbeamProfile::TypeId(), "Channel"},
    {kbpC_HatProfile::TypeId(), "Hat"},
};

constexpr cls_ClassLabel descriptions[] = {
    {kbpC_GeneralizedProfile::TypeId(), "Generalized"},
    {kbpC_BoxProfile::TypeId(), "Box"},
    {kbpC_PipeProfile::TypeId(), "Pipe"},
    {kbpC_IbeamProfile::TypeId(), "I"},
    {kbpC_LbeamProfile::TypeId(), "L"},
    {kbpC_TbeamProfile::TypeId(), "T"},
    {kbpC_ArbitraryProfile::TypeId(), "Arbitrary"},
    {kbpC_CircularProfile::TypeId(), "Circular"},
    {kbpC_HexagonalProfile::TypeId(), "Hexagonal"},
    {kbpC_RectangularProfile::TypeId(), "Rectangular\\@RECTAGULAR_BEAM_PROFILE"},
    {kbpC_TrapezoidalProfile::TypeId(), "Trapezoidal"},
    {kbpC_CbeamProfile::TypeId(), "Channel"},
    {kbpC_HatProfile::TypeId(), "Hat"},
};

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
