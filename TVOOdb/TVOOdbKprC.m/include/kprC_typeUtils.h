#pragma once

#include "TVOExport.h"

// Questions about a procedure, by its type identifier. All are constant time and answer false for an identifier that is
// no analysis procedure, such as the initial step's 0 or the 1 of a suppressed step.

/// Procedures of an explicit analysis, of flow, and of electromagnetics.
TVO_API bool kprC_IsExplicit(unsigned int procedure);
TVO_API bool kprC_IsFlow(unsigned int procedure);
TVO_API bool kprC_IsEmag(unsigned int procedure);
/// Buckling and both frequency extractions; those are also the ones whose output is chosen by mode.
TVO_API bool kprC_IsFrequencyBuckle(unsigned int procedure);
TVO_API bool kprC_ModesIsAllowed(unsigned int procedure);
TVO_API bool kprC_IsComplexFrequencyBuckle(unsigned int procedure);
TVO_API bool kprC_IsImplicitModal(unsigned int procedure);
TVO_API bool kprC_IsCoupledStep(unsigned int procedure);
TVO_API bool kprC_LoadCaseIsAllowed(unsigned int procedure);
/// Whether output at time points may be asked for; explicit dynamics, also with temperature, answers `flag`.
TVO_API bool kprC_TimePointIsAllowed(unsigned int procedure, bool flag);
/// Whether output at exact times may be asked for; the explicit procedures answer `flag`.
TVO_API bool kprC_TimeMarksIsAllowed(unsigned int procedure, bool flag);
TVO_API bool kprC_NumberIntervalIsAllowed(unsigned int procedure);
TVO_API bool kprC_TimeIntervalIsAllowed(unsigned int procedure);
/// Whether the procedure takes a fill-in level for its incomplete factorization.
TVO_API bool kprC_validProcedureInFillInLevel(unsigned int procedure);

// Which groups of field controls a class of solution controls has, by the class's type identifier.

TVO_API bool kprC_HasRotationControls(unsigned int controls);
TVO_API bool kprC_HasDisplacementControls(unsigned int controls);
TVO_API bool kprC_HasHydrostaticControls(unsigned int controls);
TVO_API bool kprC_HasTemperatureControls(unsigned int controls);
TVO_API bool kprC_HasPoreControls(unsigned int controls);
TVO_API bool kprC_HasConcentrationControls(unsigned int controls);
TVO_API bool kprC_HasElectricalControls(unsigned int controls);
