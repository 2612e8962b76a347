// CAligmentsDatas: the one store of imported data, a table of alignments numbered from 1.
//
// A Get hands out a reference to what is stored, valid until the next change of the table: who changes the
// data takes a copy. A Get on a part that isn't there reports failure 20000 and gives an empty part. A number
// outside the table is a caller's error: failure 9.
#pragma once

#include <memory>
#include <string_view>

#include "records/CrossSections.h"
#include "records/Elements.h"
#include "records/StringLines.h"

namespace vrek {

class clsSuperelevation;
class clsTunnel;

/// Bits of eType: which parts hold data.
namespace AligmentType {
inline constexpr int nHz = 1, nVt = 2, nCr = 4, nSup = 8, nTnl = 16, nStrLn = 32;
}

namespace CAligmentsDatas {

void InitAligments();
void AddAligment();
int GetAligmentType(int nAligment);

const THzElements& GetAligmentHz(int nAligment);
/// The element that holds a chainage: the first before the start, the last beyond the end. Without any, failure 9 is
/// reported and the element is empty.
THzElement GetAligmentHzWithChainage(int nAligment, double dChainage);
void SetAligmentHz(int nAligment, THzElements aHz);
const TVtElements& GetAligmentVt(int nAligment);
void SetAligmentVt(int nAligment, TVtElements aVt);
const TCrData& GetAligmentCr(int nAligment);
void SetAligmentCr(int nAligment, TCrData Cr);
/// The cross-sections themselves, for a caller after whom nobody asks for them: the store keeps empty ones.
TCrData TakeAligmentCr(int nAligment);
std::shared_ptr<clsSuperelevation> GetAligmentSup(int nAligment);
void SetAligmentSup(int nAligment, std::shared_ptr<clsSuperelevation> oSup);
std::shared_ptr<clsTunnel> GetAligmentTnl(int nAligment);
void SetAligmentTnl(int nAligment, std::shared_ptr<clsTunnel> oTnl);
const TStringLines& GetAligmentStrLn(int nAligment);
void SetAligmentStrLn(int nAligment, TStringLines StrLn);
/// Finds a stringline by its exact name; false, without a failure, when there is none.
bool GetAligmentStrLnWithName(int nAligment, std::string_view sName, TStringLine& StringLine);

}  // namespace CAligmentsDatas
}  // namespace vrek
