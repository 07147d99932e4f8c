#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <iterator>

#include "kprC_Types.h"

/// The identifiers of the analysis procedures under their short names.
namespace kprC_Procedure {
inline constexpr unsigned int Anneal = kprC_TypeId("kprC_AnnealStep");
inline constexpr unsigned int Buckle = kprC_TypeId("kprC_BuckleStep");
inline constexpr unsigned int ComplexFrequency = kprC_TypeId("kprC_ComplexFrequencyStep");
inline constexpr unsigned int CoupledTempDisplacement = kprC_TypeId("kprC_CoupledTempDisplacementStep");
inline constexpr unsigned int CoupledThermalElectric = kprC_TypeId("kprC_CoupledThermalElectricStep");
inline constexpr unsigned int ElecThermalStructural = kprC_TypeId("kprC_ElecThermalStructuralStep");
inline constexpr unsigned int CoupledThermalElectrochemical = kprC_TypeId("kprC_CoupledThermalElectrochemicalStep");
inline constexpr unsigned int CoupledThermalElectrochemStruct = kprC_TypeId("kprC_CoupledThermalElectrochemStructStep");
inline constexpr unsigned int CoupledThermalElectrochemStructPorepressure = kprC_TypeId("kprC_CoupledThermalElectrochemStructPorepressureStep");
inline constexpr unsigned int DirectCyclic = kprC_TypeId("kprC_DirectCyclicStep");
inline constexpr unsigned int ImplicitDynamics = kprC_TypeId("kprC_ImplicitDynamicsStep");
inline constexpr unsigned int ExplicitDynamics = kprC_TypeId("kprC_ExplicitDynamicsStep");
inline constexpr unsigned int SubspaceDynamics = kprC_TypeId("kprC_SubspaceDynamicsStep");
inline constexpr unsigned int TempDisplacementDynamics = kprC_TypeId("kprC_TempDisplacementDynamicsStep");
inline constexpr unsigned int EmagTimeHarmonic = kprC_TypeId("kprC_EmagTimeHarmonicStep");
inline constexpr unsigned int Flow = kprC_TypeId("kprC_FlowStep");
inline constexpr unsigned int Frequency = kprC_TypeId("kprC_FrequencyStep");
inline constexpr unsigned int Geostatic = kprC_TypeId("kprC_GeostaticStep");
inline constexpr unsigned int HeatTransfer = kprC_TypeId("kprC_HeatTransferStep");
inline constexpr unsigned int MassDiffusion = kprC_TypeId("kprC_MassDiffusionStep");
inline constexpr unsigned int ModalDynamics = kprC_TypeId("kprC_ModalDynamicsStep");
inline constexpr unsigned int RandomResponse = kprC_TypeId("kprC_RandomResponseStep");
inline constexpr unsigned int ReducedBasisGenerate = kprC_TypeId("kprC_ReducedBasisGenerateStep");
inline constexpr unsigned int ResponseSpectrum = kprC_TypeId("kprC_ResponseSpectrumStep");
inline constexpr unsigned int Soils = kprC_TypeId("kprC_SoilsStep");
inline constexpr unsigned int Static = kprC_TypeId("kprC_StaticStep");
inline constexpr unsigned int StaticLinearPerturbation = kprC_TypeId("kprC_StaticLinearPerturbationStep");
inline constexpr unsigned int StaticRiks = kprC_TypeId("kprC_StaticRiksStep");
inline constexpr unsigned int SteadyStateDirect = kprC_TypeId("kprC_SteadyStateDirectStep");
inline constexpr unsigned int SteadyStateModal = kprC_TypeId("kprC_SteadyStateModalStep");
inline constexpr unsigned int SteadyStateSubspace = kprC_TypeId("kprC_SteadyStateSubspaceStep");
inline constexpr unsigned int SubstructureGenerate = kprC_TypeId("kprC_SubstructureGenerateStep");
inline constexpr unsigned int UsaAddedMassGeneration = kprC_TypeId("kprC_UsaAddedMassGenerationStep");
inline constexpr unsigned int Visco = kprC_TypeId("kprC_ViscoStep");
}  // namespace kprC_Procedure

/// An analysis procedure: its identifier, its label (behind "\\@" a key for translators) and whether it is a linear
/// perturbation.
struct kprC_ProcedureRow {
  unsigned int id;
  char const* label;
  bool perturbation;
};

