#include "kmaC_Plastic.h"

#include "atr_translate.h"

CLS_IMPLEMENT(kmaC_Plastic)
CLS_IMPLEMENT(kmaC_DeformationPlasticity)
CLS_IMPLEMENT(kmaC_PlasticityCorrection)
CLS_IMPLEMENT(kmaC_FoamHardening)
CLS_IMPLEMENT(kmaC_Foam)

namespace
{

using HardeningEnm = kmaC_Plastic::HardeningEnm;
using DataTypeEnm = kmaC_Plastic::DataTypeEnm;

void AssertTensileFailure(const kmaC_Plastic& plastic)
{
    if (plastic.tensileFailure.IsNull())
        return;
    if (plastic.hardening != HardeningEnm::ISOTROPIC && plastic.hardening != HardeningEnm::JOHNSON_COOK)
    {
        const atr_translate message(" Error: Tensile Failure suboption can be used only for the Isotropic or "
                                    "Johnson-Cook Hardening type in Plastic. ",
                                    0);
        nex_PrimException<atr_String, 1>(message.Result(0), 0)
            .Throw("QRTVdb/QRTVdbKmaC.m/src/kmaC_Plastic", __LINE__);
    }
    plastic.tensileFailure->AssertValid();
}

/// Whether the first row of the table is the first yield.
bool BeginsAtFirstYield(const kmaC_Plastic& plastic)
{
    switch (plastic.hardening)
    {
    case HardeningEnm::ISOTROPIC:
    case HardeningEnm::KINEMATIC:
    case HardeningEnm::MULTILINEAR_KINEMATIC:
        return true;
    case HardeningEnm::COMBINED:
        return plastic.dataType == DataTypeEnm::HALF_CYCLE || plastic.dataType == DataTypeEnm::STABILIZED;
    default:
        return false;
    }
}

} // namespace

void kmaC_Plastic::AssertValid() const
{
    kmaC_AssertDependencies(dependencies);
    kmaC_AssertOptions(rateDependent, potential, cyclicHardening, ornl, cycledPlastic, annealTemperature);
    AssertTensileFailure(*this);
    if (hardening == HardeningEnm::USER)
        return;
    table.AssertValid();
    if (BeginsAtFirstYield(*this) && table.Rows() > 0 && table.Columns() > 1)
        kmaC_Assert(table.Value(0, 1) == 0.0, 39);
    // The message of this code speaks of another table.
    if (hardening == HardeningEnm::ISOTROPIC && rate)
        kmaC_Assert(table.Columns() > 2, 64);
}

void kmaC_Foam::AssertValid() const
{
    kmaC_AssertDependencies(dependencies);
    kmaC_AssertOptions(foamHardening, rateDependent);
    table.AssertValid();
}
