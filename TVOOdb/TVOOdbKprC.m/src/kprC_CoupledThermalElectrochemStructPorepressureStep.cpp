#include "kprC_CoupledThermalElectrochemStructPorepressureStep.h"

cls_AttributeTable const& kprC_CoupledThermalElectrochemStructPorepressureStep::Attributes() {
  using Self = kprC_CoupledThermalElectrochemStructPorepressureStep;
  static auto const table =
      cls_Describe<Self, kprC_AnalysisStep>("kprC_CoupledThermalElectrochemStructPorepressureStep", 2602)
          .Attribute("nlgeom", &Self::nlgeom)
          .Attribute("response", &Self::response)
          .Attribute("timePeriod", &Self::timePeriod)
          .Attribute("stabilizationMagnitude", &Self::stabilizationMagnitude)
          .Attribute("stabilizationMethod", &Self::stabilizationMethod)
          .Attribute("timeIncrementationMethod", &Self::timeIncrementationMethod)
          .Attribute("maxNumInc", &Self::maxNumInc)
          .Attribute("initialInc", &Self::initialInc)
          .Attribute("minInc", &Self::minInc)
          .Attribute("maxInc", &Self::maxInc)
          .Attribute("deltmx", &Self::deltmx)
          .Attribute("poreptol", &Self::poreptol)
          .Attribute("advection", &Self::advection)
          .Attribute("ambientIonConcentration", &Self::ambientIonConcentration)
          .Attribute("cetol", &Self::cetol)
          .Attribute("creepIntegration", &Self::creepIntegration)
          .Attribute("amplitude", &Self::amplitude)
          .Attribute("extrapolation", &Self::extrapolation)
          .Attribute("adaptiveDampingRatio", &Self::adaptiveDampingRatio)
          .Attribute("continueDampingFactors", &Self::continueDampingFactors)
          .Attribute("solutionTechnique", &Self::solutionTechnique)
          .Constructor(constructorCmd());
  return table;
}
