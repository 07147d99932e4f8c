#pragma once

#include "kbcC_Components.h"

/// Declares a value, the name of its amplitude, and the names under which scripts know them.
#define KBCC_VALUE_WITH_AMPLITUDE(value)              \
  mdl_PropAttr<double> value;                         \
  mdl_PropAttr<cow_String> value##Amp;                \
  KPRC_VALUE_CMD(value) KPRC_VALUE_CMD(value##Amp)

/// What is prescribed of a flow in one step, at whatever surface.
class TVO_API kbcC_FluidBCState : public kbcC_BCState {
 public:
  // Of the turbulence.
  KBCC_VALUE_WITH_AMPLITUDE(dissipationRate)
  KBCC_VALUE_WITH_AMPLITUDE(eddyViscosity)
  KBCC_VALUE_WITH_AMPLITUDE(kineticEnergy)
  mdl_PropAttr<kbcC_TurbulenceTypeEnm> turbulenceType;
  KPRC_VALUE_CMD(turbulenceType)

  KBCC_VALUE_WITH_AMPLITUDE(temperature)
  // The velocity, in units of length per unit of time.
  KBCC_VALUE_WITH_AMPLITUDE(vx)
  KBCC_VALUE_WITH_AMPLITUDE(vy)
  KBCC_VALUE_WITH_AMPLITUDE(vz)
};

/// What the conditions of fluid analyses have in common. Such analyses are no longer made: models that have these
/// conditions keep them, and no step of them can be edited any more.
class TVO_API kbcC_FluidBC : public kbcC_BC {
 public:
  CategoryEnm Category() const override { return FLUID; }
  bool AllowedInFlow() const override { return true; }
  bool AllowedInALoadCase() const override { return false; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }

  // All refused with nex_PrimException<atr_String, 1>, but for the insertion of the state that creates.
  bool Insert(cow_String const& step, kbcC_BCState const& state) override;
  bool Remove(cow_String const& step) override;
  void Deactivate(cow_String const& step) override;
  void Reset(cow_String const& step) override;
  void Move(cow_String const& from, cow_String const& to) override;

 protected:
  /// Refuses a distribution by a discrete field.
  void AssertDefinition() const override;
  struct Texts {
    char const* notEdited;
    char const* noDiscreteField;
  };
  virtual Texts RefusalTexts() const = 0;

 private:
  [[noreturn]] void RefuseEdit() const;
};
