#include "kprC_Step.h"

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

namespace {

// The answers by the procedure's place in the list of all; last those of the initial step.
constexpr auto answersByBit = [] {
  std::array<kprC_StepAnswers, std::size(kprC_ProcedureRows) + 1> answers{};
  std::size_t bit = 0;
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) answers[bit++] = kprC_StepAnswersOf(row.id);
  answers[bit] = kprC_StepAnswersOf(kprC_TypeId("kprC_InitialStep"));
  return answers;
}();

}  // namespace

cls_AttributeTable const& kprC_Step::Attributes() {
  static auto const table = cls_Describe<kprC_Step>("kprC_Step", 1327)
                                .Attribute("solverInput", &kprC_Step::solverInput)
                                .Attribute("description", &kprC_Step::description)
                                .Attribute("stepId", &kprC_Step::stepId)
                                .Attribute("suppress", &kprC_Step::suppress);
  return table;
}

kprC_StepAnswers const& kprC_Step::Answers() const {
  int const bit = kprC_ProcedureBit(DynTypeId());
  return bit < 0 ? answersByBit.back() : answersByBit[static_cast<std::size_t>(bit)];
}

kprC_Step::ResponseEnm kprC_Step::Response() const {
  switch (Answers().response) {
    case kprC_ResponseRule::steadyState: return STEADY_STATE;
    case kprC_ResponseRule::transient: return TRANSIENT;
    case kprC_ResponseRule::notApplicable: return NOT_APPLICABLE;
    case kprC_ResponseRule::ownField:
    case kprC_ResponseRule::computed: break;
  }
  return OwnResponse();
}

kprC_Step::NlgeomEnm kprC_Step::Nlgeom() const {
  switch (Answers().nlgeom) {
    case kprC_NlgeomRule::off: return OFF;
    case kprC_NlgeomRule::on: return ON;
    case kprC_NlgeomRule::notAvailable: return NOT_AVAILABLE;
    case kprC_NlgeomRule::alwaysOff: return ALWAYS_OFF;
    case kprC_NlgeomRule::ownField: break;
  }
  return OwnNlgeom();
}

bool kprC_Step::Perturbation(unsigned int id) {
  int const bit = kprC_ProcedureBit(id);
  return bit >= 0 && kprC_ProcedureRows[bit].perturbation;
}

cls_AttributeTable const& kprC_InitialStep::Attributes() {
  static auto const table =
      cls_Describe<kprC_InitialStep, kprC_Step>("kprC_InitialStep", 207).Constructor(constructorCmd());
  return table;
}

void kprC_InitialStep::Suppress() { kprC_Refuse(256); }

char const* kprC_InitialStepName() { return "Initial step"; }
