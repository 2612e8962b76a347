#include "base/FormatReal.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/Checked.h"

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

}  // namespace

void AppendReal(std::string& sOut, double dValue, int nDigits) {
  Checked::Finite(dValue);
  if (nDigits < 0) nDigits = 0;
  // 1. 15 significant digits, as d.dddddddddddddde+xx
  char aBuffer[40];
  const auto Written = std::to_chars(aBuffer, aBuffer + sizeof aBuffer, std::fabs(dValue), std::chars_format::scientific, 14);
  const char* pExponent = Written.ptr;
  while (*pExponent != 'e') --pExponent;
  const int nExponent = std::atoi(pExponent + 1);
  std::string sAll(1, aBuffer[0]);
  sAll.append(static_cast<const char*>(aBuffer) + 2, pExponent);
  // 2. the digits before the point and those behind it
  std::string sWhole = "0", sFraction;
  if (nExponent < 0) {
    sFraction.assign(static_cast<std::size_t>(-nExponent - 1), '0');
    sFraction += sAll;
  } else {
    if (nExponent + 1 > static_cast<int>(sAll.size())) sAll.resize(static_cast<std::size_t>(nExponent + 1), '0');
    sWhole = sAll.substr(0, static_cast<std::size_t>(nExponent + 1));
    sFraction = sAll.substr(static_cast<std::size_t>(nExponent + 1));
  }
  // 3. half away from zero on the digits
  const auto nKeep = static_cast<std::size_t>(nDigits);
  const bool bUp = sFraction.size() > nKeep && sFraction[nKeep] >= '5';
  sFraction.resize(nKeep, '0');
  if (bUp && RoundUp(sFraction) && RoundUp(sWhole)) sWhole.insert(0, 1, '1');
  if (dValue < 0) sOut += '-';
  sOut += sWhole;
  if (nKeep > 0) sOut.append(1, '.').append(sFraction);
}

std::string FormatReal(double dValue, int nDigits) {
  std::string sOut;
  AppendReal(sOut, dValue, nDigits);
  return sOut;
}

}  // namespace vrek
