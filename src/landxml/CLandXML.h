// CLandXML: the module through which every line of the output file passes. Lines end in CR LF; one tab for
// each level; names from the user's data as UTF-8 (EncodeUtf8Text), everything else in the code page; no
// escaping.
//
//   <LandXML ...>                          depth 0
//   	<Application .../>                    1
//   	<Alignments>                          1
//   		<Alignment ...>                     2
//   			<CoordGeom>                       3   CLandXML_CoordGeom.cpp
//   			<Profile>                         3   CLandXML_Profile.cpp
//
// An opening routine writes and then goes one level down; a closing routine goes up and then writes.
// All routines give true when the line was written; a failure is reported and gives false.
#pragma once

#include <string>
#include <string_view>

#include "records/Elements.h"

namespace vrek::CLandXML {

/// Remembers the path and closes what is open; TagLandXML opens the file.
void SetOutputFile(const std::string& sPath);
bool OpenFile();
void CloseFile();
/// Whether a file is open.
bool IsOpen();
/// Whether every line of the document, up to now, went to the file; what the file still gathers is known for
/// sure behind TagLandXML(true) and CloseFile. False from SetOutputFile until a file is open.
bool WroteWhole();
/// Current element depth.
int Tabs();

bool WriteLn(std::string_view sText);
bool WriteTabbed(std::string_view sText);

/// Opens the file first where none is open. Closing hands all that was gathered to the disk: a full one shows
/// here.
bool TagLandXML(bool bClose);
bool TagApplication(std::string_view sCreator);
bool TagProject(std::string_view sName, std::string_view sDescription);
bool TagUnits();
bool TagAlignments(bool bClose);
bool TagAlignment(bool bClose, std::string_view sName, double dChStart, double dChEnd);
bool TagProfile(bool bClose);
bool TagCrossSects(bool bClose, std::string_view sName);
bool TagCrossSect(bool bClose, std::string_view sSta, std::string_view sName);
bool TagCrossSectSurf(bool bClose, std::string_view sName);
bool TagFeature(bool bClose, std::string_view sCode, std::string_view sValue);
bool TagProperty(std::string_view sLabel, std::string_view sValue);

// Plans and profiles. Limits in metres or dNotGiven; they choose elements, which are never cut. The output
// chainages are the start of the first element written and the end of the last (0 when the limits leave
// none). No element above index 0: nothing is written, false for a plan, true for a profile.

/// Plan of an axis. A failure leaves the elements before it in the file, and nothing of the one in hand.
bool TagCoordGeom(double& dOutStart, double& dOutEnd, const THzElements& aHz, double dChStart, double dChEnd);
/// Plan of a stringline: blocks of at most 25 points.
bool TagCoordGeomIrrLn(double& dOutStart, double& dOutEnd, const THzElements& aHz, double dChStart,
                       double dChEnd);
/// Profile of an axis with its curves.
bool TagProfAlign(double& dOutStart, double& dOutEnd, std::string_view sName, const TVtElements& aVt,
                  double dChStart, double dChEnd);
/// Profile of a stringline; leaves the output chainages as they were.
bool TagProfAlignIrrLn(double& dOutStart, double& dOutEnd, std::string_view sName, const TVtElements& aVt,
                       double dChStart, double dChEnd);

/// A name so that writing it through the code page puts its UTF-8 bytes into the file: UTF-8 in, UTF-8 out,
/// each byte from 126 on become the character of that code-page value. No code-page value: "?".
std::string EncodeUtf8Text(std::string_view sText);

}  // namespace vrek::CLandXML
