#include "kbcC_Components.h"

#include "nex_Exception.h"

void kbcC_AssertNoDiscreteField(kbcC_BC const& condition, char const* refusal) {
  if (condition.distribution == kbcC_BC::DISCRETE_FIELD) {
    nex_PrimException<atr_String, 1>(atr_translate(refusal).Result()).Throw(__FILE__, __LINE__);
  }
}
