#pragma once

#include <array>
#include <iterator>

#include "kprC_Procedures.h"

/// Which procedures may follow the previous ones. A procedure that stands in no set of the row is refused.
struct kprC_SequenceRow {
  /// The procedures that the row speaks of.
  kprC_ProcedureSet previous{};
  /// May follow.
  kprC_ProcedureSet allowed{};
  /// The step before the previous one decides.
  kprC_ProcedureSet undecided{};
  /// May follow, or are undecided, in a sequence that allows the generation of added mass.
  kprC_ProcedureSet allowedWithAddedMass{};
  kprC_ProcedureSet undecidedWithAddedMass{};
  /// A complex frequency step may follow once the sequence holds a frequency step.
  bool complexFrequencyAfterFrequency = false;
};

/// What may be the first analysis step.
inline constexpr kprC_SequenceRow kprC_FirstStepRow = [] {
  using namespace kprC_Procedure;
  return kprC_SequenceRow{.allowed = {
          Buckle, CoupledTempDisplacement, CoupledThermalElectric, ExplicitDynamics, Frequency, Geostatic,
          HeatTransfer, ImplicitDynamics, MassDiffusion, Soils, Static, StaticRiks, StaticLinearPerturbation,
          SteadyStateDirect, Visco, TempDisplacementDynamics, SubstructureGenerate, DirectCyclic, Flow,
          EmagTimeHarmonic, ElecThermalStructural, ReducedBasisGenerate, CoupledThermalElectrochemical,
          CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure},
      .allowedWithAddedMass = {UsaAddedMassGeneration}};
}();

