// Three steps: the 15 significant digits as a whole number with a count of decimals, the rounding of that
// number to the decimals asked for, and its text. The first is exact integer arithmetic for the magnitudes
// that occur in a design; the library's conversion does the rest of the doubles.
#include "base/FormatReal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "base/Checked.h"

namespace vrek {
namespace {

__extension__ using TWide = unsigned __int128;

constexpr int nSignificant = 15;

// nUnits / 10^nDecimals; nUnits at most 10^15, nDecimals also below 0.
struct TDecimal {
  std::uint64_t nUnits = 0;
  int nDecimals = 0;
};

// From the first of these to below the last, the 15 digits are exact arithmetic in 128 bits.
constexpr int nMinPower = -8;
constexpr std::array<double, 24> aPowers = {1e-8, 1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1,
                                            1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                            1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

constexpr auto aWidePowers = [] {
  std::array<TWide, nSignificant - nMinPower> aOut{1};
  for (std::size_t i = 1; i < aOut.size(); ++i) aOut[i] = 10 * aOut[i - 1];
  return aOut;
}();

constexpr std::uint64_t Power(int nExponent) {
  return static_cast<std::uint64_t>(aWidePowers[static_cast<std::size_t>(nExponent)]);
}

constexpr auto aPairs = [] {
  std::array<char, 200> aOut{};
  for (std::size_t i = 0; i < 100; ++i) {
    aOut[2 * i] = static_cast<char>('0' + i / 10);
    aOut[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return aOut;
}();

// The 15 digits of a value from 1e-8 to below 1e15: mantissa * 10^n / 2^m, rounded half to even.
TDecimal ExactDigits(double dValue) {
  const auto nBits = std::bit_cast<std::uint64_t>(dValue);
  const int nExponent = static_cast<int>(nBits >> 52) - 1023;
  const std::uint64_t nMantissa = (nBits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
  // The power of ten at or below the value: log10(2) times the exponent, or one more. A negative power is a
  // double beside the true one, but too near for 15 digits to tell.
  int nPower = (nExponent * 1233) >> 12;
  if (dValue >= aPowers[static_cast<std::size_t>(nPower + 1 - nMinPower)]) ++nPower;
  const int nDecimals = nSignificant - 1 - nPower;
  const TWide nScaled = nMantissa * aWidePowers[static_cast<std::size_t>(nDecimals)];
  const int nShift = 52 - nExponent;
  const auto nFloor = static_cast<std::uint64_t>(nScaled >> nShift);
  const TWide nHalf = (TWide{1} << (nShift - 1)) - 1 + (nFloor & 1);
  return {static_cast<std::uint64_t>((nScaled + nHalf) >> nShift), nDecimals};
}

// The same for any finite value.
TDecimal LibraryDigits(double dValue) {
  char aBuffer[32];  // d.dddddddddddddde+xx
  const auto Written = std::to_chars(aBuffer, aBuffer + sizeof aBuffer, dValue, std::chars_format::scientific,
                                     nSignificant - 1);
  TDecimal D;
  for (const char* p = aBuffer; p < aBuffer + nSignificant + 1; ++p) {
    if (*p != '.') D.nUnits = 10 * D.nUnits + static_cast<std::uint64_t>(*p - '0');
  }
  const char* pExponent = aBuffer + nSignificant + 2;
  int nExponent = 0;
  std::from_chars(pExponent + (*pExponent == '+' ? 1 : 0), Written.ptr, nExponent);
  D.nDecimals = nSignificant - 1 - nExponent;
  return D;
}

TDecimal SignificantDigits(double dValue) {
  if (dValue == 0) return {};
  return dValue >= aPowers.front() && dValue < aPowers.back() ? ExactDigits(dValue) : LibraryDigits(dValue);
}

// Half away from zero to at most nDigits decimals.
TDecimal Rounded(TDecimal D, int nDigits) {
  const int nCut = D.nDecimals - nDigits;
  if (nCut <= 0) return D;
  if (nCut > nSignificant) return {0, nDigits};
  const std::uint64_t nUnit = Power(nCut);
  return {(D.nUnits + nUnit / 2) / nUnit, nDigits};
}

void WriteEight(char* pOut, std::uint32_t nValue) {
  const std::uint32_t nHigh = nValue / 10000, nLow = nValue % 10000;
  std::memcpy(pOut, &aPairs[2 * (nHigh / 100)], 2);
  std::memcpy(pOut + 2, &aPairs[2 * (nHigh % 100)], 2);
  std::memcpy(pOut + 4, &aPairs[2 * (nLow / 100)], 2);
  std::memcpy(pOut + 6, &aPairs[2 * (nLow % 100)], 2);
}

// How many characters of eight are zeros at the front; the first character lies in the lowest byte, or the
// highest.
int LeadingZeros(const char* pDigits) {
  std::uint64_t nDigits = 0;
  std::memcpy(&nDigits, pDigits, sizeof nDigits);
  nDigits ^= 0x3030303030303030;
  return (std::endian::native == std::endian::little ? std::countr_zero(nDigits)
                                                     : std::countl_zero(nDigits)) /
         8;
}

void AppendZeros(std::string& sOut, int nCount) {
  if (nCount > 0) sOut.append(static_cast<std::size_t>(nCount), '0');
}

// The text where at least one of the 16 digits written stands before the point and the last one behind it, or
// right before it: all but the smallest and largest magnitudes.
void AppendPlain(std::string& sOut, bool bNegative, TDecimal D, int nDigits) {
  char aText[2 + 16];  // room for the minus, the digits before the point, the point, the digits behind it
  char* const pDigits = aText + 1;
  WriteEight(pDigits, static_cast<std::uint32_t>(D.nUnits / 100000000));
  WriteEight(pDigits + 8, static_cast<std::uint32_t>(D.nUnits % 100000000));
  char* const pPoint = pDigits + 16 - D.nDecimals;
  char* pFirst = pDigits + LeadingZeros(pDigits);
  if (pFirst == pDigits + 8) pFirst += LeadingZeros(pFirst);
  pFirst = std::min(pFirst, pPoint - 1);
  pFirst[-1] = '-';
  pFirst -= bNegative ? 1 : 0;
  std::size_t nLength = static_cast<std::size_t>(pDigits + 16 - pFirst);
  if (nDigits > 0) {
    std::memmove(pPoint + 1, pPoint, static_cast<std::size_t>(D.nDecimals));
    *pPoint = '.';
    ++nLength;
  }
  sOut.append(pFirst, nLength);
  AppendZeros(sOut, nDigits - D.nDecimals);
}

// The text where zeros stand between the digits and the point.
void AppendFar(std::string& sOut, bool bNegative, TDecimal D, int nDigits) {
  if (bNegative) sOut += '-';
  char aDigits[16];
  const auto Written = std::to_chars(aDigits, aDigits + sizeof aDigits, D.nUnits);
  const int nLength = static_cast<int>(Written.ptr - aDigits);
  if (D.nDecimals > 0) {
    sOut += "0.";
    AppendZeros(sOut, D.nDecimals - nLength);
  }
  sOut.append(aDigits, Written.ptr);
  AppendZeros(sOut, -D.nDecimals);
  if (D.nDecimals <= 0 && nDigits > 0) sOut += '.';
  AppendZeros(sOut, nDigits - std::max(D.nDecimals, 0));
}

}  // namespace

void AppendReal(std::string& sOut, double dValue, int nDigits) {
  Checked::Finite(dValue);
  nDigits = std::max(nDigits, 0);
  const TDecimal D = Rounded(SignificantDigits(std::fabs(dValue)), nDigits);
  if (D.nDecimals >= 0 && D.nDecimals < 16) {
    AppendPlain(sOut, dValue < 0, D, nDigits);
  } else {
    AppendFar(sOut, dValue < 0, D, nDigits);
  }
}

std::string FormatReal(double dValue, int nDigits) {
  std::string sOut;
  AppendReal(sOut, dValue, nDigits);
  return sOut;
}

}  // namespace vrek
