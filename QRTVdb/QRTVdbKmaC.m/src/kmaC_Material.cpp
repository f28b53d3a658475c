#include "kmaC_Material.h"

CLS_IMPLEMENT(kmaC_Material)

void kmaC_Material::AssertValid() const
{
    // Brittle cracking, damage initiation, fluid leakoff, the gap behaviours, superelasticity, homogenization
    // and plasticity correction are not asked.
    kmaC_AssertOptions(
        acousticMedium, capPlasticity, clayPlasticity, softRockPlasticity, concrete, conductivity, creep,
        damping, deformationPlasticity, density, depvar, dielectric, diffusivity, druckerPrager, elastic,
        electricalConductivity, eos, expansion, foam, gel, heatGeneration, hyperelastic, hyperfoam,
        hypoelastic, inelasticHeatFraction, jouleHeatFraction, latentHeat, regularization,
        magneticPermeability, membraneElastic, moistureSwelling, permeability, piezoelectric, plastic,
        poreFluidExpansion, porousBulkModuli, porousElastic, porousMetalPlasticity, shear, solubility,
        sorption, specificHeat, swelling, thicknessBehavior, transShearElastic, userDefinedField,
        userMaterial, userOutputVariables, viscoelastic, viscosity, viscous, castIronPlasticity, mohrCoulomb,
        concreteDamagedPlasticity, mullinsEffect, lowDensityFoam, crushStress);
}
