// SPDX-License-Identifier: GPL-3.0-or-later
// The number types: rounding on storing, refusal of what the type can't hold, array bounds and
// the watch on the floating-point flags.
#include "core/numeric.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <string>

namespace korvane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Float32, RoundsOnStoringAndComputesInDouble) {
  float32 x = 1.1;
  EXPECT_EQ(x.Single(), 1.1F);
  EXPECT_EQ(static_cast<double>(x), 1.10000002384185791015625);
  // A sum in single precision would lose the small term.
  x = 16777216.0;
  EXPECT_EQ((x + 1.0) - x, 1.0);
}

TEST(Float32, StartsAtZero) {
  EXPECT_EQ(float32().Single(), 0.0F);
}

TEST(Float32, AddsAndSubtracts) {
  float32 x = 1.5;
  x += 2.25;
  EXPECT_EQ(x.Single(), 3.75F);
  x -= 4.0;
  EXPECT_EQ(x.Single(), -0.25F);
}

TEST(Float32, RefusesWhatSinglePrecisionCannotHold) {
  for (const double v : {1e39, -1e39, 3.4028235677973366e38, kInfinity, -kInfinity, kNotANumber}) {
    float32 x = 7.0;
    EXPECT_THROW(x = v, ArithmeticFault) << v;
    EXPECT_EQ(x.Single(), 7.0F) << v;
  }
}

TEST(Float32, TakesTheLargestSingle) {
  const float largest = std::numeric_limits<float>::max();
  EXPECT_EQ(float32(largest).Single(), largest);
  EXPECT_EQ(float32(-3.4028235677973362e38).Single(), -largest);
}

TEST(Float32, TakesTooSmallValuesAsZero) {
  EXPECT_EQ(float32(1e-60).Single(), 0.0F);
}

TEST(Float32, RefusesAnOverflowOfASum) {
  float32 x = std::numeric_limits<float>::max();
  EXPECT_THROW(x += static_cast<double>(x), ArithmeticFault);
  EXPECT_EQ(x.Single(), std::numeric_limits<float>::max());
}

TEST(Number, KeepsDoublePrecision) {
  const number x = 1.0 / 3.0;
  EXPECT_EQ(static_cast<double>(x), 1.0 / 3.0);
  EXPECT_FALSE(x.IsEmpty());
}

TEST(Number, EmptyReadsAsZeroUntilAValueIsStored) {
  number x = number::Empty();
  EXPECT_TRUE(x.IsEmpty());
  EXPECT_EQ(x + 1.0, 1.0);
  x = 0.0;
  EXPECT_FALSE(x.IsEmpty());
}

TEST(Number, RefusesWhatIsNotFinite) {
  for (const double v : {kInfinity, -kInfinity, kNotANumber}) {
    number x = 7.0;
    EXPECT_THROW(x = v, ArithmeticFault) << v;
    EXPECT_EQ(static_cast<double>(x), 7.0) << v;
    number none = number::Empty();
    EXPECT_THROW(none = v, ArithmeticFault) << v;
    EXPECT_TRUE(none.IsEmpty()) << v;
  }
}

TEST(Number, TakesTheLargestDouble) {
  const double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(static_cast<double>(number(largest)), largest);
}

// The text of the fault that storing a value gives.
template <class T>
std::string FaultOf(double v) {
  try {
    T x;
    x = v;
  } catch (const ArithmeticFault& fault) {
    return fault.what();
  }
  return "stored";
}

TEST(ArithmeticFault, NamesTheCauseOfWhatCannotBeStored) {
  volatile double zero = 0.0;
  std::feclearexcept(FE_ALL_EXCEPT);
  EXPECT_EQ(FaultOf<float32>(1.0 / zero), "division by zero");
  EXPECT_EQ(FaultOf<float32>(zero / zero), "invalid operation");
  EXPECT_EQ(FaultOf<float32>(1e39), "single precision overflow");
  EXPECT_EQ(FaultOf<number>(-1.0 / zero), "division by zero");
  EXPECT_EQ(FaultOf<number>(std::sqrt(zero - 1)), "invalid operation");
  EXPECT_EQ(FaultOf<number>(kInfinity), "double precision overflow");
}

TEST(Int16, HoldsItsRange) {
  EXPECT_EQ(int16(32767), 32767);
  EXPECT_EQ(int16(-32768), -32768);
}

TEST(Int16, RefusesValuesOutOfRange) {
  for (const int v : {32768, -32769, 2147483647, -2147483647 - 1}) {
    int16 x = 7;
    EXPECT_THROW(x = v, ArithmeticFault) << v;
    EXPECT_EQ(x, 7) << v;
  }
}

TEST(Indexed, CountsFromItsOwnFirstIndex) {
  Indexed<int, 1, 3> a;
  for (int i = 1; i <= 3; ++i) a[i] = 10 * i;
  EXPECT_EQ(a.size(), 3);
  EXPECT_EQ(*a.begin(), 10);
  EXPECT_EQ(a[3], 30);
  a.Fill(4);
  EXPECT_EQ(a[1], 4);
  EXPECT_EQ(a[3], 4);
}

TEST(Indexed, RefusesAnIndexOutOfRange) {
  Indexed<int, 1, 3> a;
  const auto& readOnly = a;
  EXPECT_THROW(a[0], ArithmeticFault);
  EXPECT_THROW(a[4], ArithmeticFault);
  EXPECT_THROW(readOnly[-1], ArithmeticFault);
  EXPECT_THROW((Indexed<int, 0, 40>()[41]), ArithmeticFault);
}

TEST(FloatWatch, PassesCleanArithmetic) {
  const FloatWatch watch;
  volatile double x = 2.0;
  x = x / 3.0 + std::sqrt(x);
  EXPECT_NO_THROW(watch.Check());
}

TEST(FloatWatch, FindsADivisionByZeroThatReachesNoField) {
  const FloatWatch watch;
  volatile double zero = 0.0;
  volatile double result = 1.0 / (1.0 / zero);
  EXPECT_EQ(result, 0.0);
  EXPECT_THROW(watch.Check(), ArithmeticFault);
  // The flag has been taken note of.
  EXPECT_NO_THROW(watch.Check());
}

TEST(FloatWatch, FindsInvalidOperationsAndOverflows) {
  volatile double large = 1e300;
  volatile double negative = -1.0;
  volatile double result = 0.0;
  {
    const FloatWatch watch;
    result = std::sqrt(negative);
    EXPECT_THROW(watch.Check(), ArithmeticFault);
  }
  {
    const FloatWatch watch;
    result = large * large;
    EXPECT_THROW(watch.Check(), ArithmeticFault);
  }
  EXPECT_TRUE(std::isinf(result));
}

TEST(FloatWatch, ForgetsWhatCameBefore) {
  volatile double zero = 0.0;
  volatile double result = 1.0 / zero;
  EXPECT_TRUE(std::isinf(result));
  const FloatWatch watch;
  EXPECT_NO_THROW(watch.Check());
}

}  // namespace
}  // namespace korvane
