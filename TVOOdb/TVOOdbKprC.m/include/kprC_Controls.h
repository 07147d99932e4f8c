#pragma once

#include "kprC_Types.h"
#include "omu_EnumCodec.h"

/// Base of the controls of the nonlinear solution of a step.
class TVO_API kprC_Controls : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_Controls)

 public:
  enum class DefaultEnm { DEFAULT = 0, PROPAGATED = 1 };

  kprC_Controls() = default;
  /// Refuses both options at once with number 103: a step takes the previous step's controls or the solver's.
  virtual void AssertValid() const;

  bool allowPropagation = false;    ///< the previous step's controls hold on
  bool resetDefaultValues = false;  ///< the solver's own controls hold again
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_Controls::DefaultEnm>[] = {
    {"DEFAULT", 0}, {"PROPAGATED", 1}, {nullptr, 0}};
