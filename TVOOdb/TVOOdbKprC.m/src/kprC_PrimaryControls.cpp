#include "kprC_PrimaryControls.h"

#include <cmath>
#include <iterator>

#include "cls_Describe.h"
#include "cls_Registrar.h"
#include "kprC_assert.h"

namespace {

// Places in the list of time incrementation.
enum TimePlace {
  firstGrowthCheck = 0,
  firstRateCheck = 1,
  accurateIncrements = 9,
  lastInteger = 10,
  stabilityFraction = 26,
  timeStretch = 27,
};

// Places in the list of a field.
enum FieldPlace {
  initialFlux = 2,
  userFlux = 3,
  zeroFlux = 5,
  zeroLocalFlux = 9,
};

bool IsInteger(double number) {
  double whole = 0.0;
  return std::modf(number, &whole) == 0.0;
}

bool IsGiven(cow_List<double> const& numbers, FieldPlace place) {
  return place < numbers.Length() && numbers[place] != 0.0;
}

}  // namespace

cls_AttributeTable const& kprC_PrimaryControls::Attributes() {
  using Self = kprC_PrimaryControls;
  static auto const table = cls_Describe<Self, kprC_Controls>("kprC_PrimaryControls", 2611)
                                .Attribute("discontinuous", &Self::discontinuous)
                                .Attribute("constraints", &Self::constraints)
                                .Attribute("lineSearch", &Self::lineSearch)
                                .Attribute("timeIncrementation", &Self::timeIncrementation)
                                .Attribute("vcctLinearScaling", &Self::vcctLinearScaling)
                                .Attribute("convergence", &Self::convergence);
  return table;
}

kprC_PrimaryControls::List kprC_PrimaryControls::ListOf(std::span<double const> numbers) {
  List list;
  for (double const number : numbers) list.Append(number);
  return list;
}

void kprC_PrimaryControls::AssertNumbers(List const& list, std::span<double const> defaults, int extraneous) {
  kprC_Assert(list.Length() <= static_cast<int>(defaults.size()), extraneous);
  for (double const number : list) kprC_Assert(number >= 0.0, 113);
}

void kprC_PrimaryControls::AssertValid() const {
  kprC_Controls::AssertValid();
  if (discontinuous) {
    kprC_Assert(timeIncrementation[firstGrowthCheck] == 8.0, 105);
    kprC_Assert(timeIncrementation[firstRateCheck] == 10.0, 106);
  }
  kprC_Assert(IsInteger(lineSearch[0]), 107);
  // One entry more than the text of 108 says.
  for (int i = 0; i <= lastInteger; ++i) kprC_Assert(IsInteger(timeIncrementation[i]), 108);
  kprC_Assert(lineSearch[0] >= 0.0, 109);
  kprC_Assert(timeIncrementation[accurateIncrements] <= 10.0, 110);
  kprC_Assert(timeIncrementation[stabilityFraction] <= 1.0, 111);
  kprC_Assert(timeIncrementation[firstGrowthCheck] >= 3.0, 112);
  kprC_Assert(timeIncrementation[timeStretch] >= 1.0, 166);

  // Without a procedure nobody knows yet which numbers its solver will take.
  auto const groups = FieldGroups();
  if (groups.empty()) return;
  AssertNumbers(constraints, defaultConstraints, 128);
  AssertNumbers(lineSearch, defaultLineSearch, 129);
  AssertNumbers(timeIncrementation, defaultTimeIncrementation, 131);
  for (FieldGroup const& group : groups) {
    List const& numbers = this->*group.numbers;
    AssertNumbers(numbers, defaultField, group.refusals.extraneous);
    for (FieldPlace const place : {zeroFlux, zeroLocalFlux}) {
      kprC_Assert(place >= numbers.Length() || numbers[place] > 0.0, 113);
    }
    kprC_Assert(!IsGiven(numbers, initialFlux) || !IsGiven(numbers, userFlux), group.refusals.bothFluxes);
  }
}

void kprC_PrimaryControls::SetGlobalField(cow_List<double> const& numbers) {
  kprC_Assert(numbers.Length() <= std::ssize(defaultField), 139);
  for (FieldGroup const& group : FieldGroups()) static_cast<cow_List<double>&>(this->*group.numbers) = numbers;
}
