#include "kprC_StepControl.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_StepControlSensorThresholdCriteria::Attributes() {
  using Self = kprC_StepControlSensorThresholdCriteria;
  static auto const table =
      cls_Describe<Self>("kprC_StepControlSensorThresholdCriteria", 2511).Attribute("definition", &Self::definition);
  return table;
}

cls_AttributeTable const& kprC_StepControl::Attributes() {
  using Self = kprC_StepControl;
  static auto const table = cls_Describe<Self>("kprC_StepControl", 2601)
                                .Attribute("action", &Self::action)
                                .Attribute("dtRefinement", &Self::dtRefinement)
                                .Attribute("tolerance", &Self::tolerance)
                                .Attribute("sensorNames", &Self::sensorNames)
                                .Attribute("sensorThresholdCriteriaValues", &Self::sensorThresholdCriteriaValues)
                                .Attribute("sensorThresholdValues", &Self::sensorThresholdValues)
                                .Attribute("timeIncrementValues", &Self::timeIncrementValues)
                                .Attribute("sensorStartValues", &Self::sensorStartValues)
                                .Attribute("sensorEndValues", &Self::sensorEndValues)
                                .Attribute("suppress", &Self::suppress);
  return table;
}

void kprC_StepControl::AssertValid() const { kprC_Assert(action != CONTINUE || dtRefinement == YES, 317); }
