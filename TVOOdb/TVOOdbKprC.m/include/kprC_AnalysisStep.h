#pragma once

#include "kprC_ContactControls.h"
#include "kprC_Controls.h"
#include "kprC_DiagnosticPrint.h"
#include "kprC_LinearCtrl.h"
#include "kprC_Monitor.h"
#include "kprC_OutsideClasses.h"
#include "kprC_Restart.h"
#include "kprC_Step.h"
#include "kprC_StepControl.h"
#include "kprC_StepCyclingControl.h"
#include "mdl_Extension.h"

/// Base of all steps but the initial one: what a step holds besides the parameters of its procedure.
class TVO_API kprC_AnalysisStep : public kprC_Step {
  CLS_ABSTRACT(kprC, kprC_AnalysisStep)

 public:
  kprC_AnalysisStep();

  void Suppress() override { suppress = true; }
  void Resume() override { suppress = false; }
  /// How the nonlinear equations are solved; FULL_NEWTON of a class that has no choice.
  virtual SolutionTechniqueEnm SolutionTechnique() const { return FULL_NEWTON; }

  KPRC_NAMED_CMD(constructorCmd, "AnalysisStep")
  KPRC_CMD(previous)
  KPRC_CMD(procedure)
  KPRC_CMD(load)
  KPRC_CMD(output)
  KPRC_CMD(predefinedField)
  KPRC_CMD(field)
  KPRC_CMD(history)
  KPRC_CMD(perturbation)
  KPRC_CMD(nonmechanical)
  KPRC_NAMED_CMD(explicitCmd, "explicit")
  KPRC_CMD(response)
  KPRC_CMD(timePeriod)
  KPRC_CMD(matrixSolver)
  KPRC_CMD(matrixStorage)
  KPRC_CMD(convertSDI)
  KPRC_CMD(nlgeom)
  KPRC_NAMED_CMD(upgradeStepMdbCmd, "_upgradeStepMdb")

  cow_COW<kprC_Restart, cow_Virtual<kprC_Restart>> restart;  ///< empty unless asked for, as the next two
  cow_COW<kprC_Monitor, cow_Virtual<kprC_Monitor>> monitor;
  cow_COW<kprC_DiagnosticPrint, cow_Virtual<kprC_DiagnosticPrint>> diagnosticPrint;
  cls_xoList<cow_COW<kprC_ContactControls, cow_Virtual<kprC_ContactControls>>> contactControls;  ///< none null
  mdl_CowsByName<kadC_AdptMeshDomain> amd;                            ///< adaptive mesh domains by step name
  mdl_CowsByName<klcC_LoadCase> lcc;                                  ///< load cases by name
  cow_COW<kprC_Controls, cow_Virtual<kprC_Controls>> controls;        ///< empty: the solver's own
  cow_COW<kprC_LinearCtrl, cow_Virtual<kprC_LinearCtrl>> linearCtrl;  ///< empty: the solver's own
  MatrixSolverEnm matrixSolver = MatrixSolverEnm::DIRECT;
  MatrixStorageEnm matrixStorage = MatrixStorageEnm::SOLVER_DEFAULT;
  ConvertSDIEnm convertSDI = ConvertSDIEnm::PROPAGATED;  ///< whether severe discontinuities force iterations
  cow_COW<mdl_ExtensionRepository, cow_Virtual<mdl_ExtensionRepository>> activateElemContainer;  ///< never null
  mdl_CowsByName<kprC_StepControl> scc;          ///< step controls by name
  mdl_CowsByName<kprC_StepCyclingControl> scc2;  ///< controls of the repetition of steps by name
};
