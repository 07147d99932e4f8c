#include "kprC_StepControl.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_AnalysisStep.h"
#include "kprC_StepContainer.h"
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

void kprC_StepControl::AssertEditable() const { kprC_Assert(!suppress, 315); }

void kprC_StepControl::AssertSensorsAreAmong(cow_List<cow_String> const& activeSensors) const {
  for (cow_String const& name : sensorNames) kprC_Assert(activeSensors.IsMember(name), 318);
}

void kprC_StepControl::AssertNameIsNew(kprC_StepContainer const& steps, cow_String const& name) {
  for (cow_String const& key : steps.Keys()) {
    auto const* const step = dynamic_cast<kprC_AnalysisStep const*>(&steps.ConstGet(key));
    kprC_Assert(step == nullptr || !step->scc.IsMember(name), 316);
  }
}
