#pragma once

#include "kloC_Scalar.h"

/// Its magnitude in one step.
class TVO_API kloC_BodyCurrentState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_BodyCurrentState)

 public:
  kloC_BodyCurrentState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BodyCurrentState")
};

/// A current per volume.
class TVO_API kloC_BodyCurrent final : public kprC_StateAccess<kloC_Scalar, kloC_BodyCurrentState> {
  CLS_PERSISTENT(kloC, kloC_BodyCurrent)

 public:
  kloC_BodyCurrent() = default;
  CategoryEnm Category() const override { return ELECTRICAL; }

  KPRC_NAMED_CMD(constructorCmd, "BodyCurrent")
};
