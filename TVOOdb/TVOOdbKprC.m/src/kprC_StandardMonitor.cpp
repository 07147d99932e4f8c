#include "kprC_StandardMonitor.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_outputTiming.h"

cls_AttributeTable const& kprC_StandardMonitor::Attributes() {
  static auto const table = cls_Describe<kprC_StandardMonitor, kprC_Monitor>("kprC_StandardMonitor", 302)
                                .Attribute("frequency", &kprC_StandardMonitor::frequency);
  return table;
}

void kprC_StandardMonitor::AssertValid() const {
  kprC_Monitor::AssertValid();
  kprC_AssertFrequency(frequency);
}
