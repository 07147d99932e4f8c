#pragma once

#include <span>
#include <vector>

#include "cls_Containers.h"
#include "kprC_Controls.h"

/// Controls of the nonlinear solution that all procedures with such controls have: lists of numbers, which the solver
/// takes by their places. The classes for the procedures add a list for each field that these solve for.
///
/// A new object holds the solver's own numbers. The class alone stands for no procedure.
class TVO_API kprC_PrimaryControls : public kprC_Controls {
  CLS_PERSISTENT(kprC, kprC_PrimaryControls)

 public:
  using List = cls_xp1DArrayListDouble;
  /// How hard a solution must converge; the later ones are for first looks at a design.
  enum ConvergenceCheckEnm { STRICT = 0, MODERATE = 1, RELAXED = 2, CONCEPT_DESIGN = 3 };

  /// The solver's own numbers, and what stands at each place of a list.
  static constexpr double defaultConstraints[] = {
      1.0e-5,  //  0: tolerance of volumetric strain in hybrid solids
      1.0e-5,  //  1: of axial strain in hybrid beams
      1.0e-5,  //  2: of transverse shear strain in hybrid beams
      1.0e-5,  //  3: of curvature in hybrid beams
      5.0e-3,  //  4: of contact and slip, to the largest displacement increment
      5.0e-3,  //  5: of softened contact under high pressure
      0.1,     //  6: of softened contact as the pressure goes to zero
      1.0e-5,  //  7: of displacement in distributing couplings, to their size
      1.0e-5,  //  8: of rotation in distributing couplings
  };
  static constexpr double defaultLineSearch[] = {
      0.0,     // 0: largest number of iterations of a search, an integer; 0: no search
      1.0,     // 1: largest factor on the correction
      1.0e-4,  // 2: smallest factor on the correction
      0.25,    // 3: reduction of the residual at which a search ends
      0.10,    // 4: ratio of two factors in sequence below which a search ends
  };
  static constexpr double defaultTimeIncrementation[] = {
      // Numbers of iterations, all integers.
      4.0,   //  0: I0, after which the residuals are first looked at for growth, from 3
      8.0,   //  1: IR, after which the rate of convergence is looked at
      9.0,   //  2: IP, after which the looser residual criterion holds
      16.0,  //  3: IC, upper limit
      10.0,  //  4: IL, above which the next increment is cut
      4.0,   //  5: IG, below which, in two increments in sequence, the next one grows
      12.0,  //  6: IS, limit of those with severe discontinuities
      5.0,   //  7: IA, limit of attempts at an increment
      6.0,   //  8: IJ, limit of those with severe discontinuities in each of two increments before one that grows
      3.0,   //  9: IT, increments in sequence that meet the accuracy of integration before one that grows, at most 10
      50.0,  // 10: limit of those with severe discontinuities, where these are counted as others
      // Factors by which an increment is cut.
      0.25,  // 11: when the iterations diverge
      0.5,   // 12: when they converge too slowly
      0.75,  // 13: of the next increment, after too many iterations
      0.85,  // 14: when the accuracy of integration in time is not met
      0.25,  // 15: after too many iterations with severe discontinuities
      0.25,  // 16: when an element cannot be calculated
      1.5,   // 17: growth of the next increment after two easy ones
      0.75,  // 18: part of the tolerance of integration in time that makes an increment an easy one
      // Growth and bounds.
      0.8,   // 19: growth by the measure of integration in time
      1.5,   // 20: largest growth, of statics
      1.25,  // 21: of dynamics
      2.0,   // 22: of diffusion
      0.95,  // 23: part of the largest growth from which an increment of a linear problem grows
      0.1,   // 24: least ratio of two increments in sequence for which the solution is extrapolated
      1.0,   // 25: largest ratio of an increment to the stable one
      0.95,  // 26: fraction of the stability limit, at most 1
      1.0,   // 27: Dp, stretch of an increment that lets it meet a given time, from 1
  };
  static constexpr double defaultField[] = {
      0.005,   //  0: largest residual to average flux, by which a solution converges
      0.01,    //  1: largest correction to largest increment, by which a solution converges
      0.0,     //  2: initial time average flux; 0: not given
      0.0,     //  3: time average flux of the user's own; 0: not given. Both cannot be given
      0.02,    //  4: largest residual to average flux after IP iterations
      1.0e-5,  //  5: flux to average flux below which it counts as zero, above 0
      0.001,   //  6: largest correction to largest increment with zero flux
      1.0e-8,  //  7: largest residual to average flux of a linear increment
      1.0,     //  8: ratio of the average flux of one field to that of another
      1.0e-5,  //  9: flux to largest flux of the model below which it counts as zero, above 0
      1.0e-8,  // 10: displacement to the size of an element below which it counts as zero
  };

  kprC_PrimaryControls() = default;

  /// Numbers 103, 105 to 112 and 166. With fields, then 128, 129, 131 and 113 of the lists here, and for each field its
  /// own number for extraneous data, 113 and its own number for two average fluxes. Lists of the fields may be short.
  ///
  /// @pre the lists here are as long as the solver's own: a shorter `lineSearch` or `timeIncrementation` aborts.
  void AssertValid() const override;
  /// Gives all fields of the class the same numbers. Refused with 139, and nothing changes, if there are too many.
  void SetGlobalField(cow_List<double> const& numbers);

  bool discontinuous = false;  ///< severe discontinuities are expected; I0 is then 8 and IR 10
  List constraints = ListOf(defaultConstraints);
  List lineSearch = ListOf(defaultLineSearch);
  List timeIncrementation = ListOf(defaultTimeIncrementation);
  double vcctLinearScaling = 0.9;  ///< of the increment to the one at which a crack grows, as linear theory has it
  ConvergenceCheckEnm convergence = STRICT;

 protected:
  struct FieldRefusals {
    int bothFluxes;
    int extraneous;
  };
  static constexpr FieldRefusals concentrationRefusals{114, 132};
  static constexpr FieldRefusals temperatureRefusals{115, 138};
  static constexpr FieldRefusals electricalPotentialRefusals{116, 134};
  static constexpr FieldRefusals displacementRefusals{117, 133};
  static constexpr FieldRefusals hydrostaticFluidPressureRefusals{118, 135};
  static constexpr FieldRefusals rotationRefusals{119, 137};
  static constexpr FieldRefusals poreFluidPressureRefusals{120, 136};

  struct FieldGroup {
    List kprC_PrimaryControls::*numbers;
    FieldRefusals refusals;
  };
  template <class Controls>
  static FieldGroup Field(List Controls::*numbers, FieldRefusals refusals) {
    return {static_cast<List kprC_PrimaryControls::*>(numbers), refusals};
  }
  /// The fields of the class, those of the base first.
  virtual std::vector<FieldGroup> FieldGroups() const { return {}; }

  /// Refuses a list that is too long with its own number, then one with negative numbers with 113.
  static void AssertNumbers(List const& list, std::span<double const> defaults, int extraneous);
  static List ListOf(std::span<double const> numbers);
  static List DefaultField() { return ListOf(defaultField); }
};

template <>
inline constexpr omu_EnumRow omu_EnumRows<kprC_PrimaryControls::ConvergenceCheckEnm>[] = {
    {"STRICT", 0}, {"MODERATE", 1}, {"RELAXED", 2}, {"CONCEPT_DESIGN", 3}, {nullptr, 0}};
