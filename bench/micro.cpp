// Number text beside the standard library's: FormatReal and std::to_chars with 6 decimals, LeadingNumber and
// std::from_chars on fields as listings print them. Read the columns of a pair side by side.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <random>
#include <string>
#include <vector>

#include "base/FormatReal.h"
#include "base/ST.h"

namespace {

using namespace vrek;

// Coordinates, chainages and offsets: what a document is full of.
std::vector<double> Values(double dFrom, double dTo) {
  std::mt19937_64 Random(7);
  std::uniform_real_distribution<double> Any(dFrom, dTo);
  std::vector<double> aValues(4096);
  for (double& dValue : aValues) dValue = Any(Random);
  return aValues;
}

// The same with three decimals, as read from a listing.
std::vector<double> ListingValues() {
  auto aValues = Values(-500000, 500000);
  for (double& dValue : aValues) dValue = std::stod(FormatReal(dValue, 3));
  return aValues;
}

template <class TValues>
void RunFormatReal(benchmark::State& State, const TValues& aValues) {
  std::string sText;
  std::size_t i = 0;
  for (auto _ : State) {
    sText.clear();
    AppendReal(sText, aValues[i++ & 4095], 6);
    benchmark::DoNotOptimize(sText.data());
  }
}

template <class TValues>
void RunToChars(benchmark::State& State, const TValues& aValues) {
  std::array<char, 64> aText{};
  std::size_t i = 0;
  for (auto _ : State) {
    const auto Written = std::to_chars(aText.data(), aText.data() + aText.size(), aValues[i++ & 4095],
                                       std::chars_format::fixed, 6);
    benchmark::DoNotOptimize(Written.ptr);
  }
}

template <class TRead>
void RunRead(benchmark::State& State, const std::string& sField, TRead Read) {
  std::string_view sText = sField;
  for (auto _ : State) {
    benchmark::DoNotOptimize(sText);
    benchmark::DoNotOptimize(Read(sText));
  }
}

double FromChars(std::string_view sText) {
  double dValue = 0;
  std::from_chars(sText.data(), sText.data() + sText.size(), dValue);
  return dValue;
}

void FormatReal_Coordinates(benchmark::State& State) {
  RunFormatReal(State, Values(0, 5e6));
}
void ToChars_Coordinates(benchmark::State& State) {
  RunToChars(State, Values(0, 5e6));
}
void FormatReal_Offsets(benchmark::State& State) {
  RunFormatReal(State, Values(-20, 20));
}
void ToChars_Offsets(benchmark::State& State) {
  RunToChars(State, Values(-20, 20));
}
void FormatReal_Listing(benchmark::State& State) {
  RunFormatReal(State, ListingValues());
}
void ToChars_Listing(benchmark::State& State) {
  RunToChars(State, ListingValues());
}
BENCHMARK(FormatReal_Coordinates);
BENCHMARK(ToChars_Coordinates);
BENCHMARK(FormatReal_Offsets);
BENCHMARK(ToChars_Offsets);
BENCHMARK(FormatReal_Listing);
BENCHMARK(ToChars_Listing);

void LeadingNumber_Field(benchmark::State& State, const std::string& sField) {
  RunRead(State, sField, ST::LeadingNumber);
}
void ParseReal_Field(benchmark::State& State, const std::string& sField) {
  RunRead(State, sField, ST::ParseReal);
}
void FromChars_Field(benchmark::State& State, const std::string& sField) {
  RunRead(State, sField, FromChars);
}
BENCHMARK_CAPTURE(LeadingNumber_Field, Offset, "-12.500");
BENCHMARK_CAPTURE(ParseReal_Field, Offset, "-12.500");
BENCHMARK_CAPTURE(FromChars_Field, Offset, "-12.500");
BENCHMARK_CAPTURE(LeadingNumber_Field, Coordinate, "431234.567");
BENCHMARK_CAPTURE(ParseReal_Field, Coordinate, "431234.567");
BENCHMARK_CAPTURE(FromChars_Field, Coordinate, "431234.567");
BENCHMARK_CAPTURE(LeadingNumber_Field, SeventeenDigits, "431234.56712345678");
BENCHMARK_CAPTURE(FromChars_Field, SeventeenDigits, "431234.56712345678");

void SplitBySeparator_PointLine(benchmark::State& State) {
  const std::string sLine = "3,-12.500,431.250,-8.250,430.125,0.000,430.000,8.250,430.125";
  TTokens aTokens;
  for (auto _ : State) {
    int nLimit = 20;
    ST::SplitBySeparator(sLine, ',', nLimit, aTokens, false);
    benchmark::DoNotOptimize(aTokens.data());
  }
}
BENCHMARK(SplitBySeparator_PointLine);

void ScanTokens_PrintedLine(benchmark::State& State) {
  const std::string sLine =
      "   12   1234.567   431234.567  4612345.678   123.4567   -0.500   430.000   100.000";
  TTokens aTokens;
  for (auto _ : State) {
    int nCount = 0;
    ST::ScanTokens(sLine, ' ', nCount, aTokens);
    benchmark::DoNotOptimize(aTokens.data());
  }
}
BENCHMARK(ScanTokens_PrintedLine);

}  // namespace
