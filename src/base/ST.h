// ST: text helpers with which every reader cuts lines into fields and numbers. Positions count from 1.
// A text is bytes here: one byte a character in the lines of a listing (Windows-1252), UTF-8 elsewhere.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vrek {

/// A field cut out of a line. The text is a view into that line.
struct TToken {
  std::string_view sText;
  int nStart = 0;  ///< position of its first character in the line, from 1
  int nEnd = 0;  ///< ScanTokens: position of its last character; SplitBySeparator: of the separator behind it
};

/// Fields from index 1; element 0 is present and unused.
using TTokens = std::vector<TToken>;

namespace ST {

/// The number at the start of a text: blanks, tabs and line feeds are passed over wherever they stand, then
/// sign, digits, one decimal point, exponent (E, D, e, d; left out when it has no digits). The first other
/// character ends it, a comma too. 0 without a number; infinite beyond the doubles. No failure.
double LeadingNumber(std::string_view sText);

/// LeadingNumber with every "," read as ".".
double ParseReal(std::string_view sText);

/// Whether ParseReal finds a number and reads the text to its end.
bool IsReal(std::string_view sText);

/// Brings a listing's number to the form LeadingNumber reads: the last of "." and "," is the decimal sign,
/// the other one separates thousands and goes. 1.234,50 becomes 1234.50; 1,234 becomes 1.234.
void NormalizeNumberText(std::string& sText);

/// A chainage, plain or as kilometres and metres (12+345.678 is 12345.678), in metres. Trims the text in
/// place. Kilometres and metres beyond the doubles: failure 6.
double ParseChainage(std::string& sText);

/// True when the trimmed text has a digit and nothing but digits and "+,-.".
bool IsNumberText(std::string_view sText);

/// Fields as runs of characters between runs of the separator, over the first 799 characters of the line.
/// An empty line has one empty field; trailing separators make a last empty field.
void ScanTokens(std::string_view sLine, char cSeparator, int& nCount, TTokens& aTokens);

/// Every separator ends a field. Stores at most nLimit + 1 fields and lowers nLimit to their count; with
/// bSkipEmpty an empty field isn't stored.
void SplitBySeparator(std::string_view sLine, char cSeparator, int& nLimit, TTokens& aTokens,
                      bool bSkipEmpty);

/// The next line of a whole text: from nPos (from 1) up to the next CR, which stays for the line after; so
/// every line but the first begins with the CR and LF before it. bEnd and "" at the end of the text; a last
/// line without a CR is lost.
std::string_view NextTextLine(std::string_view sText, std::size_t& nPos, bool& bEnd);

/// Text behind the last ".", "" if there is none.
std::string_view GetFileExtension(std::string_view sPath);

/// Text behind the last backslash or slash.
std::string_view GetFileName(std::string_view sPath);

/// GetFileName without the text from its last "." on.
std::string_view GetFileBaseName(std::string_view sPath);

/// How often a text occurs; each search starts one character behind the last hit. 0 for an empty text sought.
int CountOccurrences(std::string_view sText, std::string_view sSought);

/// The trimmed text with the pad text put in front of it (nWidth minus its length in characters) times.
std::string PadRight(std::string_view sText, int nWidth, std::string_view sPad);

/// Without blanks (32, nothing else) at both ends.
std::string_view Trim(std::string_view sText);

/// ASCII letters in upper case; other bytes as they are.
std::string ToUpper(std::string_view sText);

}  // namespace ST
}  // namespace vrek
