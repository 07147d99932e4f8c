#pragma once

#include "kbcC_Components.h"

/// What the conditions of fluid analyses have in common. Such analyses are no longer made: models that have these
/// conditions keep them, and no step of them can be edited any more.
class TVO_API kbcC_FluidBC : public kbcC_BC {
 public:
  CategoryEnm Category() const override { return FLUID; }
  bool AllowedInFlow() const override { return true; }
  bool AllowedInALoadCase() const override { return false; }
  bool ValidInPerturbationStep(int, bool) const override { return false; }
  /// Refuses a distribution by a discrete field.
  void AssertValid() const override;

  // All refused with nex_PrimException<atr_String, 1>, but for the insertion of the state that creates.
  bool Insert(cow_String const& step, kbcC_BCState const& state) override;
  bool Remove(cow_String const& step) override;
  void Deactivate(cow_String const& step) override;
  void Reset(cow_String const& step) override;
  void Move(cow_String const& from, cow_String const& to) override;

 protected:
  struct Texts {
    char const* notEdited;
    char const* noDiscreteField;
  };
  virtual Texts RefusalTexts() const = 0;

 private:
  [[noreturn]] void RefuseEdit() const;
};
