#include "kprC_stepUtils.h"

#include <string>

#include "cls_AttributeTable.h"

namespace {

using namespace kprC_Procedure;

constexpr kprC_ProcedureSet inTimeAlways(DirectCyclic, ImplicitDynamics, Soils, Static, Visco);
constexpr kprC_ProcedureSet inTimeWhenTransient(CoupledTempDisplacement, CoupledThermalElectric,
                                                CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
                                                CoupledThermalElectrochemStructPorepressure, ElecThermalStructural,
                                                HeatTransfer, MassDiffusion);

bool IsTransient(kprC_Step const& step) { return step.Response() == kprC_Step::TRANSIENT; }

// Asked of the attribute, since a step that a host defines may have it, too, perhaps with words of its own that begin
// alike.
bool HasFixedIncrements(kprC_Step const& step) {
  cls_Attribute const* const method = step.DynAttributes().Find("timeIncrementationMethod");
  return method != nullptr && method->Text(step).starts_with("FIXED");
}

}  // namespace

bool kprC_TimeMarksConsistency(kprC_Step const& step, bool) {
  unsigned int const procedure = step.DynTypeId();
  bool const inTime =
      inTimeAlways.Contains(procedure) || (inTimeWhenTransient.Contains(procedure) && IsTransient(step));
  return !(inTime && HasFixedIncrements(step));
}

bool kprC_TimeMarksIsAllowed(kprC_Step const& step, bool flag) {
  return kprC_TimeMarksConsistency(step, flag) && kprC_TimeMarksIsAllowed(step.DynTypeId(), flag);
}

bool kprC_NumberIntervalConsistency(kprC_Step const& step) { return !(IsTransient(step) && HasFixedIncrements(step)); }

bool kprC_NumberIntervalIsAllowed(kprC_Step const& step) {
  return kprC_NumberIntervalConsistency(step) && kprC_NumberIntervalIsAllowed(step.DynTypeId());
}
