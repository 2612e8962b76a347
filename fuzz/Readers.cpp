// The readers of listings and side files. A reader that says it got a usable result has one.
#include <cmath>

#include "Surroundings.h"
#include "Targets.h"
#include "design_data/ListingReaders.h"
#include "platform/RtfText.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "rail_tunnel/clsTunnel.h"
#include "shell/ErrHandler.h"

namespace vrek::fuzz {
namespace {

void ReadHz(bool (*Import)(THzElements&, const std::string&), std::string_view sBytes) {
  Surroundings Around;
  THzElements aHz;
  const bool bRead = Import(aHz, MemoryFile(sBytes).Path());
  Require(!bRead || aHz.size() >= 2);
}

void ReadVt(bool (*Import)(TVtElements&, CListing&), std::string_view sBytes) {
  Surroundings Around;
  TVtElements aVt;
  const bool bRead = Guard("Fuzz", false, [&] {
    CListing Listing(MemoryFile(sBytes).Path());
    return !Listing.AtEnd() && Import(aVt, Listing);
  });
  Require(!bRead || aVt.size() >= 2);
}

void RequireUsable(bool bRead, const TCrData& Cr) {
  Require(!bRead || Cr.Sections.size() >= 2);
}

void ReadCr(bool (*Import)(TCrData&, CListing&), std::string_view sBytes) {
  Surroundings Around;
  TCrData Cr;
  RequireUsable(Guard("Fuzz", false,
                      [&] {
                        CListing Listing(MemoryFile(sBytes).Path());
                        return !Listing.AtEnd() && Import(Cr, Listing);
                      }),
                Cr);
}

}  // namespace

void HzMarked(std::string_view sBytes) {
  ReadHz(Entry::ImportHzMarked, sBytes);
}

void HzTabbed(std::string_view sBytes) {
  ReadHz(Entry::ImportHzTabbed, sBytes);
}

void VtMarked(std::string_view sBytes) {
  ReadVt(Entry::ImportVtMarked, sBytes);
}

void VtPrinted(std::string_view sBytes) {
  ReadVt(Entry::ImportVtPrinted, sBytes);
}

void VtTabbed(std::string_view sBytes) {
  Surroundings Around;
  TVtElements aVt;
  const bool bRead = Entry::ImportVtTabbed(aVt, sBytes);
  Require(!bRead || aVt.size() >= 2);
}

void CrMarked(std::string_view sBytes) {
  ReadCr(Entry::ImportCrMarked, sBytes);
}

void CrPrinted(std::string_view sBytes) {
  ReadCr(Entry::ImportCrPrinted, sBytes);
}

void CrTabbed(std::string_view sBytes) {
  Surroundings Around;
  TCrData Cr;
  RequireUsable(Entry::ImportCrTabbed(Cr, sBytes), Cr);
}

void RtfText(std::string_view sBytes) {
  RtfToText(sBytes);
}

void Cant(std::string_view sBytes) {
  Surroundings Around;
  clsSuperelevation Table;
  if (!Table.Import(MemoryFile(sBytes).Path())) return;
  double dDistance = 0, dLeft = 0, dRight = 0;
  for (const double dChainage : Table.GetChainages()) {
    Guard("Fuzz", [&] { Require(!std::isnan(Table.GetSlopeInChainage(dChainage))); });
    Table.ComputeRails(dDistance, dLeft, dRight, 1, dChainage);
  }
}

void Tunnel(std::string_view sBytes) {
  Surroundings Around;
  clsTunnel Bore;
  if (!Bore.Load(MemoryFile(sBytes).Path())) return;
  Guard("Fuzz", [&] { Require(Bore.GetChainageStart() <= Bore.GetChainageEnd()); });
}

}  // namespace vrek::fuzz
