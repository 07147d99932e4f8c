#include "kprC_StepCyclingControl.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_StepCyclingControlThresholdCriteria::Attributes() {
  using Self = kprC_StepCyclingControlThresholdCriteria;
  static auto const table =
      cls_Describe<Self>("kprC_StepCyclingControlThresholdCriteria", 2511).Attribute("definition", &Self::definition);
  return table;
}

cls_AttributeTable const& kprC_StepCyclingControl::Attributes() {
  using Self = kprC_StepCyclingControl;
  static auto const table = cls_Describe<Self>("kprC_StepCyclingControl", 2612)
                                .Attribute("action", &Self::action)
                                .Attribute("criterion", &Self::criterion)
                                .Attribute("sensorNames", &Self::sensorNames)
                                .Attribute("sensorThresholdValues", &Self::sensorThresholdValues)
                                .Attribute("nodeNames", &Self::nodeNames)
                                .Attribute("wearThresholdDistances", &Self::wearThresholdDistances)
                                .Attribute("wearMaxTargetDistances", &Self::wearMaxTargetDistances)
                                .Attribute("thresholdCriteriaValues", &Self::thresholdCriteriaValues)
                                .Attribute("suppress", &Self::suppress);
  return table;
}
