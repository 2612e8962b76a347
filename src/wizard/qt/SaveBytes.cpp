#include "wizard/qt/SaveBytes.h"

#include <QBuffer>
#include <QSaveFile>

#include "base/Failure.h"
#include "wizard/qt/View.h"

namespace vrek::qt {

void SaveBytes(const std::string& sPath, const std::string& sBytes) {
  QSaveFile File(Text(sPath));
  const auto nSize = static_cast<qint64>(sBytes.size());
  if (File.open(QIODevice::WriteOnly) && File.write(sBytes.data(), nSize) == nSize && File.commit()) return;
  Raise(Error::nPathFileAccess, sPath + "\r\n" + Text(File.errorString()), "SaveBytes");
}

std::string ImageBytes(const QImage& Image, const char* sFormat) {
  QBuffer Buffer;
  Buffer.open(QIODevice::WriteOnly);
  Image.save(&Buffer, sFormat);
  return Buffer.data().toStdString();
}

}  // namespace vrek::qt
