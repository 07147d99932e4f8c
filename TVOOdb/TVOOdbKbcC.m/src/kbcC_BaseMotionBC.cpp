#include "kbcC_BaseMotionBC.h"

#include "kbcC_Components.h"
#include "kbcC_perturbationSteps.h"

namespace {

using namespace kprC_Procedure;

constexpr kprC_ProcedureSet withAmplitude{ModalDynamics, SteadyStateModal, SteadyStateSubspace};

}  // namespace

cls_AttributeTable const& kbcC_BaseMotionBCState::Attributes() {
  static auto const table = cls_Describe<kbcC_BaseMotionBCState, kbcC_BCState>("kbcC_BaseMotionBCState", 203);
  return table;
}

cls_AttributeTable const& kbcC_BaseMotionBC::Attributes() {
  static auto const table = cls_Describe<kbcC_BaseMotionBC, kbcC_BC>("kbcC_BaseMotionBC", 1643)
                                .Attribute(1, "secondaryBase", &kbcC_BaseMotionBC::secondaryBase)
                                .Attribute(0, "dof", &kbcC_BaseMotionBC::dof)
                                .Attribute(2, "amplitudeScaleFactor", &kbcC_BaseMotionBC::amplitudeScaleFactor)
                                .Attribute(3, "useComplex", &kbcC_BaseMotionBC::useComplex)
                                .Attribute(4, "correlation", &kbcC_BaseMotionBC::correlation)
                                .Attribute(5, "centerOfRotation", &kbcC_BaseMotionBC::centerOfRotation);
  return table;
}

bool kbcC_BaseMotionBCState::AllowAmplitude(int procedure) {
  return withAmplitude.Contains(static_cast<unsigned int>(procedure));
}

bool kbcC_BaseMotionBC::AllowCorrelation(int procedure) { return procedure == static_cast<int>(RandomResponse); }

bool kbcC_BaseMotionBC::ValidInPerturbationStep(int procedure, bool flag) const {
  return kbcC_MayStandIn(kbcC_PerturbationSteps::ofBaseMotion, procedure, flag);
}

void kbcC_BaseMotionBC::AssertDefinition() const {
  kbcC_AssertNoDiscreteField(*this, "Discrete Fields are not supported as BaseMotion BC distributions.");
  kbcC_BC::AssertDefinition();
}

void kbcC_BaseMotionBC::AssertKind() const {
  for (Quad const& quad : states) {
    if (quad.state.HasValue()) {
      ProcedureAssertValid(quad.Procedure(),
                           kprC_CheckedCast<kbcC_BaseMotionBCState>(quad.state.ConstGet(), __FILE__, __LINE__));
    }
  }
}

void kbcC_BaseMotionBC::ProcedureAssertValid(int procedure, kbcC_BaseMotionBCState const& state) const {
  bool const namedAmplitude = !state.amplitude.ConstGet().IsEmpty();
  switch (static_cast<unsigned int>(procedure)) {
    case ModalDynamics:
      kbcC_Assert(namedAmplitude, 98);
      kbcC_Assert(!useComplex, 96);
      kbcC_Assert(correlation.IsEmpty(), 100);
      break;
    case RandomResponse:
      kbcC_Assert(!namedAmplitude, 97);
      kbcC_Assert(!useComplex, 96);
      kbcC_Assert(centerOfRotation == cls_xp1DArrayListDouble{0.0, 0.0, 0.0}, 99);
      kbcC_Assert(secondaryBase.IsEmpty(), 101);
      break;
    case SteadyStateModal:
    case SteadyStateSubspace:
      kbcC_Assert(namedAmplitude, 98);
      kbcC_Assert(correlation.IsEmpty(), 100);
      break;
    default:
      break;
  }
}
