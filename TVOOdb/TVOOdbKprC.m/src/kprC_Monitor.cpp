#include "kprC_Monitor.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

cls_AttributeTable const& kprC_Monitor::Attributes() {
  static auto const table = cls_Describe<kprC_Monitor>("kprC_Monitor", 302)
                                .Attribute("dof", &kprC_Monitor::dof)
                                .Attribute("node", &kprC_Monitor::node);
  return table;
}

void kprC_Monitor::AssertValid() const { kprC_Assert(dof > 0, 123); }
