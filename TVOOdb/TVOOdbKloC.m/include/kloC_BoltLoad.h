#pragma once

#include "dtmC_DatumRef.h"
#include "kloC_Scalar.h"

/// What a bolt is given in one step: its tension in units of force, or a change of length.
class TVO_API kloC_BoltLoadState final : public kloC_ScalarState {
  CLS_PERSISTENT(kloC, kloC_BoltLoadState)

 public:
  kloC_BoltLoadState() = default;
  KPRC_NAMED_CMD(pythonTypeName, "BoltLoadState")

  mdl_PropAttr<kloC_BoltLoadMethodEnm> boltMethod;
};

/// The tension of a bolt, or its shortening. It is there for the whole analysis from the first step on.
class TVO_API kloC_BoltLoad final : public kprC_StateAccess<kloC_Scalar, kloC_BoltLoadState> {
  CLS_PERSISTENT(kloC, kloC_BoltLoad)

 public:
  kloC_BoltLoad() = default;
  CategoryEnm Category() const override { return MECHANICAL; }
  bool AllowedInALoadCase() const override { return true; }
  /// Refused: 35.
  void Deactivate(cow_String const& step) override;
  /// Refuses to move the creation: 36.
  void Move(cow_String const& from, cow_String const& to) override;
  /// Refuses a bolt through a solid part without an axis, 39, and one through surfaces that do not hang together, 55.
  /// Asked by whoever knows the region's geometry.
  void AssertValidPlace(bool isSolid, bool isDisjoint) const;

  KPRC_NAMED_CMD(constructorCmd, "BoltLoad")
  KPRC_VALUE_CMD(boltMethod)
  KPRC_CMD(datumAxis)
  KPRC_CMD(preTenSecPartLevel)
  KPRC_CMD(follower)

  dtmC_DatumRef dtmReference;       ///< axis of the bolt
  bool preTenSecPartLevel = false;  ///< the section through the bolt belongs to its part
  kloC_FollowerEnm follower = kloC_FollowerEnm::OFF;

 protected:
  /// Refuses a creation elsewhere than in the first analysis step, a general one, 37, and at the length as it is, 38.
  void AssertKind() const override;
};
