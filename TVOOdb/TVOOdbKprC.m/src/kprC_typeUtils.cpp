#include "kprC_typeUtils.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "kprC_Procedures.h"

namespace {

using namespace kprC_Procedure;

// clang-format off
constexpr kprC_ProcedureSet explicitProcedures{Anneal, ExplicitDynamics, TempDisplacementDynamics};
constexpr kprC_ProcedureSet flow{Flow};
constexpr kprC_ProcedureSet electromagnetic{EmagTimeHarmonic};
constexpr kprC_ProcedureSet eigenvalues{Buckle, Frequency, ComplexFrequency};
constexpr kprC_ProcedureSet complexEigenvaluesOrBuckling{Buckle, ComplexFrequency};
constexpr kprC_ProcedureSet implicitOrModalDynamics{ImplicitDynamics, ModalDynamics};
constexpr kprC_ProcedureSet coupled{
    CoupledTempDisplacement, CoupledThermalElectric, TempDisplacementDynamics, CoupledThermalElectrochemical,
    CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure};
constexpr kprC_ProcedureSet loadCases{
    StaticLinearPerturbation, SteadyStateDirect, SteadyStateModal, SubstructureGenerate, SteadyStateSubspace};
constexpr kprC_ProcedureSet timePoints{
    CoupledTempDisplacement, CoupledThermalElectric, HeatTransfer, ImplicitDynamics, MassDiffusion, Soils, Static,
    SubspaceDynamics, DirectCyclic, ElecThermalStructural, CoupledThermalElectrochemical,
    CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure, ModalDynamics, Visco};
constexpr kprC_ProcedureSet timePointsOnRequest{ExplicitDynamics, TempDisplacementDynamics};
constexpr kprC_ProcedureSet timeMarks{
    CoupledTempDisplacement, CoupledThermalElectric, HeatTransfer, ImplicitDynamics, MassDiffusion, Soils, Static,
    Visco, DirectCyclic, ElecThermalStructural, CoupledThermalElectrochemical, CoupledThermalElectrochemStruct,
    CoupledThermalElectrochemStructPorepressure};
constexpr kprC_ProcedureSet timeMarksOnRequest{Anneal, ExplicitDynamics, TempDisplacementDynamics};
constexpr kprC_ProcedureSet timeIntervals{
    CoupledTempDisplacement, CoupledThermalElectric, ExplicitDynamics, HeatTransfer, ImplicitDynamics, MassDiffusion,
    ModalDynamics, Soils, Static, SubspaceDynamics, Visco, DirectCyclic, ElecThermalStructural,
    CoupledThermalElectrochemical, CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure, Flow,
    TempDisplacementDynamics};
constexpr kprC_ProcedureSet numberIntervals = timeIntervals | kprC_ProcedureSet{Anneal};
constexpr kprC_ProcedureSet fillInLevel{Soils, Geostatic};

constexpr unsigned int TypicalControls = kprC_TypeId("kprC_TypicalControls");
constexpr unsigned int CTDControls = kprC_TypeId("kprC_CTDControls");
constexpr unsigned int PoreControls = kprC_TypeId("kprC_PoreControls");
constexpr unsigned int ElectricalControls = kprC_TypeId("kprC_ElectricalControls");
constexpr unsigned int DirectCyclicControls = kprC_TypeId("kprC_DirectCyclicControls");
constexpr unsigned int ETSControls = kprC_TypeId("kprC_ETSControls");
constexpr unsigned int HeatTransferControls = kprC_TypeId("kprC_HeatTransferControls");
constexpr unsigned int CTEControls = kprC_TypeId("kprC_CTEControls");
constexpr unsigned int MassDiffusionControls = kprC_TypeId("kprC_MassDiffusionControls");

constexpr unsigned int displacementControls[] = {
    TypicalControls, CTDControls, PoreControls, ElectricalControls, DirectCyclicControls, ETSControls};
constexpr unsigned int hydrostaticControls[] = {
    TypicalControls, CTDControls, PoreControls, ElectricalControls, ETSControls};
constexpr unsigned int temperatureControls[] = {CTDControls, HeatTransferControls, CTEControls, ETSControls};
constexpr unsigned int poreControls[] = {PoreControls};
constexpr unsigned int concentrationControls[] = {MassDiffusionControls};
constexpr unsigned int electricalControls[] = {CTEControls, ElectricalControls, ETSControls};
// clang-format on

template <std::size_t N>
bool IsOneOf(unsigned int const (&ids)[N], unsigned int id) {
  return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

}  // namespace

bool kprC_IsExplicit(unsigned int procedure) { return explicitProcedures.Contains(procedure); }
bool kprC_IsFlow(unsigned int procedure) { return flow.Contains(procedure); }
bool kprC_IsEmag(unsigned int procedure) { return electromagnetic.Contains(procedure); }
bool kprC_IsFrequencyBuckle(unsigned int procedure) { return eigenvalues.Contains(procedure); }
bool kprC_ModesIsAllowed(unsigned int procedure) { return eigenvalues.Contains(procedure); }
bool kprC_IsComplexFrequencyBuckle(unsigned int procedure) { return complexEigenvaluesOrBuckling.Contains(procedure); }
bool kprC_IsImplicitModal(unsigned int procedure) { return implicitOrModalDynamics.Contains(procedure); }
bool kprC_IsCoupledStep(unsigned int procedure) { return coupled.Contains(procedure); }
bool kprC_LoadCaseIsAllowed(unsigned int procedure) { return loadCases.Contains(procedure); }
bool kprC_TimePointIsAllowed(unsigned int procedure, bool flag) {
  return timePoints.Contains(procedure) || (flag && timePointsOnRequest.Contains(procedure));
}
bool kprC_TimeMarksIsAllowed(unsigned int procedure, bool flag) {
  return timeMarks.Contains(procedure) || (flag && timeMarksOnRequest.Contains(procedure));
}
bool kprC_NumberIntervalIsAllowed(unsigned int procedure) { return numberIntervals.Contains(procedure); }
bool kprC_TimeIntervalIsAllowed(unsigned int procedure) { return timeIntervals.Contains(procedure); }
bool kprC_validProcedureInFillInLevel(unsigned int procedure) { return fillInLevel.Contains(procedure); }

bool kprC_HasRotationControls(unsigned int controls) { return IsOneOf(displacementControls, controls); }
bool kprC_HasDisplacementControls(unsigned int controls) { return IsOneOf(displacementControls, controls); }
bool kprC_HasHydrostaticControls(unsigned int controls) { return IsOneOf(hydrostaticControls, controls); }
bool kprC_HasTemperatureControls(unsigned int controls) { return IsOneOf(temperatureControls, controls); }
bool kprC_HasPoreControls(unsigned int controls) { return IsOneOf(poreControls, controls); }
bool kprC_HasConcentrationControls(unsigned int controls) { return IsOneOf(concentrationControls, controls); }
bool kprC_HasElectricalControls(unsigned int controls) { return IsOneOf(electricalControls, controls); }
