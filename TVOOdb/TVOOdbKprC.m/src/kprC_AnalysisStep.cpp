#include "kprC_AnalysisStep.h"

cls_AttributeTable const& kprC_AnalysisStep::Attributes() {
  using Self = kprC_AnalysisStep;
  static auto const table = cls_Describe<Self, kprC_Step>("kprC_AnalysisStep", 2608)
                                .Attribute("restart", &Self::restart)
                                .Attribute("monitor", &Self::monitor)
                                .Attribute("diagnosticPrint", &Self::diagnosticPrint)
                                .Attribute("contactControls", &Self::contactControls)
                                .Attribute("amd", &Self::amd)
                                .Attribute("lcc", &Self::lcc)
                                .Attribute("controls", &Self::controls)
                                .Attribute("linearCtrl", &Self::linearCtrl)
                                .Attribute("matrixSolver", &Self::matrixSolver)
                                .Attribute("matrixStorage", &Self::matrixStorage)
                                .Attribute("convertSDI", &Self::convertSDI)
                                .Required("activateElemContainer", &Self::activateElemContainer)
                                .Attribute("scc", &Self::scc)
                                .Attribute("scc2", &Self::scc2);
  return table;
}

kprC_AnalysisStep::kprC_AnalysisStep() : activateElemContainer(new mdl_ExtensionRepository()) {}
