#pragma once

#include "kmaC_Creep.h"
#include "kmaC_Elastic.h"
#include "kmaC_Hyperelastic.h"
#include "kmaC_Plastic.h"
#include "kmaC_RateOptions.h"
#include "kmaC_Viscoelastic.h"

/// A material: the behaviours that it has, each in a slot of its own. Its name is its key in the repository.
class OVR_EXPORT kmaC_Material : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT_SLOTS(kmaC_Material, 0x2380001, 2305)
    /// The rules of the behaviours that are present. Those of some are deliberately left out.
    virtual void AssertValid() const;
    CLS_SLOT_COPY
    CLS_SLOT_WRITE
    CLS_SLOT_TYPE

    CLS_WORD(constructor, "Material")
    CLS_WORD(setValues, "setValues")
    CLS_WORD(name, "name")
    CLS_WORD(materialRepository, "materials")

    CLS_ATTRIBUTE(cls_Pending<0x2380004>, acousticMedium)
    CLS_ATTRIBUTE(cls_Pending<0x2380007>, brittleCracking)
    CLS_ATTRIBUTE(cls_Pending<0x238000C>, capPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x2380074>, castIronPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x238000E>, clayPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x2380010>, concrete)
    CLS_ATTRIBUTE(cls_Pending<0x2380077>, concreteDamagedPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x2380011>, conductivity)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Creep>, creep)
    CLS_ATTRIBUTE_AS(kmaC_Option<kmaC_Foam>, foam, "crushableFoam")
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, ductileDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, fldDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, flsdDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, johnsonCookDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, maxeDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, maxsDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, maxpeDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, maxpsDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, mkDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, msfldDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, quadeDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, quadsDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, shearDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, hashinDamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380015>, damping)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_DeformationPlasticity>, deformationPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x2380017>, density)
    CLS_ATTRIBUTE(cls_Pending<0x2380018>, depvar)
    CLS_ATTRIBUTE(cls_Pending<0x2380019>, dielectric)
    CLS_ATTRIBUTE(cls_Pending<0x238001A>, diffusivity)
    CLS_ATTRIBUTE(cls_Pending<0x238001B>, druckerPrager)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Elastic>, elastic)
    CLS_ATTRIBUTE(cls_Pending<0x238001F>, electricalConductivity)
    CLS_ATTRIBUTE(cls_Pending<0x2380020>, eos)
    CLS_ATTRIBUTE(cls_Pending<0x2380021>, expansion)
    CLS_ATTRIBUTE(cls_Pending<0x2380083>, fluidLeakoff)
    CLS_ATTRIBUTE(cls_Pending<0x2380084>, gapFlow)
    CLS_ATTRIBUTE_FULL(cls_Pending<0x238005D>, 40, thicknessBehavior, "gasketThicknessBehavior")
    CLS_ATTRIBUTE_AS(cls_Pending<0x238005C>, transShearElastic, "gasketTransverseShearElastic")
    CLS_ATTRIBUTE_AS(cls_Pending<0x238005B>, membraneElastic, "gasketMembraneElastic")
    CLS_ATTRIBUTE(cls_Pending<0x238002C>, gel)
    CLS_ATTRIBUTE(cls_Pending<0x238002D>, heatGeneration)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Hyperelastic>, hyperelastic)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Hyperfoam>, hyperfoam)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Hypoelastic>, hypoelastic)
    CLS_ATTRIBUTE(cls_Pending<0x2380031>, inelasticHeatFraction)
    CLS_ATTRIBUTE(cls_Pending<0x2380034>, jouleHeatFraction)
    CLS_ATTRIBUTE(cls_Pending<0x2380036>, latentHeat)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_LowDensityFoam>, lowDensityFoam)
    CLS_ATTRIBUTE(cls_Pending<0x2380093>, magneticPermeability)
    CLS_ATTRIBUTE_AS(cls_Pending<0x2380075>, mohrCoulomb, "mohrCoulombPlasticity")
    CLS_ATTRIBUTE(cls_Pending<0x2380037>, moistureSwelling)
    CLS_ATTRIBUTE(cls_Pending<0x2380082>, mullinsEffect)
    CLS_ATTRIBUTE(cls_Pending<0x2380039>, permeability)
    CLS_ATTRIBUTE(cls_Pending<0x238003A>, piezoelectric)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Plastic>, plastic)
    CLS_ATTRIBUTE(cls_Pending<0x238003D>, poreFluidExpansion)
    CLS_ATTRIBUTE(cls_Pending<0x238003E>, porousBulkModuli)
    CLS_ATTRIBUTE(cls_Pending<0x238003F>, porousElastic)
    CLS_ATTRIBUTE(cls_Pending<0x2380041>, porousMetalPlasticity)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Regularization>, regularization)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Shear>, shear)
    CLS_ATTRIBUTE(cls_Pending<0x2380049>, solubility)
    CLS_ATTRIBUTE(cls_Pending<0x238004A>, sorption)
    CLS_ATTRIBUTE(cls_Pending<0x238004B>, specificHeat)
    CLS_ATTRIBUTE(cls_Pending<0x238004C>, swelling)
    CLS_ATTRIBUTE(cls_Pending<0x2380052>, userDefinedField)
    CLS_ATTRIBUTE(cls_Pending<0x2380053>, userMaterial)
    CLS_ATTRIBUTE(cls_Pending<0x2380054>, userOutputVariables)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Viscoelastic>, viscoelastic)
    CLS_ATTRIBUTE(cls_Pending<0x2380090>, viscosity)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Viscous>, viscous)
    CLS_ATTRIBUTE(cow_String, description)
    /// Name of the material in another system.
    CLS_ATTRIBUTE(cow_String, materialIdentifier)
    CLS_ATTRIBUTE(cls_Pending<0x2380096>, softRockPlasticity)
    CLS_ATTRIBUTE(cls_Pending<0x2380099>, superElasticity)
    CLS_ATTRIBUTE(cls_Pending<0x238009C>, meanFieldHomogenization)
    CLS_ATTRIBUTE_AT(cls_Pending<0x23800AA>, 37, gapConductance)
    CLS_ATTRIBUTE(cls_Pending<0x23800AB>, gapConvection)
    CLS_ATTRIBUTE(cls_Pending<0x23800AC>, gapRadiation)
    CLS_ATTRIBUTE_AT(cls_Pending<0x23800AD>, 80, crushStress)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_PlasticityCorrection>, plasticityCorrection)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, laRC05DamageInitiation)
    CLS_ATTRIBUTE(cls_Pending<0x2380085>, hosfordCoulombDamageInitiation)
    CLS_END
};

// A material with all its slots empty must stay small: models have many, and snapshots copy them.
static_assert(sizeof(kmaC_Material) <= 2048);
