#pragma once

#include "cow_String.h"
#include "kprC_ContactControls.h"

/// How an explicit step tracks a contact pair and enforces it by penalty.
class TVO_API kprC_ExplicitContactControls : public kprC_ContactControls {
  CLS_PERSISTENT(kprC, kprC_ExplicitContactControls)

 public:
  kprC_ExplicitContactControls() = default;
  /// Numbers 124 to 127.
  void AssertValid() const override;

  cow_String cpset;               ///< name of the contact pairs that these controls are for; empty: all
  bool fastLocalTracking = true;  ///< the cheap search between two global ones
  int inc = 100;                  ///< largest number of increments between two global searches
  int warpCheckPeriod = 20;       ///< increments between two checks for highly warped facets
  double warpCutOff = 20.0;       ///< angle between normals from which a facet is highly warped, in degrees
  double penalty = 1.0;           ///< factor on the stiffness that the solver chooses
};
