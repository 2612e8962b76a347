#include "wizard/ctlNumericText.h"

#include "base/FormatReal.h"
#include "base/ST.h"

namespace vrek {
namespace {

constexpr int nBackspace = 8;

bool IsValid(std::string_view sText, char cDecimal, char cThousands) {
  if (sText.find_first_not_of("1234567890-+,.") != sText.npos) return false;
  if (!sText.empty() && (sText[0] == '+' || sText[0] == '-')) sText.remove_prefix(1);
  if (sText.find_first_of("+-") != sText.npos) return false;
  const auto nDecimal = sText.find(cDecimal);
  if (nDecimal == sText.npos) return true;
  const auto sFraction = sText.substr(nDecimal + 1);
  return sFraction.find(cDecimal) == sFraction.npos && sFraction.find(cThousands) == sFraction.npos;
}

}  // namespace

double ctlNumericText::NumericValue() const {
  return ST::ParseReal(txtNumber.Text);
}

void ctlNumericText::SetNumericValue(double dValue) {
  SetNumericValue(dValue, DecimalPlaces);
}

void ctlNumericText::SetNumericValue(double dValue, int nDigits) {
  txtNumber.Text = m_sLastValid = FormatReal(dValue, nDigits);
}

void ctlNumericText::SetEmpty() {
  txtNumber.Text.clear();
  m_sLastValid.clear();
}

int ctlNumericText::FilterKey(int nKey) {
  if (nKey == ',') return '.';
  const bool bAccepted = nKey == nBackspace || (nKey >= '0' && nKey <= '9') || (nKey >= '+' && nKey <= '.');
  return bAccepted ? nKey : 0;
}

bool ctlNumericText::txtNumber_Change(std::string_view sText, char cDecimal, char cThousands) {
  const auto sTrimmed = ST::Trim(sText);
  const bool bValid = IsValid(sTrimmed, cDecimal, cThousands);
  if (bValid) m_sLastValid = sTrimmed;
  txtNumber.Text = m_sLastValid;
  return bValid;
}

}  // namespace vrek
