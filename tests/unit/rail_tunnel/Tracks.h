// Tracks for the tests of this folder: a plan built element by element, and cant tables as files.
#pragma once

#include <string>

#include "design_data/CAligmentsDatas.h"
#include "geometry/Alg.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "support/TestApp.h"

namespace vrek::test {

/// A plan whose elements meet: each one starts where the one before ends.
class PlanMaker {
 public:
  PlanMaker(double dX, double dY, double dAzimuthGon, double dChainage)
      : m_Next{.nId = 1, .dChainage = dChainage, .dX = dX, .dY = dY, .dAzimuth = dAzimuthGon} {}

  PlanMaker& Line(double dLength) {
    const auto Element = Add(0, 0, dLength);
    return EndAt(Alg::GetPointOnLine(dLength, Element));
  }
  PlanMaker& Arc(double dRadius, double dLength) {
    const auto Element = Add(dRadius, 0, dLength);
    return EndAt(Alg::GetPointOnArc(dLength, Element));
  }
  /// dRadius: at the start, 0.001 for infinite; dEndRadius: 0 for infinite.
  PlanMaker& Clothoid(double dRadius, double dEndRadius, double dParameter, double dLength) {
    const auto Element = Add(dRadius, dParameter, dLength);
    return EndAt(Alg::GetPointOnClothoid(dLength, dEndRadius, Element));
  }
  const THzElements& Elements() const { return m_aHz; }

 private:
  THzElement Add(double dRadius, double dParameter, double dLength) {
    m_Next.dRadius = dRadius;
    m_Next.dParameter = dParameter;
    m_Next.dLength = dLength;
    m_aHz.push_back(m_Next);
    return Alg::InRadians(m_Next);
  }
  PlanMaker& EndAt(const THzPoint& End) {
    ++m_Next.nId;
    m_Next.dChainage += m_Next.dLength;
    m_Next.dX = End.dX;
    m_Next.dY = End.dY;
    m_Next.dAzimuth = End.dAzimuth / GM::dGonToRadians;
    return *this;
  }

  THzElement m_Next;
  THzElements m_aHz = THzElements(1);
};

/// A store with an empty alignment for each file page, and side files in the test's directory.
class TrackTest : public AppTest {
 protected:
  TrackTest() {
    CAligmentsDatas::InitAligments();
    for (int n = 1; n <= 3; ++n) CAligmentsDatas::AddAligment();
  }
  ~TrackTest() override { CAligmentsDatas::InitAligments(); }

  /// A cant file around rows.
  static std::string CantXml(std::string_view sRows, bool bCoPlane = false) {
    return "<?xml version='1.0'?>\n<!-- Track table, version '2.0.1' -->\n"
           "<Cant gauge='1.435' superelevationBase='1.5' rotationPoint='center' coPlane='" +
           std::string(bCoPlane ? "true" : "false") + "'>" + std::string(sRows) + "</Cant>";
  }
  /// A row with a single cant, millimetres.
  static std::string Row(double dStation, double dCant, std::string_view sRotationPoint) {
    return "<CantStation station='" + std::to_string(dStation) + "' appliedCant='" + std::to_string(dCant) +
           "' rotationPoint='" + std::string(sRotationPoint) +
           "' appliedGauge='1.435' appliedSuperelevation='1.5'/>";
  }
  /// A row with both lifts, millimetres.
  static std::string Row(double dStation, double dLeft, double dRight) {
    return "<CantStation station='" + std::to_string(dStation) + "' appliedCantLeft='" +
           std::to_string(dLeft) + "' appliedCantRight='" + std::to_string(dRight) +
           "' appliedGauge='1.435' appliedSuperelevation='1.5'/>";
  }
  clsSuperelevation Table(std::string_view sRows, bool bCoPlane = false) {
    clsSuperelevation Cant;
    EXPECT_TRUE(Cant.Import(WriteFile("cant.xml", CantXml(sRows, bCoPlane))));
    return Cant;
  }
  /// A level profile from chainage 0 on.
  static void SetLevel(int nAligment, double dHeight) {
    CAligmentsDatas::SetAligmentVt(nAligment, {{}, {.nId = 1, .dHeight = dHeight, .dLength = 100000}});
  }
  /// A stringline "axis" in place of the plan or profile that an alignment lacks.
  static void SetStringLine(int nAligment, const THzElements& aHz, const TVtElements& aVt) {
    TStringLines Lines;
    Lines.nCount = 1;
    Lines.Lines.resize(2);
    Lines.Lines[1].sName = "axis";
    Lines.Lines[1].Hz = aHz;
    Lines.Lines[1].Vt = aVt;
    CAligmentsDatas::SetAligmentStrLn(nAligment, Lines);
  }
  std::string Boxes() const {
    std::string sText;
    for (const auto& Box : Platform.aBoxes) sText += Box.sText + "|";
    return sText;
  }
};

}  // namespace vrek::test
