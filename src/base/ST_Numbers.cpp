#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/Checked.h"
#include "base/ST.h"

namespace vrek::ST {
namespace {

bool IsPassedOver(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Powers of ten that are doubles themselves.
constexpr std::array<double, 23> aExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int nMaxExactDigits = 15;  // so many digits are always a double

// Beyond any exponent that the length of a text could bring back.
constexpr std::int64_t nHugeExponent = 100'000'000'000'000'000;

// A number as it stands: nMantissa * 10^nExponent.
struct TScan {
  std::string_view
      sDigits;  // from the first digit or point to the last, with what is passed over between them
  std::uint64_t nMantissa = 0;  // holds up to 19 significant digits, nonsense beyond
  int nSignificant = 0;         // digits from the first that isn't 0 on, counted up to 20
  std::int64_t nExponent = 0;
  bool bDigit = false;
};

class CScanner {
 public:
  CScanner(std::string_view sText, char cExtraPoint)
      : m_p(sText.data()), m_pEnd(sText.data() + sText.size()), m_cExtraPoint(cExtraPoint) {}

  // True when there was a minus.
  bool Sign() {
    if (!Skip() || (*m_p != '+' && *m_p != '-')) return false;
    return *m_p++ == '-';
  }

  TScan Number() {
    TScan Scan;
    const char* const pFirst = m_p;
    bool bPoint = false;
    for (; m_p < m_pEnd; ++m_p) {
      if (IsDigit(*m_p)) {
        Scan.bDigit = true;
        Scan.nMantissa = 10 * Scan.nMantissa + static_cast<std::uint64_t>(*m_p - '0');
        Scan.nSignificant += Scan.nSignificant < 20 && Scan.nMantissa != 0;
        Scan.nExponent -= bPoint;
      } else if (!bPoint && (*m_p == '.' || *m_p == m_cExtraPoint)) {
        bPoint = true;
      } else if (!IsPassedOver(*m_p)) {
        break;
      }
    }
    Scan.sDigits = {pFirst, static_cast<std::size_t>(m_p - pFirst)};
    if (m_p < m_pEnd && Scan.bDigit) Scan.nExponent += Exponent();
    return Scan;
  }

  // Passes over; false at the end of the text.
  bool Skip() {
    while (m_p < m_pEnd && IsPassedOver(*m_p)) ++m_p;
    return m_p < m_pEnd;
  }

 private:
  // 0 where there is none or it has no digits.
  std::int64_t Exponent() {
    if (*m_p != 'E' && *m_p != 'e' && *m_p != 'D' && *m_p != 'd') return 0;
    const char* const pLetter = m_p++;
    const bool bNegative = Sign();
    if (!Skip() || !IsDigit(*m_p)) {
      m_p = pLetter;
      return 0;
    }
    std::int64_t nValue = 0;
    for (; Skip() && IsDigit(*m_p); ++m_p) {
      if (nValue < nHugeExponent) nValue = 10 * nValue + (*m_p - '0');
    }
    return bNegative ? -nValue : nValue;
  }

  const char* m_p;
  const char* m_pEnd;
  char m_cExtraPoint;
};

// Of any number, correctly rounded: its significant digits without what stands between them, and one
// exponent.
double ReadLong(const TScan& Scan) {
  // More digits than decide between two doubles; whether any of the rest isn't 0 goes into one more.
  constexpr std::size_t nDeciding = 800;
  std::array<char, nDeciding + 32> aText;
  std::size_t nDigits = 0;
  std::int64_t nOrder = Scan.nExponent;  // the value is the digits kept * 10^nOrder
  bool bRest = false;
  for (const char c : Scan.sDigits) {
    if (!IsDigit(c) || (nDigits == 0 && c == '0')) continue;
    if (nDigits < nDeciding) {
      aText[nDigits++] = c;
    } else {
      bRest = bRest || c != '0';
      ++nOrder;
    }
  }
  if (bRest) {
    aText[nDigits++] = '1';
    --nOrder;
  }
  // The value lies from 10^(nTop - 1) to 10^nTop.
  const std::int64_t nTop = nOrder + static_cast<std::int64_t>(nDigits);
  if (nTop < -400) return 0;
  if (nTop > 400) return std::numeric_limits<double>::infinity();
  aText[nDigits++] = 'e';
  const char* const pEnd = std::to_chars(aText.data() + nDigits, aText.data() + aText.size(), nOrder).ptr;
  double dValue = 0;
  const auto Result = std::from_chars(aText.data(), pEnd, dValue);
  if (Result.ec != std::errc::result_out_of_range) return dValue;
  return nTop > 0 ? std::numeric_limits<double>::infinity() : 0;
}

double Magnitude(const TScan& Scan) {
  if (Scan.nSignificant == 0) return 0;
  if (Scan.nSignificant > nMaxExactDigits || Scan.nExponent < -22 || Scan.nExponent > 22)
    return ReadLong(Scan);
  // Both are doubles, so one operation rounds once.
  const auto dMantissa = static_cast<double>(static_cast<std::int64_t>(Scan.nMantissa));
  if (Scan.nExponent < 0) return dMantissa / aExactPowers[static_cast<std::size_t>(-Scan.nExponent)];
  return dMantissa * aExactPowers[static_cast<std::size_t>(Scan.nExponent)];
}

double Read(std::string_view sText, char cExtraPoint) {
  CScanner Scanner(sText, cExtraPoint);
  const bool bNegative = Scanner.Sign();
  const TScan Scan = Scanner.Number();
  return bNegative && Scan.bDigit ? -Magnitude(Scan) : Magnitude(Scan);
}

}  // namespace

double LeadingNumber(std::string_view sText) {
  return Read(sText, '.');
}

double ParseReal(std::string_view sText) {
  return Read(sText, ',');
}

bool IsReal(std::string_view sText) {
  CScanner Scanner(sText, ',');
  Scanner.Sign();
  return Scanner.Number().bDigit && !Scanner.Skip();
}

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
  // Trimmed, the sign and where the kilometres begin
  sText.erase(sText.find_last_not_of(' ') + 1);
  sText.erase(0, sText.find_first_not_of(' '));
  const bool bMinus = sText.starts_with('-');
  const double dSign = bMinus ? -1 : 1;
  const std::size_t nFirst = bMinus || sText.starts_with('+') ? 1 : 0;
  // The sign between kilometres and metres
  const auto nSign = sText.find_first_of("+-", nFirst);
  if (nSign == sText.npos) return LeadingNumber(sText);
  // A kilometre has as many digits as stand between that sign and the point
  const auto nPoint = std::min(sText.find('.', nSign), sText.size());
  const double m = Checked::Finite(std::pow(10.0, static_cast<double>(nPoint - nSign - 1)));
  // The two numbers
  const std::string_view sAll = sText;
  const double a = LeadingNumber(sAll.substr(nFirst, nSign - nFirst));
  const double c = LeadingNumber(sAll.substr(nSign + 1));
  return Checked::Finite(sText[nSign] == '+' ? dSign * (a * m + c) : dSign * a * m - c);
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
