#pragma once

#include "kprC_Step.h"

/// How the steady-state steps that use the equations of the whole model make them up.
class TVO_API kprC_ComplexSystem {
 public:
  enum FactorizationEnm { REAL_ONLY = 0, COMPLEX = 1 };

  KPRC_CMD(factorization)
  KPRC_CMD(frictionDamping)

  /// REAL_ONLY leaves all damping out, so it is asked for, not assumed.
  FactorizationEnm factorization = COMPLEX;
  bool frictionDamping = false;  ///< damping by friction that depends on the slip rate

 protected:
  ~kprC_ComplexSystem() = default;
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_ComplexSystem::FactorizationEnm>[] = {
    {"REAL_ONLY", 0}, {"COMPLEX", 1}, {nullptr, 0}};
