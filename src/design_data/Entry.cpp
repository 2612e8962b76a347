#include "design_data/Entry.h"

#include "base/ST.h"
#include "design_data/ListingReaders.h"
#include "platform/TextFile.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

bool IsRtf(const std::string& sFilename) {
  return ST::ToUpper(ST::GetFileExtension(sFilename)) == "RTF";
}

}  // namespace

bool ImportHzAligment(THzElements& aHz, const std::string& sFilename) {
  return IsRtf(sFilename) ? ImportHzTabbed(aHz, sFilename) : ImportHzMarked(aHz, sFilename);
}

bool ImportVtAligment(TVtElements& aVt, const std::string& sFilename) {
  return Guard("ImportVtAligment", false, [&] {
    if (IsRtf(sFilename)) {
      const std::string sRtf = ReadWholeFile(sFilename);
      return !sRtf.empty() && ImportVtTabbed(aVt, sRtf);
    }
    CListing Listing(sFilename);
    if (Listing.AtEnd()) return false;
    return Listing.BeginsWith("*ALZ") ? ImportVtMarked(aVt, Listing) : ImportVtPrinted(aVt, Listing);
  });
}

bool ImportCrAligment(TCrData& Cr, const std::string& sFilename) {
  return Guard("ImportCrAligment", false, [&] {
    if (IsRtf(sFilename)) {
      const std::string sRtf = ReadWholeFile(sFilename);
      return !sRtf.empty() && ImportCrTabbed(Cr, sRtf);
    }
    CListing Listing(sFilename);
    if (Listing.AtEnd()) return false;
    return Listing.BeginsWith("*TRV") ? ImportCrMarked(Cr, Listing) : ImportCrPrinted(Cr, Listing);
  });
}

bool ImportStrLnAligment(TStringLines& /*StrLn*/, const std::string& /*sFilename*/) {
  return Guard("ImportStrLnAligment", false, []() -> bool { Raise(Error::nAssertion, ""); });
}

}  // namespace vrek::Entry
