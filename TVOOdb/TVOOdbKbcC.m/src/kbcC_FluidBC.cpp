#include "kbcC_FluidBC.h"

#include "nex_Exception.h"

void kbcC_FluidBC::AssertDefinition() const {
  kbcC_AssertNoDiscreteField(*this, RefusalTexts().noDiscreteField);
  kbcC_BC::AssertDefinition();
}

void kbcC_FluidBC::RefuseEdit() const {
  nex_PrimException<atr_String, 1>(atr_translate(RefusalTexts().notEdited).Result()).Throw(__FILE__, __LINE__);
}

bool kbcC_FluidBC::Insert(cow_String const& step, kbcC_BCState const& state) {
  if (!states.IsEmpty()) {
    RefuseEdit();
  }
  return kbcC_BC::Insert(step, state);
}

bool kbcC_FluidBC::Remove(cow_String const&) { RefuseEdit(); }
void kbcC_FluidBC::Deactivate(cow_String const&) { RefuseEdit(); }
void kbcC_FluidBC::Reset(cow_String const&) { RefuseEdit(); }
void kbcC_FluidBC::Move(cow_String const&, cow_String const&) { RefuseEdit(); }
