#include "kprC_FlowRestart.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_outputTiming.h"

cls_AttributeTable const& kprC_FlowRestart::Attributes() {
  using Self = kprC_FlowRestart;
  static auto const table = cls_Describe<Self, kprC_Restart>("kprC_FlowRestart", 1405)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("numberIntervals", &Self::numberIntervals);
  return table;
}

void kprC_FlowRestart::AssertValid() const { kprC_AssertTiming(frequency, numberIntervals); }
