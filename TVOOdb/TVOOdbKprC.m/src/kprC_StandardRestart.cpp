#include "kprC_StandardRestart.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_outputTiming.h"

cls_AttributeTable const& kprC_StandardRestart::Attributes() {
  using Self = kprC_StandardRestart;
  static auto const table = cls_Describe<Self, kprC_Restart>("kprC_StandardRestart", 809)
                                .Attribute("frequency", &Self::frequency)
                                .Attribute("timeMarks", &Self::timeMarks)
                                .Attribute("numberIntervals", &Self::numberIntervals);
  return table;
}

void kprC_StandardRestart::AssertValid() const { kprC_AssertTiming(frequency, numberIntervals); }