/// All analysis procedures. A row's place is the procedure's bit in masks that are compared across modules, so the
/// order never changes.
inline constexpr kprC_ProcedureRow kprC_ProcedureRows[] = {
  {kprC_Procedure::Anneal, "Anneal", false},
  {kprC_Procedure::Buckle, "Buckle", true},
  {kprC_Procedure::ComplexFrequency, "Complex frequency", true},
  {kprC_Procedure::CoupledTempDisplacement, "Coupled temp-displacement", false},
  {kprC_Procedure::CoupledThermalElectric, "Coupled thermal-electric", false},
  {kprC_Procedure::ElecThermalStructural, "Coupled thermal-electrical-structural", false},
  {kprC_Procedure::CoupledThermalElectrochemical, "Coupled thermal-electrochemical", false},
  {kprC_Procedure::CoupledThermalElectrochemStruct, "Coupled thermal-electrochemical-structural", false},
  {kprC_Procedure::CoupledThermalElectrochemStructPorepressure, "Coupled thermal-electrochemical-structural pore pressure", false},
  {kprC_Procedure::DirectCyclic, "Direct cyclic", false},
  {kprC_Procedure::ImplicitDynamics, "Dynamic, Implicit", false},
  {kprC_Procedure::ExplicitDynamics, "Dynamic, Explicit", false},
  {kprC_Procedure::SubspaceDynamics, "Dynamic, Subspace", false},
  {kprC_Procedure::TempDisplacementDynamics, "Dynamic, Temp-disp, Explicit", false},
  {kprC_Procedure::EmagTimeHarmonic, "Electromagnetic, Time harmonic", true},
  {kprC_Procedure::Flow, "Flow", false},
  {kprC_Procedure::Frequency, "Frequency\\@PROCEDURE_FREQUENCY", true},
  {kprC_Procedure::Geostatic, "Geostatic", false},
  {kprC_Procedure::HeatTransfer, "Heat transfer", false},
  {kprC_Procedure::MassDiffusion, "Mass diffusion\\@PROCEDURE_MASS_DIFFUSION", false},
  {kprC_Procedure::ModalDynamics, "Modal dynamics", true},
  {kprC_Procedure::RandomResponse, "Random response", true},
  {kprC_Procedure::ReducedBasisGenerate, "Reduced basis generation", true},
  {kprC_Procedure::ResponseSpectrum, "Response spectrum", true},
  {kprC_Procedure::Soils, "Soils", false},
  {kprC_Procedure::Static, "Static, General", false},
  {kprC_Procedure::StaticLinearPerturbation, "Static, Linear perturbation", true},
  {kprC_Procedure::StaticRiks, "Static, Riks", false},
  {kprC_Procedure::SteadyStateDirect, "Steady-state dynamics, Direct", true},
  {kprC_Procedure::SteadyStateModal, "Steady-state dynamics, Modal", true},
  {kprC_Procedure::SteadyStateSubspace, "Steady-state dynamics, Subspace", true},
  {kprC_Procedure::SubstructureGenerate, "Substructure generation", true},
  {kprC_Procedure::UsaAddedMassGeneration, "USA added mass generation", false},
  {kprC_Procedure::Visco, "Visco", false},
};

/// How a step answers for its response.
enum class kprC_ResponseRule { steadyState, transient, notApplicable, ownField, computed };
/// How a step answers for its geometric nonlinearity.
enum class kprC_NlgeomRule { off, on, notAvailable, alwaysOff, ownField };

/// What all steps of one class answer alike.
struct kprC_StepAnswers {
  unsigned int id;
  bool isExplicit;
  bool perturbation;
  bool nonmechanical;
  bool allowLoadCases;
  bool allowAdaptiveMeshDomains;
  kprC_ResponseRule response;
  kprC_NlgeomRule nlgeom;
};

