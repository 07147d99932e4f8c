#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// The spectrum of a shaking in one direction.
///
/// A new component is not valid: the caller names its spectrum.
class TVO_API kprC_ResponseSpectrumComponent : public cls_Persistent {
  CLS_PERSISTENT(kprC, kprC_ResponseSpectrumComponent)

 public:
  kprC_ResponseSpectrumComponent() = default;
  /// Numbers 37, 39 and 301.
  void AssertValid() const;

  cow_String spectrum;  ///< name of its definition
  double x = 0.0;       ///< the direction, of any length
  double y = 0.0;
  double z = 0.0;
  double scale = 1.0;         ///< factor of the spectrum, usually none
  double timeDuration = 0.0;  ///< of the event; of use with the double sum combination alone
};
