#pragma once

#include "cls_Describe.h"
#include "kbcC_Components.h"

// The attributes that the states of component conditions have in common, with the ordinals that all of them use.

/// The components, numbered from 0.
template <class S, class Parent>
cls_Describe<S, Parent>&& kbcC_WithComponents(cls_Describe<S, Parent>&& describe) {
  for (std::size_t i = 0; i < S::Components().size(); ++i) {
    describe.Attribute(static_cast<int>(i), S::ComponentKeys()[i], S::Components()[i]);
  }
  return std::move(describe);
}

/// The values of a displacement. 6 is retired.
template <class S, class Parent>
cls_Describe<S, Parent>&& kbcC_WithDisplacements(cls_Describe<S, Parent>&& describe) {
  return kbcC_WithComponents(std::move(describe))
      .Complex(7, "cU1real", "cU1imag", &S::cU1)
      .Complex(9, "cU2real", "cU2imag", &S::cU2)
      .Complex(11, "cU3real", "cU3imag", &S::cU3)
      .Complex(13, "cUR1real", "cUR1imag", &S::cUR1)
      .Complex(15, "cUR2real", "cUR2imag", &S::cUR2)
      .Complex(17, "cUR3real", "cUR3imag", &S::cUR3)
      .Attribute(19, "buckleCase", &S::buckleCase);
}

/// A value of class S and the name of its amplitude, in a chain of attributes.
#define KBCC_DESCRIBE_WITH_AMPLITUDE(value) .Attribute(#value, &S::value).Attribute(#value "Amp", &S::value##Amp)

/// The complex magnitude of a field.
template <class S, class Parent>
cls_Describe<S, Parent>&& kbcC_WithComplexMagnitude(cls_Describe<S, Parent>&& describe, int ordinal = 0) {
  return std::move(describe).Complex(ordinal, "complexMagReal", "complexMagImag", &S::complexMag);
}