/// The constant answers of the initial step and of the analysis steps, by class name.
inline constexpr auto kprC_StepAnswerRows = [] {
  using namespace kprC_Procedure;
  using enum kprC_ResponseRule;
  using Nlgeom = kprC_NlgeomRule;
  constexpr unsigned int Initial = kprC_TypeId("kprC_InitialStep");
  constexpr bool yes = true;
  constexpr bool no = false;
  return std::to_array<kprC_StepAnswers>({
      // clang-format off
      // explicit, perturbation, nonmechanical, load cases, adaptive meshes, response, nlgeom
      {Anneal,                                      yes, no,  no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {Buckle,                                      no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {ComplexFrequency,                            no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {CoupledTempDisplacement,                     no,  no,  no,  no,  yes, ownField,      Nlgeom::ownField},
      {CoupledThermalElectric,                      no,  no,  yes, no,  no,  ownField,      Nlgeom::notAvailable},
      {CoupledThermalElectrochemStructPorepressure, no,  no,  no,  no,  yes, ownField,      Nlgeom::ownField},
      {CoupledThermalElectrochemStruct,             no,  no,  no,  no,  yes, ownField,      Nlgeom::ownField},
      {CoupledThermalElectrochemical,               no,  no,  yes, no,  no,  ownField,      Nlgeom::notAvailable},
      {DirectCyclic,                                no,  no,  no,  no,  yes, notApplicable, Nlgeom::alwaysOff},
      {ElecThermalStructural,                       no,  no,  no,  no,  yes, ownField,      Nlgeom::ownField},
      {EmagTimeHarmonic,                            no,  yes, yes, no,  no,  notApplicable, Nlgeom::notAvailable},
      {ExplicitDynamics,                            yes, no,  no,  no,  yes, notApplicable, Nlgeom::ownField},
      {Flow,                                        no,  no,  yes, no,  no,  transient,     Nlgeom::on},
      {Frequency,                                   no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {Geostatic,                                   no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      {HeatTransfer,                                no,  no,  yes, no,  no,  ownField,      Nlgeom::notAvailable},
      {ImplicitDynamics,                            no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      {Initial,                                     no,  no,  no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {MassDiffusion,                               no,  no,  yes, no,  no,  ownField,      Nlgeom::notAvailable},
      {ModalDynamics,                               no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {RandomResponse,                              no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {ReducedBasisGenerate,                        no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {ResponseSpectrum,                            no,  yes, no,  no,  no,  notApplicable, Nlgeom::notAvailable},
      {Soils,                                       no,  no,  no,  yes, yes, computed,      Nlgeom::ownField},
      {StaticLinearPerturbation,                    no,  yes, no,  yes, no,  notApplicable, Nlgeom::notAvailable},
      {StaticRiks,                                  no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      {Static,                                      no,  no,  no,  no,  yes, notApplicable, Nlgeom::ownField},
      {SteadyStateDirect,                           no,  yes, no,  yes, no,  notApplicable, Nlgeom::notAvailable},
      {SteadyStateModal,                            no,  yes, no,  yes, no,  notApplicable, Nlgeom::notAvailable},
      {SteadyStateSubspace,                         no,  yes, no,  yes, no,  notApplicable, Nlgeom::notAvailable},
      {SubspaceDynamics,                            no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      {SubstructureGenerate,                        no,  yes, no,  yes, no,  notApplicable, Nlgeom::notAvailable},
      {TempDisplacementDynamics,                    yes, no,  no,  no,  yes, notApplicable, Nlgeom::ownField},
      {UsaAddedMassGeneration,                      no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      {Visco,                                       no,  no,  no,  no,  no,  notApplicable, Nlgeom::ownField},
      // clang-format on
  });
}();

/// The place of each row of the type table in the list of procedures, -1 for what is none.
inline constexpr auto kprC_ProcedureBits = [] {
  std::array<signed char, std::size(kprC_TypeRows) + 1> bits{};
  bits.fill(-1);
  signed char bit = 0;
  for (kprC_ProcedureRow const& row : kprC_ProcedureRows) bits[row.id & 0xffffU] = bit++;
  return bits;
}();

/// The place of a procedure in the list of all, 0 to 33; -1 for anything else, such as the initial step's 0 or the 1
/// of a suppressed step. Constant time.
constexpr int kprC_ProcedureBit(unsigned int id) {
  unsigned int const row = id & 0xffffU;
  return id >> 16 == kprC_ModuleId && row < kprC_ProcedureBits.size() ? kprC_ProcedureBits[row] : -1;
}

/// A set of procedures, as a mask over the places in the list of all. A plain value.
class kprC_ProcedureSet {
 public:
  /// The set of the given procedures; an id that is no procedure adds nothing.
  template <std::same_as<unsigned int>... Ids>
  constexpr kprC_ProcedureSet(Ids... ids) : mask_((std::uint64_t{0} | ... | Bit(ids))) {}

  /// Whether the procedure is in the set; false for an id that is no procedure. Constant time.
  constexpr bool Contains(unsigned int id) const { return (mask_ & Bit(id)) != 0; }
  constexpr bool IsEmpty() const { return mask_ == 0; }
  constexpr int Size() const { return std::popcount(mask_); }
  constexpr std::uint64_t Mask() const { return mask_; }

  friend constexpr kprC_ProcedureSet operator|(kprC_ProcedureSet a, kprC_ProcedureSet b) {
    kprC_ProcedureSet both;
    both.mask_ = a.mask_ | b.mask_;
    return both;
  }
  /// All procedures that are not in the set.
  friend constexpr kprC_ProcedureSet operator~(kprC_ProcedureSet set) {
    set.mask_ = ~set.mask_ & ((std::uint64_t{1} << std::size(kprC_ProcedureRows)) - 1);
    return set;
  }
  friend constexpr bool operator==(kprC_ProcedureSet, kprC_ProcedureSet) = default;

 private:
  static constexpr std::uint64_t Bit(unsigned int id) {
    int const bit = kprC_ProcedureBit(id);
    return bit < 0 ? 0 : std::uint64_t{1} << bit;
  }

  std::uint64_t mask_;
};

/// The constant answers of a class of steps; those of the initial step for a type that is no step.
constexpr kprC_StepAnswers kprC_StepAnswersOf(unsigned int id) {
  kprC_StepAnswers found{};
  for (kprC_StepAnswers const& row : kprC_StepAnswerRows) {
    if (row.id == id) return row;
    if (row.id == kprC_TypeId("kprC_InitialStep")) found = row;
  }
  return found;
}
static_assert(
    [] {
      for (kprC_ProcedureRow const& row : kprC_ProcedureRows) {
        kprC_StepAnswers const answers = kprC_StepAnswersOf(row.id);
        if (answers.id != row.id || answers.perturbation != row.perturbation) return false;
      }
      return kprC_StepAnswerRows.size() == std::size(kprC_ProcedureRows) + 1;
    }(),
    "both lists hold each procedure once and agree on which are perturbations");
