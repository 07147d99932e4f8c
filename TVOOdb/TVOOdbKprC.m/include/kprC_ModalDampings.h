#pragma once

#include "kprC_CompositeDamping.h"
#include "kprC_DirectDamping.h"
#include "kprC_DirectDampingByFrequency.h"
#include "kprC_RayleighDamping.h"
#include "kprC_RayleighDampingByFrequency.h"
#include "kprC_Step.h"
#include "kprC_StructuralDamping.h"
#include "kprC_StructuralDampingByFrequency.h"

/// The dampings of the steps that put a response together from modes. Each is empty for none.
class TVO_API kprC_ModalDampings {
 public:
  KPRC_CMD(compositeDamping)
  KPRC_CMD(directDamping)
  KPRC_CMD(rayleighDamping)
  KPRC_CMD(directDampingByFrequency)
  KPRC_CMD(rayleighDampingByFrequency)

  cow_COW<kprC_CompositeDamping, cow_Virtual<kprC_CompositeDamping>> compositeDamping;
  cow_COW<kprC_DirectDamping, cow_Virtual<kprC_DirectDamping>> directDamping;
  cow_COW<kprC_RayleighDamping, cow_Virtual<kprC_RayleighDamping>> rayleighDamping;
  cow_COW<kprC_DirectDampingByFrequency, cow_Virtual<kprC_DirectDampingByFrequency>> directDampingByFrequency;
  cow_COW<kprC_RayleighDampingByFrequency, cow_Virtual<kprC_RayleighDampingByFrequency>> rayleighDampingByFrequency;

 protected:
  ~kprC_ModalDampings() = default;
};

/// The same for responses in the frequency domain, where damping need not depend on the velocity.
class TVO_API kprC_StructuralModalDampings : public kprC_ModalDampings {
 public:
  KPRC_CMD(structuralDamping)
  KPRC_CMD(structuralDampingByFrequency)

  cow_COW<kprC_StructuralDamping, cow_Virtual<kprC_StructuralDamping>> structuralDamping;
  cow_COW<kprC_StructuralDampingByFrequency, cow_Virtual<kprC_StructuralDampingByFrequency>>
      structuralDampingByFrequency;

 protected:
  ~kprC_StructuralModalDampings() = default;
};
