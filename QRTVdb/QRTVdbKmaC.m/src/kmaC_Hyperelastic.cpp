#include "kmaC_Hyperelastic.h"

CLS_IMPLEMENT(kmaC_Hysteresis)
CLS_IMPLEMENT(kmaC_Hyperelastic)
CLS_IMPLEMENT(kmaC_Hyperfoam)
CLS_IMPLEMENT(kmaC_LowDensityFoam)

namespace
{

constexpr int greatestOrder = 6;
constexpr int greatestFittedPolynomialOrder = 2;

using Hyperelastic = kmaC_Hyperelastic;

void AssertOrder(const Hyperelastic& option)
{
    const bool isPolynomial = option.type == Hyperelastic::TypeEnm::POLYNOMIAL;
    if (!isPolynomial && option.type != Hyperelastic::TypeEnm::OGDEN &&
        option.type != Hyperelastic::TypeEnm::REDUCED_POLYNOMIAL)
        return;
    kmaC_Assert(option.n >= 1, 19);
    kmaC_Assert(option.n <= (isPolynomial && option.testData ? greatestFittedPolynomialOrder : greatestOrder),
                20);
}

void AssertIsotropic(const Hyperelastic& option)
{
    AssertOrder(option);
    kmaC_AssertOptions(option.biaxialTestData, option.planarTestData, option.uniaxialTestData,
                       option.volumetricTestData, option.hysteresis);
    if (option.testData && option.type == Hyperelastic::TypeEnm::VAN_DER_WAALS)
        kmaC_Assert(option.beta == cls_UnsetDouble || (option.beta >= 0.0 && option.beta <= 1.0), 24);
    if (option.type == Hyperelastic::TypeEnm::USER)
        kmaC_Assert(option.properties >= 0, 25);
    if (!option.testData)
        option.table.AssertValid();
}

void AssertAnisotropic(const Hyperelastic& option)
{
    if (option.anisotropicType == Hyperelastic::AnisotropicTypeEnm::HOLZAPFEL)
        kmaC_Assert(option.localDirections >= 1, 53);
    if (option.anisotropicType != Hyperelastic::AnisotropicTypeEnm::USER_DEFINED || option.properties > 0)
        option.table.AssertValid();
}

} // namespace

void kmaC_Hyperelastic::AssertValid() const
{
    if (materialType == MaterialTypeEnm::ISOTROPIC)
        AssertIsotropic(*this);
    if (materialType == MaterialTypeEnm::ANISOTROPIC)
        AssertAnisotropic(*this);
}

void kmaC_Hyperfoam::AssertValid() const
{
    kmaC_Assert(n >= 1, 19);
    kmaC_Assert(n <= greatestOrder, 20);
    if (poisson != cls_UnsetDouble)
    {
        kmaC_Assert(poisson >= 0.0, 4);
        kmaC_Assert(poisson <= 0.5, 5);
    }
    kmaC_AssertOptions(biaxialTestData, planarTestData, simpleShearTestData, uniaxialTestData,
                       volumetricTestData);
    if (!testData)
        table.AssertValid();
}

void kmaC_LowDensityFoam::AssertValid() const
{
    kmaC_Assert(maxAllowablePrincipalStress == cls_UnsetDouble || maxAllowablePrincipalStress > 0.0, 50);
    kmaC_AssertOptions(uniaxialTensionTestData, uniaxialCompressionTestData);
}
