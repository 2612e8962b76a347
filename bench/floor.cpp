// The floor of a conversion: reads a file, parses its numbers with std::from_chars, formats the numbers of
// another file (the document that the conversion wrote) with std::to_chars and writes as many bytes as that
// one has. Nothing a converter does is in here, so no converter of these files can be faster than a small
// multiple of it.
//   vrek_bench_floor INPUT DOCUMENT OUT
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::string ReadBytes(const char* sPath) {
  std::string sBytes;
  if (std::FILE* pFile = std::fopen(sPath, "rb")) {
    std::fseek(pFile, 0, SEEK_END);
    sBytes.resize(static_cast<std::size_t>(std::ftell(pFile)));
    std::rewind(pFile);
    if (std::fread(sBytes.data(), 1, sBytes.size(), pFile) != sBytes.size()) sBytes.clear();
    std::fclose(pFile);
  }
  return sBytes;
}

// How many numbers with a fraction stand in a text, and the sum of all numbers (so that nothing is left out).
double ParseNumbers(const std::string& sText, std::vector<double>* pNumbers) {
  double dSum = 0;
  const char* p = sText.data();
  const char* pEnd = p + sText.size();
  while (p < pEnd) {
    if ((*p >= '0' && *p <= '9') || *p == '-') {
      double dValue = 0;
      const auto Result = std::from_chars(p, pEnd, dValue);
      if (Result.ptr == p) {
        ++p;
        continue;
      }
      dSum += dValue;
      if (pNumbers) pNumbers->push_back(dValue);
      p = Result.ptr;
    } else {
      ++p;
    }
  }
  return dSum;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const std::string sInput = ReadBytes(argv[1]);
  std::vector<double> aNumbers;
  const double dSum = ParseNumbers(sInput, &aNumbers);
  std::ifstream Document(argv[2], std::ios::binary | std::ios::ate);
  const auto nBytes = static_cast<std::size_t>(Document.tellg());
  // The document of a road holds the numbers of its listing again, with six decimals.
  std::string sOut;
  sOut.reserve(nBytes + 64);
  for (const double dValue : aNumbers) {
    char aText[64];
    const auto Result = std::to_chars(aText, aText + sizeof aText, dValue, std::chars_format::fixed, 6);
    sOut.append(aText, static_cast<std::size_t>(Result.ptr - aText));
    sOut += ' ';
  }
  sOut.resize(nBytes, ' ');
  std::FILE* pOut = std::fopen(argv[3], "wb");
  if (!pOut) return 1;
  const bool bWritten =
      std::fwrite(sOut.data(), 1, sOut.size(), pOut) == sOut.size() && std::fclose(pOut) == 0;
  std::fprintf(stderr, "%zu numbers, sum %g\n", aNumbers.size(), dSum);
  return bWritten ? 0 : 1;
}
