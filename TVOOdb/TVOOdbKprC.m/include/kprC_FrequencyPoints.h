#pragma once

#include "cls_Containers.h"
#include "kprC_Types.h"

/// A range of frequencies, in cycles per unit of time, that a step computes its results in.
class TVO_API kprC_FrequencyInterval {
 public:
  double upper = 0.0;
  double lower = 0.0;
  double bias;  ///< above 1.0 the points crowd at the ends, below in the middle; never 0.0

 protected:
  static constexpr double evenly = 1.0;
  /// Between two eigenfrequencies the response changes fastest at the ends.
  static constexpr double betweenModes = 3.0;

  explicit kprC_FrequencyInterval(double usualBias) : bias(usualBias) {}
  ~kprC_FrequencyInterval() = default;

  /// Refuses fewer points than the two ends of a part.
  static void AssertPointsBetweenModes(int points, int code);
  /// Number 43.
  void AssertRangeOrSingleFrequency() const;
  /// Number 44.
  void AssertBias() const;
};

/// Such a range with the number of its points. With `upper` left at 0.0 it stands for the one frequency `lower`, which
/// steady-state steps take.
class TVO_API kprC_FrequencyPoints : public kprC_FrequencyInterval {
 public:
  int nPoints = 20;  ///< in the range, or in each part of one that is split; both ends among them; 20 are usual

 protected:
  using kprC_FrequencyInterval::kprC_FrequencyInterval;
  ~kprC_FrequencyPoints() = default;

  /// Numbers 46, 43 and 44, of a range that is split at the eigenfrequencies.
  void AssertSplitRange() const;
};
