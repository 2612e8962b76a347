// What is fuzzed: one routine for each reader and one for a whole conversion. Each takes any bytes and comes
// back; a crash, a hang, a report of a sanitizer or a broken promise (abort) is a finding.
#pragma once

#include <string_view>

namespace vrek::fuzz {

// Listings, each form by its own reader.
void HzMarked(std::string_view sBytes);
void HzTabbed(std::string_view sBytes);
void VtMarked(std::string_view sBytes);
void VtPrinted(std::string_view sBytes);
void VtTabbed(std::string_view sBytes);
void CrMarked(std::string_view sBytes);
void CrPrinted(std::string_view sBytes);
void CrTabbed(std::string_view sBytes);

// Side files and texts.
void RtfText(std::string_view sBytes);
void Cant(std::string_view sBytes);
void Tunnel(std::string_view sBytes);
void Language(std::string_view sBytes);
void CommandLine(std::string_view sBytes);  ///< a line an argument
void JobFile(std::string_view sBytes);

/// A project in the form of Project.h, converted to its document.
void Conversion(std::string_view sBytes);

struct TTarget {
  std::string_view sName;  ///< of its program, its seeds and its dictionary
  void (*Run)(std::string_view sBytes);
};

inline constexpr TTarget aTargets[] = {
    {"hz_marked", HzMarked},    {"hz_tab", HzTabbed},
    {"vt_marked", VtMarked},    {"vt_printed", VtPrinted},
    {"vt_tab", VtTabbed},       {"cr_marked", CrMarked},
    {"cr_printed", CrPrinted},  {"cr_tab", CrTabbed},
    {"rtf_text", RtfText},      {"cant", Cant},
    {"tunnel", Tunnel},         {"language", Language},
    {"job_file", JobFile},      {"command_line", CommandLine},
    {"conversion", Conversion},
};

}  // namespace vrek::fuzz
