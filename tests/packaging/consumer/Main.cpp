// Uses a little of each layer of the library, the XML parser below it included.
#include <fstream>
#include <iostream>
#include <numbers>

#include "base/Configuration.h"
#include "base/FormatReal.h"
#include "geometry/GM.h"
#include "platform/XmlDocument.h"

int main() {
  // A quarter of a circle to the right, northwards from the origin.
  const auto End = vrek::GM::PointOnArc({}, 100, 50 * std::numbers::pi, 0);
  const auto sEnd = vrek::FormatReal(End.dX, 3) + " " + vrek::FormatReal(End.dY, 3);
  std::ofstream("track.xml") << "<Cant><Row s=\"10\"/><Row s=\"20\"/></Cant>";
  const auto Document = vrek::ReadXmlFile("track.xml", "Row", 1);
  std::cout << vrek::Configuration::sName << ": " << sEnd << ", " << Document.aElements.size() << " rows\n";
  return sEnd == "100.000 100.000" && Document.aElements.size() == 2 ? 0 : 1;
}
