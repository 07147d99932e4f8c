#include "kloC_SubstructureLoad.h"

cls_AttributeTable const& kloC_SubstructureLoadState::Attributes() {
  static auto const table =
      cls_Describe<kloC_SubstructureLoadState, kloC_LoadState>("kloC_SubstructureLoadState", 1570)
          .Attribute(0, "m_LoadCaseNames", &kloC_SubstructureLoadState::m_LoadCaseNames);
  return table;
}

cls_AttributeTable const& kloC_SubstructureLoad::Attributes() {
  static auto const table = cls_Describe<kloC_SubstructureLoad, kloC_Load>("kloC_SubstructureLoad", 1570)
                                .Constructor(constructorCmd())
                                .VariesBy<kloC_SubstructureLoadState>();
  return table;
}

void kloC_SubstructureLoadState::AssertValid() const { kloC_Assert(!m_LoadCaseNames.ConstGet().IsEmpty(), 81); }
