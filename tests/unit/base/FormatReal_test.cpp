#include "base/FormatReal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "base/Failure.h"

namespace vrek {
namespace {

// Adds one unit to the last digit of a text of digits; gives true when it ran over ("99" becomes "00").
bool RoundUp(std::string& sDigits) {
  for (std::size_t i = sDigits.size(); i-- > 0;) {
    if (sDigits[i] != '9') {
      ++sDigits[i];
      return false;
    }
    sDigits[i] = '0';
  }
  return true;
}

// The plain way: all on the text that "%.14e" prints.
std::string Plain(double dValue, int nDigits) {
  char aBuffer[64];
  std::snprintf(aBuffer, sizeof aBuffer, "%.14e", std::fabs(dValue));
  const std::string sText = aBuffer;
  const int nExponent = std::atoi(sText.c_str() + sText.find('e') + 1);
  std::string sAll = sText.substr(0, 1) + sText.substr(2, 14), sWhole = "0", sFraction;
  if (nExponent < 0) {
    sFraction = std::string(static_cast<std::size_t>(-nExponent - 1), '0') + sAll;
  } else {
    if (nExponent + 1 > 15) sAll.resize(static_cast<std::size_t>(nExponent + 1), '0');
    sWhole = sAll.substr(0, static_cast<std::size_t>(nExponent + 1));
    sFraction = sAll.substr(static_cast<std::size_t>(nExponent + 1));
  }
  const auto nKeep = static_cast<std::size_t>(nDigits);
  const bool bUp = sFraction.size() > nKeep && sFraction[nKeep] >= '5';
  sFraction.resize(nKeep, '0');
  if (bUp && RoundUp(sFraction) && RoundUp(sWhole)) sWhole = "1" + sWhole;
  return (dValue < 0 ? "-" : "") + sWhole + (nKeep > 0 ? "." + sFraction : "");
}

const struct {
  double dValue;
  int nDigits;
  const char* sText;
} aCases[] = {
    // clang-format off
    {0,                     6, "0.000000"},
    {0,                     0, "0"},
    {-0.0,                  6, "0.000000"},
    {1234.5,                0, "1235"},
    {1234.5,               -3, "1235"},
    {2.675,                 2, "2.68"},               // below 2.675 as a double
    {2.5,                   0, "3"},
    {0.49999999999999994,   0, "1"},                  // 0.500000000000000 in 15 digits
    {0.4999999999999994,    0, "0"},
    {0.0000005,             6, "0.000001"},
    {-0.0000001,            6, "-0.000000"},
    {-1e-300,               2, "-0.00"},
    {9.9999995,             6, "10.000000"},
    {999999999999999.9,     1, "1000000000000000.0"},
    {123456789012345.67,    6, "123456789012346.000000"},
    {1000000000000000.5,    6, "1000000000000000.000000"},
    {12345678901234.5,      0, "12345678901235"},     // the fifteenth digit itself
    {4503599627370495.5,    3, "4503599627370500.000"},
    {1e22,                  2, "10000000000000000000000.00"},
    {1.0 / 3,              20, "0.33333333333333300000"},
    {1.25e-20,             21, "0.000000000000000000013"},
    {1.25e-20,             20, "0.00000000000000000001"},
    {5e-324,                3, "0.000"},
    // clang-format on
};

TEST(FormatReal, RoundsTwiceAndKeepsTheMinus) {
  for (const auto& [dValue, nDigits, sText] : aCases) {
    EXPECT_EQ(FormatReal(dValue, nDigits), sText) << dValue << " with " << nDigits;
  }
}

TEST(FormatReal, RefusesWhatIsNotFiniteAndKeepsTheText) {
  std::string sText = "x=";
  AppendReal(sText, -1.5, 1);
  EXPECT_THROW(AppendReal(sText, std::nan(""), 1), Failure);
  EXPECT_THROW(AppendReal(sText, -std::numeric_limits<double>::infinity(), 1), Failure);
  EXPECT_EQ(sText, "x=-1.5");
}

// Compares with the plain way; stops at the first difference.
template <class TValue>
void ExpectPlain(int nCount, int nMaxDigits, TValue Value) {
  std::mt19937_64 Random(20260102);
  for (int i = 0; i < nCount; ++i) {
    const double dValue = Value(Random);
    const int nDigits = static_cast<int>(Random() % static_cast<unsigned>(nMaxDigits + 1));
    ASSERT_EQ(FormatReal(dValue, nDigits), Plain(dValue, nDigits))
        << std::hexfloat << dValue << " with " << nDigits;
  }
}

double Sign(std::mt19937_64& Random) {
  return (Random() & 1) != 0 ? -1 : 1;
}

TEST(FormatReal, IsThePlainWayOnAnyBits) {
  ExpectPlain(200'000, 20, [](auto& Random) {
    for (;;) {
      const auto dValue = std::bit_cast<double>(std::uint64_t{Random()});
      if (std::isfinite(dValue)) return dValue;
    }
  });
}

TEST(FormatReal, IsThePlainWayOnAllMagnitudesOfADesign) {
  ExpectPlain(700'000, 15, [](auto& Random) {
    return Sign(Random) * std::ldexp(static_cast<double>(Random() >> 11), -static_cast<int>(Random() % 90));
  });
}

TEST(FormatReal, IsThePlainWayOnShortDecimalsAndTies) {
  ExpectPlain(700'000, 8, [](auto& Random) {
    const auto nUnits = Random() % static_cast<std::uint64_t>(std::pow(10, Random() % 17 + 1));
    return Sign(Random) * static_cast<double>(nUnits) / std::pow(10, Random() % 10);
  });
}

TEST(FormatReal, IsThePlainWayBesidePowersOfTen) {
  ExpectPlain(300'000, 15, [](auto& Random) {
    double dValue = std::pow(10, static_cast<int>(Random() % 40) - 20);
    for (auto n = Random() % 12; n > 0; --n) dValue = std::nextafter(dValue, (Random() & 1) != 0 ? 0 : 1e300);
    return dValue;
  });
}

TEST(FormatReal, IsThePlainWayOnTiesOfTheFifteenthDigit) {
  ExpectPlain(300'000, 15, [](auto& Random) {  // 16 digits, the last a 5, exact in binary
    const auto nUnits = 100'000'000'000'000 + Random() % 350'000'000'000'000;
    return static_cast<double>(nUnits) * 0.5 + 0.25 * static_cast<double>(Random() % 4);
  });
}

}  // namespace
}  // namespace vrek
