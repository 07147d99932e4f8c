#pragma once

#include "kbcC_Components.h"

/// Which degrees of freedom a substructure retains at a region's nodes.
class TVO_API kbcC_RetainedNodalDofsBCState final : public kbcC_BCState {
  CLS_PERSISTENT(kbcC, kbcC_RetainedNodalDofsBCState)

 public:
  kbcC_RetainedNodalDofsBCState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "RetainedNodalDofsBCState")
  KPRC_VALUE_CMD(u1) KPRC_VALUE_CMD(u2) KPRC_VALUE_CMD(u3)
  KPRC_VALUE_CMD(ur1) KPRC_VALUE_CMD(ur2) KPRC_VALUE_CMD(ur3)

  mdl_PropAttr<bool> u1, u2, u3, ur1, ur2, ur3;
};

/// Retains nodal degrees of freedom of a substructure, at which it is connected later.
class TVO_API kbcC_RetainedNodalDofsBC final : public kbcC_StateAccess<kbcC_BC, kbcC_RetainedNodalDofsBCState> {
  CLS_PERSISTENT(kbcC, kbcC_RetainedNodalDofsBC)

 public:
  kbcC_RetainedNodalDofsBC() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  KPRC_NAMED_CMD(constructorCmd, "RetainedNodalDofsBC")
};
