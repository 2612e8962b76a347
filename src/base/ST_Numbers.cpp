#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/ST.h"

namespace vrek::ST {
namespace {

bool IsPassedOver(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Reads cSign-digits-point-exponent from the characters that count, with cExtraPoint read as a point too.
double Read(std::string_view sText, char cExtraPoint) {
  std::string sNumber;
  std::size_t i = 0;
  const auto Skip = [&] {
    while (i < sText.size() && IsPassedOver(sText[i])) ++i;
    return i < sText.size();
  };
  bool bNegative = false;
  if (Skip() && (sText[i] == '+' || sText[i] == '-')) bNegative = sText[i++] == '-';
  bool bPoint = false, bDigit = false;
  while (Skip()) {
    const char c = sText[i];
    if (IsDigit(c)) {
      bDigit = true;
      sNumber += c;
    } else if ((c == '.' || c == cExtraPoint) && !bPoint) {
      bPoint = true;
      sNumber += '.';
    } else {
      break;
    }
    ++i;
  }
  if (!bDigit) return 0;
  if (Skip() && (sText[i] == 'E' || sText[i] == 'e' || sText[i] == 'D' || sText[i] == 'd')) {
    ++i;
    std::string sExponent = "e";
    if (Skip() && (sText[i] == '+' || sText[i] == '-')) sExponent += sText[i++];
    bool bExponentDigit = false;
    for (; Skip() && IsDigit(sText[i]); ++i) {
      sExponent += sText[i];
      bExponentDigit = true;
    }
    if (bExponentDigit) sNumber += sExponent;
  }
  double dValue = 0;
  const auto Result = std::from_chars(sNumber.data(), sNumber.data() + sNumber.size(), dValue);
  if (Result.ec == std::errc::result_out_of_range) {
    // Too small or too large for a double: from_chars leaves the value alone, so look which.
    const auto nExponent = sNumber.find('e');
    const bool bTiny = nExponent != sNumber.npos && nExponent + 1 < sNumber.size() && sNumber[nExponent + 1] == '-';
    const bool bZeros = sNumber.find_first_of("123456789") >= std::min(nExponent, sNumber.size());
    dValue = bTiny || bZeros ? 0 : std::numeric_limits<double>::infinity();
    if (nExponent == sNumber.npos && sNumber[0] == '.') dValue = 0;
  }
  return bNegative ? -dValue : dValue;
}

}  // namespace

double LeadingNumber(std::string_view sText) { return Read(sText, '.'); }

double ParseReal(std::string_view sText) { return Read(sText, ','); }

void NormalizeNumberText(std::string& sText) {
  const auto nPoint = sText.rfind('.');
  const auto nComma = sText.rfind(',');
  if (nPoint == sText.npos && nComma == sText.npos) return;
  if (nComma == sText.npos || (nPoint != sText.npos && nComma < nPoint)) {
    std::erase(sText, ',');
  } else {
    std::erase(sText, '.');
    std::replace(sText.begin(), sText.end(), ',', '.');
  }
}

double ParseChainage(std::string& sText) {
  sText = std::string(Trim(sText));
  const bool bSigned = !sText.empty() && (sText[0] == '-' || sText[0] == '+');
  const double dSign = !sText.empty() && sText[0] == '-' ? -1 : 1;
  const std::size_t nFirst = bSigned ? 1 : 0;
  const auto nSign = sText.find_first_of("+-", nFirst);
  if (nSign == sText.npos) return LeadingNumber(sText);
  const auto nPoint = std::min(sText.find('.', nSign), sText.size());
  const double dScale = std::pow(10.0, static_cast<double>(nPoint - nSign - 1));
  const double a = LeadingNumber(std::string_view(sText).substr(nFirst, nSign - nFirst));
  const double c = LeadingNumber(std::string_view(sText).substr(nSign + 1));
  return sText[nSign] == '+' ? dSign * (a * dScale + c) : dSign * a * dScale - c;
}

bool IsNumberText(std::string_view sText) {
  bool bDigit = false;
  for (const char c : Trim(sText)) {
    if (IsDigit(c)) {
      bDigit = true;
    } else if (c != '+' && c != ',' && c != '-' && c != '.') {
      return false;
    }
  }
  return bDigit;
}

}  // namespace vrek::ST
