#include "wizard/qt/DialogFilter.h"

#include <QStringList>

#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

QString Patterns(const QString& sPatterns) {
  QStringList aOut;
  for (const auto& sPattern : sPatterns.split(';', Qt::SkipEmptyParts)) {
    if (sPattern == "*.*") return "*";
    for (const auto& sCase : {sPattern.toLower(), sPattern.toUpper()}) {
      if (!aOut.contains(sCase)) aOut << sCase;
    }
  }
  return aOut.join(' ');
}

// The description without the patterns that it repeats in parentheses.
QString Description(const QString& sText, const QString& sPatterns) {
  const auto sName = sText.left(sText.indexOf('(')).trimmed();
  return sName.isEmpty() && sPatterns == "*" ? Word("WIN_ALL_FILES", "All files") : sName;
}

}  // namespace

QString DialogFilter(std::string_view sFilter) {
  const auto aTexts = QString::fromUtf8(sFilter.data(), static_cast<qsizetype>(sFilter.size())).split('|');
  QStringList aOut;
  for (qsizetype n = 0; n + 1 < aTexts.size(); n += 2) {
    const auto sPatterns = Patterns(aTexts[n + 1]);
    if (sPatterns.isEmpty()) continue;
    aOut << (Description(aTexts[n], sPatterns) + " (" + sPatterns + ")").trimmed();
  }
  return aOut.join(";;");
}

}  // namespace vrek::qt
