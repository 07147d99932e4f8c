#include "kprC_StepNameProcedurePair.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"

cls_AttributeTable const& kprC_StepNameProcedurePair::Attributes() {
  using Self = kprC_StepNameProcedurePair;
  static auto const table = cls_Describe<Self>("kprC_StepNameProcedurePair", 831)
                                .Attribute("stepName", &Self::stepName)
                                .Shared(1, "procedure", &Self::procedure);
  return table;
}
