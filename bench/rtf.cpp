// How fast an RTF table becomes text: this reader, and where it is installed the unrtf command on the same
// file.
//
//   vrek_bench_rtf [MB]     size of the generated table, 20 without an argument

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "platform/RtfText.h"

namespace {

constexpr double dBytesPerMB = 1e6;
constexpr double dMostForUnrtf = 2;  // its time grows with the square of the size: 20 MB take many minutes

// A horizontal listing of seven columns, written as word processors write tables.
std::string MakeTable(double dMB) {
  const auto nSize = static_cast<std::size_t>(dMB * dBytesPerMB);
  std::string sRtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier "
      "New;}}\\uc1\\pard\\f0\\fs20 ";
  sRtf += "Estaci\\'f3n\\par\r\n";
  for (int nRow = 0; sRtf.size() < nSize; ++nRow) {
    sRtf += "\\trowd\\trgaph70\\trleft-70";
    for (int i = 1; i <= 7; ++i) sRtf += "\\clbrdrt\\brdrs\\cellx" + std::to_string(1200 * i);
    sRtf += "\\pard\\plain \\intbl {\\fs18 ";
    for (int i = 1; i <= 7; ++i)
      sRtf += std::to_string(nRow * i) + "." + std::to_string(nRow % 1000) + "\\cell ";
    sRtf += "}\\row\r\n";
  }
  return sRtf + "}";
}

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Megabytes(const std::string& sRtf) {
  return static_cast<double>(sRtf.size()) / dBytesPerMB;
}

// The best of five, MB/s.
double OurSpeed(const std::string& sRtf) {
  double dBest = 0;
  for (int i = 0; i < 5; ++i) {
    std::string sText;
    dBest = std::max(dBest, Megabytes(sRtf) / SecondsOf([&] { sText = vrek::RtfToText(sRtf); }));
    if (sText.empty()) std::abort();
  }
  return dBest;
}

// MB/s; 0 where it fails.
double UnrtfSpeed(const std::string& sRtf) {
  const auto file = std::filesystem::temp_directory_path() / "vrek_bench.rtf";
  std::ofstream(file, std::ios::binary) << sRtf;
  const std::string sCommand = "unrtf --text '" + file.string() + "' >/dev/null 2>&1";
  int nStatus = 0;
  const double dSeconds = SecondsOf([&] { nStatus = std::system(sCommand.c_str()); });
  std::filesystem::remove(file);
  return nStatus == 0 ? Megabytes(sRtf) / dSeconds : 0;
}

}  // namespace

int main(int nArguments, char** aArguments) {
  const double dMB = nArguments > 1 ? std::atof(aArguments[1]) : 20;
  const double dOurs = OurSpeed(MakeTable(dMB));
  std::printf("RtfToText  %8.1f MB/s  (%.1f MB)\n", dOurs, dMB);
  if (std::system("unrtf --version >/dev/null 2>&1") != 0) return 0;
  const double dCompared = std::min(dMB, dMostForUnrtf);
  const double dTheirs = UnrtfSpeed(MakeTable(dCompared));
  if (dTheirs > 0)
    std::printf("unrtf      %8.1f MB/s  (%.1f MB)  ratio %.0f\n", dTheirs, dCompared, dOurs / dTheirs);
  return 0;
}
