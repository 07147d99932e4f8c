#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "omi_Btree.h"
#include "omi_complex.h"
#include "omi_gettimecounter.h"

TEST(ComplexTest, ConvertsFromEveryRepresentation) {
  omi_complex const rectangular(3.0, -4.0);
  EXPECT_EQ(rectangular.ConvertedReal(), 3.0);
  EXPECT_EQ(rectangular.ConvertedImag(), -4.0);
  for (int degrees = -720; degrees <= 720; degrees += 15) {
    double const radians = degrees * std::numbers::pi / 180.0;
    omi_complex const inDegrees(omi_complex::POLAR_DEGREES, 2.0, degrees);
    omi_complex const inRadians(omi_complex::POLAR_RADIANS, 2.0, radians);
    EXPECT_NEAR(inDegrees.ConvertedReal(), 2.0 * std::cos(radians), 1e-14) << degrees;
    EXPECT_NEAR(inDegrees.ConvertedImag(), 2.0 * std::sin(radians), 1e-14) << degrees;
    EXPECT_NEAR(inRadians.ConvertedReal(), inDegrees.ConvertedReal(), 1e-14) << degrees;
    if (degrees % 180 == 90 || degrees % 180 == -90) {
      EXPECT_EQ(inDegrees.ConvertedReal(), 0.0) << degrees;
    }
  }
}

TEST(ComplexTest, ComparesRepresentationAndDoubles) {
  omi_complex value(omi_complex::POLAR_DEGREES, 0.0, 0.0);
  EXPECT_TRUE(value.IsZero());
  EXPECT_NE(value, omi_complex());
  value.Zero();
  EXPECT_EQ(value, omi_complex());
}

TEST(TimeCounterTest, RisesAtEveryCall) {
  double last = omi_gettimecounter();
  for (int i = 0; i < 1000; ++i) {
    double const now = omi_gettimecounter();
    ASSERT_GT(now, last);
    last = now;
  }
}

TEST(PlainMapTest, WalksUpwardAndItsCopiesAreApart) {
  omi_Btree<int, std::string> map{{3, "c"}, {1, "a"}, {2, "b"}, {1, "A"}};
  omi_Btree<int, std::string> const copy = map;
  map.Get(2) = "B";
  EXPECT_TRUE(map.Remove(3));
  EXPECT_FALSE(map.Remove(3));
  std::string walked;
  for (auto const& [key, value] : copy) walked += std::to_string(key) + value;
  EXPECT_EQ(walked, "1A2b3c");
  EXPECT_EQ(map.ConstGet(2), "B");
  EXPECT_THROW(map.ConstGet(3), cow_KeyError);
  EXPECT_EQ(map.begin()->value, "A");
  EXPECT_NE(map, copy);
}
