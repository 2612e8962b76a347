#include "shell/AppModel.h"

#include <utility>

#include "base/Configuration.h"
#include "base/Failure.h"
#include "base/ST.h"
#include "shell/Services.h"

namespace vrek {
namespace {

clsAppModel* pAppModel = nullptr;

int OfferedJobTypes(int nFormatsSupport) {
  const int nRoad = (nFormatsSupport & 1) != 0 ? 1 : 0;
  const int nTunnel = (nFormatsSupport & 2) != 0 ? 1 : 0;
  const int nRail = (nFormatsSupport & 4) != 0 ? 2 : 0;
  return nRoad + nTunnel + nRail;
}

}  // namespace

CConverterInfo MakeConverterInfo(int nFormatsSupport) {
  CConverterInfo Info;
  Info.eType = Configuration::eType;
  Info.sName = Configuration::sName;
  Info.sDescription = Configuration::sDescription;
  Info.nFormatsSupport = nFormatsSupport;
  Info.nJobTypesNumber = OfferedJobTypes(nFormatsSupport);
  return Info;
}

std::string CConversionInfo::GetCreator() const {
  return sCreator.empty() ? GetCurrentUserName() : sCreator;
}

std::string CConversionInfo::GetRoadDataName() const {
  if (!sJobName.empty()) return sJobName;
  return std::string(ST::GetFileBaseName(AppModel().XmlFileToExport));
}

clsAppModel& AppModel() {
  if (pAppModel == nullptr) Raise(Error::nObjectNotSet);
  return *pAppModel;
}

bool HasAppModel() {
  return pAppModel != nullptr;
}

clsAppModel* SetAppModel(clsAppModel* pModel) {
  return std::exchange(pAppModel, pModel);
}

}  // namespace vrek