/// What may follow each procedure. Linear perturbations are transparent: they leave what is no perturbation to the
/// general step before them.
inline constexpr auto kprC_SequenceRows = [] {
  using namespace kprC_Procedure;
  return std::to_array<kprC_SequenceRow>({
      // clang-format off
      {.previous = {Anneal, ExplicitDynamics, TempDisplacementDynamics},
       .allowed = {Anneal, ExplicitDynamics, TempDisplacementDynamics},
       .complexFrequencyAfterFrequency = true},
      {.previous = {
           Buckle, ModalDynamics, RandomResponse, ResponseSpectrum, StaticLinearPerturbation, SteadyStateDirect,
           SteadyStateModal, SubstructureGenerate, ComplexFrequency, SteadyStateSubspace, ReducedBasisGenerate},
       .allowed = {
           Buckle, Frequency, StaticLinearPerturbation, SteadyStateDirect, SubstructureGenerate, DirectCyclic,
           ReducedBasisGenerate},
       .undecided = {
           CoupledTempDisplacement, CoupledThermalElectric, Geostatic, HeatTransfer, ImplicitDynamics, MassDiffusion,
           ModalDynamics, RandomResponse, ResponseSpectrum, Soils, Static, StaticRiks, SteadyStateModal,
           SubspaceDynamics, Visco, ComplexFrequency, SteadyStateSubspace, Flow, ElecThermalStructural,
           CoupledThermalElectrochemical, CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure},
       .undecidedWithAddedMass = {UsaAddedMassGeneration},
       .complexFrequencyAfterFrequency = true},
      {.previous = {CoupledTempDisplacement, ElecThermalStructural},
       .allowed = {
           Buckle, CoupledTempDisplacement, Frequency, ImplicitDynamics, Static, StaticLinearPerturbation,
           SteadyStateDirect, Visco, SubstructureGenerate, ElecThermalStructural, ReducedBasisGenerate},
       .complexFrequencyAfterFrequency = true},
      {.previous = {CoupledThermalElectric, HeatTransfer},
       .allowed = {CoupledThermalElectric, HeatTransfer}},
      {.previous = {Frequency},
       .allowed = {
           Buckle, Frequency, ModalDynamics, RandomResponse, ResponseSpectrum, StaticLinearPerturbation,
           SteadyStateDirect, SteadyStateModal, SubspaceDynamics, SubstructureGenerate, ComplexFrequency,
           SteadyStateSubspace, DirectCyclic, ReducedBasisGenerate},
       .undecided = {
           CoupledTempDisplacement, CoupledThermalElectric, Geostatic, HeatTransfer, ImplicitDynamics, MassDiffusion,
           Soils, Static, StaticRiks, Visco, Flow, ElecThermalStructural, CoupledThermalElectrochemical,
           CoupledThermalElectrochemStruct, CoupledThermalElectrochemStructPorepressure},
       .undecidedWithAddedMass = {UsaAddedMassGeneration}},
      {.previous = {Geostatic, Soils},
       .allowed = {
           Buckle, Frequency, Geostatic, ImplicitDynamics, Soils, Static, StaticRiks, StaticLinearPerturbation,
           SteadyStateDirect, Visco, SubstructureGenerate, ReducedBasisGenerate},
       .complexFrequencyAfterFrequency = true},
      {.previous = {ImplicitDynamics},
       .allowed = {ImplicitDynamics, Static, StaticRiks, SubspaceDynamics, Visco, SubstructureGenerate, DirectCyclic},
       .allowedWithAddedMass = {UsaAddedMassGeneration},
       .complexFrequencyAfterFrequency = true},
      {.previous = {MassDiffusion},
       .allowed = {MassDiffusion}},
      {.previous = {Static, Visco},
       .allowed = {
           Buckle, CoupledTempDisplacement, Frequency, Geostatic, ImplicitDynamics, Soils, Static, StaticRiks,
           StaticLinearPerturbation, SteadyStateDirect, Visco, SubstructureGenerate, DirectCyclic,
           ElecThermalStructural, ReducedBasisGenerate},
       .complexFrequencyAfterFrequency = true},
      {.previous = {StaticRiks},
       .allowed = {}},
      {.previous = {SubspaceDynamics},
       .allowed = {ImplicitDynamics, Static, StaticRiks, SubspaceDynamics, Visco, SubstructureGenerate},
       .allowedWithAddedMass = {UsaAddedMassGeneration},
       .complexFrequencyAfterFrequency = true},
      {.previous = {UsaAddedMassGeneration},
       .allowed = {},
       .allowedWithAddedMass = {
           ImplicitDynamics, Static, StaticRiks, SubspaceDynamics, UsaAddedMassGeneration, Visco, SubstructureGenerate},
       .complexFrequencyAfterFrequency = true},
      {.previous = {DirectCyclic},
       .allowed = {
           Buckle, Frequency, ImplicitDynamics, Static, StaticRiks, StaticLinearPerturbation, SteadyStateDirect,
           Visco, SubstructureGenerate, DirectCyclic, ReducedBasisGenerate},
       .complexFrequencyAfterFrequency = true},
      {.previous = {Flow},
       .allowed = {Flow}},
      {.previous = {EmagTimeHarmonic},
       .allowed = {EmagTimeHarmonic},
       .complexFrequencyAfterFrequency = true},
      {.previous = {CoupledThermalElectrochemical},
       .allowed = {CoupledThermalElectrochemical},
       .complexFrequencyAfterFrequency = true},
      {.previous = {CoupledThermalElectrochemStruct},
       .allowed = {CoupledThermalElectrochemStruct},
       .complexFrequencyAfterFrequency = true},
      {.previous = {CoupledThermalElectrochemStructPorepressure},
       .allowed = {CoupledThermalElectrochemStructPorepressure},
       .complexFrequencyAfterFrequency = true},
      // clang-format on
  });
}();
static_assert(
    [] {
      kprC_ProcedureSet seen;
      int named = 0;
      for (kprC_SequenceRow const& row : kprC_SequenceRows) {
        seen = seen | row.previous;
        named += row.previous.Size();
      }
      int const all = static_cast<int>(std::size(kprC_ProcedureRows));
      return named == all && seen.Size() == all;
    }(),
    "each procedure is the previous one of exactly one row");
