#include "design_data/CAligmentsDatas.h"

#include <utility>
#include <vector>

#include "base/Checked.h"
#include "geometry/Alg.h"
#include "geometry/AligmentIndex.h"
#include "shell/ErrHandler.h"

namespace vrek::CAligmentsDatas {

namespace {

struct TAligmentData {
  THzElements Hz;
  bool bHzInOrder = true;  // never falls back in chainage: can be bisected
  TVtElements Vt;
  TCrData Cr;
  std::shared_ptr<clsSuperelevation> Sup;
  std::shared_ptr<clsTunnel> Tnl;
  TStringLines StrLn;
  int eType = 0;  // bits of AligmentType
};

struct TStore {
  std::vector<TAligmentData> aAligments = std::vector<TAligmentData>(1);  // record 0 stays empty
};

TStore& Store() {
  static TStore oStore;
  return oStore;
}

TAligmentData& Record(int nAligment) {
  return Checked::At(Store().aAligments, nAligment);
}

// The part of an alignment, or what a reported failure leaves the caller with.
template <class TPart>
const TPart& Part(int nAligment, int nBit, TPart TAligmentData::*pPart, std::string_view sOperation,
                  std::string_view sDescription) {
  static const TPart Nothing{};
  return *Guard(sOperation, &Nothing, [&]() -> const TPart* {
    const TAligmentData& Aligment = Record(nAligment);
    if ((Aligment.eType & nBit) == 0) Raise(Error::nAssertion, sDescription);
    return &(Aligment.*pPart);
  });
}

template <class TPart>
void SetPart(int nAligment, int nBit, TPart TAligmentData::*pPart, std::string_view sOperation,
             TPart NewPart) {
  Guard(sOperation, [&] {
    TAligmentData& Aligment = Record(nAligment);
    Aligment.eType |= nBit;
    Aligment.*pPart = std::move(NewPart);
  });
}

constexpr std::string_view sNoHz = "There are not Hz aligment to return";

}  // namespace

void InitAligments() {
  Store() = TStore{};
}

void AddAligment() {
  Guard("AddAligment", [] { Store().aAligments.emplace_back(); });
}

int GetAligmentType(int nAligment) {
  return Guard("GetAligmentType", 0, [&] { return Record(nAligment).eType; });
}

const THzElements& GetAligmentHz(int nAligment) {
  return Part(nAligment, AligmentType::nHz, &TAligmentData::Hz, "GetAligmentHz", sNoHz);
}

THzElement GetAligmentHzWithChainage(int nAligment, double dChainage) {
  return Guard("GetAligmentHzWithChainage", THzElement{}, [&] {
    const TAligmentData& Aligment = Record(nAligment);
    if ((Aligment.eType & AligmentType::nHz) == 0) Raise(Error::nAssertion, sNoHz);
    const int nElement = Aligment.bHzInOrder ? Alg::FindHzElementInOrder(dChainage, Aligment.Hz)
                                             : Alg::FindHzElement(dChainage, Aligment.Hz);
    return Checked::At(Aligment.Hz, nElement);
  });
}

void SetAligmentHz(int nAligment, THzElements aHz) {
  const bool bInOrder = Alg::IsInOrder(aHz);
  SetPart(nAligment, AligmentType::nHz, &TAligmentData::Hz, "SetAligmentHz", std::move(aHz));
  auto& aAligments = Store().aAligments;
  if (nAligment >= 0 && static_cast<std::size_t>(nAligment) < aAligments.size()) {
    aAligments[static_cast<std::size_t>(nAligment)].bHzInOrder = bInOrder;
  }
}

const TVtElements& GetAligmentVt(int nAligment) {
  return Part(nAligment, AligmentType::nVt, &TAligmentData::Vt, "GetAligmentVt",
              "There are not Vt aligment to return");
}

void SetAligmentVt(int nAligment, TVtElements aVt) {
  SetPart(nAligment, AligmentType::nVt, &TAligmentData::Vt, "SetAligmentVt", std::move(aVt));
}

const TCrData& GetAligmentCr(int nAligment) {
  return Part(nAligment, AligmentType::nCr, &TAligmentData::Cr, "GetAligmentCr",
              "There are not Cr aligment to return");
}

void SetAligmentCr(int nAligment, TCrData Cr) {
  SetPart(nAligment, AligmentType::nCr, &TAligmentData::Cr, "SetAligmentCr", std::move(Cr));
}

TCrData TakeAligmentCr(int nAligment) {
  TCrData Cr;
  if (&GetAligmentCr(nAligment) == &Record(nAligment).Cr) std::swap(Cr, Record(nAligment).Cr);
  return Cr;
}

std::shared_ptr<clsSuperelevation> GetAligmentSup(int nAligment) {
  return Part(nAligment, AligmentType::nSup, &TAligmentData::Sup, "GetAligmentSup",
              "There are not Sup aligment to return");
}

void SetAligmentSup(int nAligment, std::shared_ptr<clsSuperelevation> oSup) {
  SetPart(nAligment, AligmentType::nSup, &TAligmentData::Sup, "SetAligmentSup", std::move(oSup));
}

std::shared_ptr<clsTunnel> GetAligmentTnl(int nAligment) {
  return Part(nAligment, AligmentType::nTnl, &TAligmentData::Tnl, "GetAligmentTnl",
              "There are not tunnel aligment to return");
}

void SetAligmentTnl(int nAligment, std::shared_ptr<clsTunnel> oTnl) {
  SetPart(nAligment, AligmentType::nTnl, &TAligmentData::Tnl, "SetAligmentTnl", std::move(oTnl));
}

const TStringLines& GetAligmentStrLn(int nAligment) {
  return Part(nAligment, AligmentType::nStrLn, &TAligmentData::StrLn, "GetAligmentStrLn",
              "There are not StrLn aligment to return");
}

void SetAligmentStrLn(int nAligment, TStringLines StrLn) {
  SetPart(nAligment, AligmentType::nStrLn, &TAligmentData::StrLn, "SetAligmentStrLn", std::move(StrLn));
}

bool GetAligmentStrLnWithName(int nAligment, std::string_view sName, TStringLine& StringLine) {
  return Guard("GetAligmentStrLnWithName", false, [&] {
    const TAligmentData& Aligment = Record(nAligment);
    if (sName.empty() || (Aligment.eType & AligmentType::nStrLn) == 0) return false;
    for (int i = 1; i <= Aligment.StrLn.nCount; ++i) {
      const TStringLine& Line = Checked::At(Aligment.StrLn.Lines, i);
      if (Line.sName != sName) continue;
      StringLine = Line;
      return true;
    }
    return false;
  });
}

}  // namespace vrek::CAligmentsDatas
