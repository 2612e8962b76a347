#include "platform/RtfCodePages.h"

#include <iconv.h>

#include <algorithm>
#include <array>

#include "platform/RtfCodePageTables.h"

namespace vrek::Rtf {
namespace {

constexpr char32_t nReplacement = 0xFFFD;
constexpr int nUtf8 = 65001;
const iconv_t pNoConverter = reinterpret_cast<iconv_t>(-1);

struct TSinglePage {
  int nPage;
  const THalfPage& aCodes;
};

constexpr TSinglePage aSinglePages[] = {
    {1252, aPage1252}, {1250, aPage1250}, {1251, aPage1251}, {1253, aPage1253}, {1254, aPage1254},
    {1255, aPage1255}, {1256, aPage1256}, {1257, aPage1257}, {1258, aPage1258}, {437, aPage437},
    {850, aPage850},   {852, aPage852},   {866, aPage866}};

// Pages of several bytes, and rare ones, by the name that the system's converter knows them under.
struct TConvertedPage {
  int nPage;
  const char* sName;
};

constexpr TConvertedPage aConvertedPages[] = {{932, "CP932"},       {936, "CP936"},  {949, "CP949"},
                                              {950, "CP950"},       {1361, "JOHAB"}, {874, "CP874"},
                                              {10000, "MACINTOSH"}, {nUtf8, "UTF-8"}};

struct TCharset {
  int nCharset;
  int nPage;
};

constexpr TCharset aCharsets[] = {{0, 1252},   {77, 10000}, {128, 932},  {129, 949},  {130, 1361},
                                  {134, 936},  {136, 950},  {161, 1253}, {162, 1254}, {163, 1258},
                                  {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},
                                  {238, 1250}, {254, 437},  {255, 850}};

template <class TRow, std::size_t n>
const TRow* Find(const TRow (&aRows)[n], int TRow::*key, int nValue) {
  const auto it =
      std::find_if(std::begin(aRows), std::end(aRows), [&](const TRow& Row) { return Row.*key == nValue; });
  return it == std::end(aRows) ? nullptr : it;
}

bool IsDoubleByte(int nPage) {
  return nPage == 932 || nPage == 936 || nPage == 949 || nPage == 950 || nPage == 1361;
}

}  // namespace

int PageOfCharset(int nCharset) {
  const auto* oCharset = Find(aCharsets, &TCharset::nCharset, nCharset);
  return oCharset ? oCharset->nPage : 0;
}

bool IsKnownPage(int nPage) {
  return Find(aSinglePages, &TSinglePage::nPage, nPage) ||
         Find(aConvertedPages, &TConvertedPage::nPage, nPage);
}

std::size_t LengthOfCharacter(int nPage, char cFirst) {
  const auto nByte = static_cast<unsigned char>(cFirst);
  if (nPage == nUtf8) return nByte < 0xC2 || nByte > 0xF4 ? 1 : nByte < 0xE0 ? 2 : nByte < 0xF0 ? 3 : 4;
  if (!IsDoubleByte(nPage) || nByte == 0x80 || nByte == 0xFF) return 1;
  const bool bHalfWidth = nPage == 932 && (nByte == 0xA0 || (nByte >= 0xA1 && nByte <= 0xDF) || nByte > 0xFC);
  return bHalfWidth ? 1 : 2;
}

bool CanContinue(int nPage, char cNext) {
  const auto nByte = static_cast<unsigned char>(cNext);
  if (nPage == nUtf8) return (nByte & 0xC0) == 0x80;
  const int nLowest = nPage == 1361 ? 0x31 : 0x40;
  return nByte >= nLowest && nByte != 0x7F && nByte != 0xFF;
}

CDecoder::~CDecoder() {
  for (const auto& [nPage, pConverter] : m_aConverters) {
    if (pConverter != pNoConverter) iconv_close(pConverter);
  }
}

char32_t CDecoder::Decode(int nPage, std::string_view sCharacter) {
  const auto* oPage = Find(aSinglePages, &TSinglePage::nPage, nPage);
  if (!oPage) return Convert(nPage, sCharacter);
  return oPage->aCodes[static_cast<unsigned char>(sCharacter.front()) & 0x7F];
}

char32_t CDecoder::Convert(int nPage, std::string_view sCharacter) {
  const auto* oPage = Find(aConvertedPages, &TConvertedPage::nPage, nPage);
  if (!oPage) return nReplacement;
  const auto [it, bNew] = m_aConverters.try_emplace(nPage, pNoConverter);
  if (bNew) it->second = iconv_open("UTF-32LE", oPage->sName);
  if (it->second == pNoConverter) return nReplacement;

  std::array<char, 8> aIn{};
  std::array<unsigned char, 16> aOut{};
  char* pIn = aIn.data();
  char* pOut = reinterpret_cast<char*>(aOut.data());
  std::size_t nIn = sCharacter.copy(pIn, aIn.size());
  std::size_t nOut = aOut.size();
  iconv(it->second, nullptr, nullptr, nullptr, nullptr);
  iconv(it->second, &pIn, &nIn, &pOut, &nOut);
  if (nOut == aOut.size()) return nReplacement;
  return static_cast<char32_t>(aOut[0] | aOut[1] << 8 | aOut[2] << 16);
}

}  // namespace vrek::Rtf
