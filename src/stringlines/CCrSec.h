// CCrSec: the stringline engine as the export driver uses it. Gives every point of every section the code of
// the line it continues, section by section, and writes the sections with labels and connections.
#pragma once

#include <string_view>

#include "platform/Progress.h"
#include "records/CrossSections.h"
#include "records/SurfacePoints.h"

namespace vrek::CCrSec {

/// Gives every point of the first surface of each layer a fresh code, before any rule runs.
void NameFirstSurfaces(TCrData& Cr);

/// Runs the naming rules over all sections and sorts the codes. sLines: "$Taludes$Rasante$", "__None__", or
/// empty for every layer. Failures are reported with the source "ApplyRules" and end the work.
void ApplyRules(TCrData& Cr, std::string_view sLines, IProgress& Progress);

/// Keeps the chainages of the sections for SectionIndexAt.
void SetExportData(const TCrData& Cr);

/// Last section at or before a chainage, and not below 1 as long as there is a section 1.
int SectionIndexAt(double dChainage);

/// Writes CrossSects to the open document. Gives the first and last chainage written (0 when nothing was).
/// dFrom and dTo both 0: everything. Failures are reported with the source "Export2LandXML".
void Export2LandXML(double& dChStart, double& dChEnd, TCrData& Cr, std::string_view sLines, double dFrom,
                    double dTo, IProgress& Progress);

}  // namespace vrek::CCrSec
