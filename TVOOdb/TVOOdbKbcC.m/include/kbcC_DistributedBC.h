#pragma once

#include "kbcC_Components.h"

/// The magnitude of a field quantity that is prescribed in one step.
class TVO_API kbcC_DistributedBCState : public kbcC_ComponentState<kbcC_DistributedBCState, kbcC_BCState> {
  CLS_ABSTRACT(kbcC, kbcC_DistributedBCState)

 public:
  KPRC_VALUE_CMD(magnitude)

  mdl_PropAttr<double> magnitude;
  static constexpr std::array<mdl_PropAttr<double> kbcC_DistributedBCState::*, 1> Components() {
    return {&kbcC_DistributedBCState::magnitude};
  }
};

/// A magnitude that has a complex value, too, for the procedures that use these.
class TVO_API kbcC_ComplexMagnitudeState
    : public kbcC_ComponentState<kbcC_ComplexMagnitudeState, kbcC_DistributedBCState> {
 public:
  omi_complex complexMag;
  static constexpr std::array<omi_complex kbcC_ComplexMagnitudeState::*, 1> ComplexComponents() {
    return {&kbcC_ComplexMagnitudeState::complexMag};
  }
};

/// Prescribes one field quantity over a region: a temperature, a pressure, a potential, a concentration.
///
/// Refuses a magnitude other than zero in the initial step, 6; where the quantity is held at what it is ("fixed"), any
/// magnitude other than zero, 16, and a state in the initial step, where there is nothing yet to hold, 25.
class TVO_API kbcC_DistributedBC : public kbcC_StateAccess<kbcC_BC, kbcC_DistributedBCState> {
  CLS_ABSTRACT(kbcC, kbcC_DistributedBC)

 public:
  using MagnitudeState = omu_PrimEnum<mdl_PropAttributeStateEnm, 1>;

  /// The magnitude in force in a step; refused as CheckStep refuses. Whether the complex value is in force depends on
  /// the step's procedure; where it is not, the imaginary part is the smallest double.
  virtual double GetMagReal(cow_String const& stepName) const = 0;
  virtual double GetMagImag(cow_String const& stepName) const = 0;
  virtual MagnitudeState GetMagState(cow_String const& stepName) const = 0;

  bool AllowedInALoadCase() const override { return true; }
  bool ValidInPerturbationStep(int procedure, bool flag) const override;

  KPRC_CMD(fixed)

  bool fixed = false;

 protected:
  void AssertKind() const override;
  bool IsHeldInPlace() const override { return fixed; }
};

/// A distributed condition whose states are of class S.
template <class S>
class kbcC_MagnitudeBC : public kbcC_ComponentBC<kbcC_DistributedBC, S> {
 public:
  double GetMagReal(cow_String const& stepName) const override { return this->GetReal(stepName, 0); }
  double GetMagImag(cow_String const& stepName) const override { return this->GetImag(stepName, 0); }
  kbcC_DistributedBC::MagnitudeState GetMagState(cow_String const& stepName) const override {
    return this->GetState(stepName, 0);
  }
};
