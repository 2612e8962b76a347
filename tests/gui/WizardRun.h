// The wizard's window on an in-memory platform, and a person's hands on it: mouse, keys, drops.
#pragma once

#include <QApplication>
#include <QMimeData>
#include <QTest>
#include <memory>

#include "shell/CommandLine.h"
#include "support/TestApp.h"
#include "wizard/frmWizard.h"
#include "wizard/qt/WizardWindow.h"

namespace vrek::test {

inline constexpr int nAllJobs = 7;
inline const QString sCases = QString(VREK_GOLDEN_CASES) + "/";
inline const QString sTrackPlan = sCases + "via_unica_8km/Vía única.plt";

/// A window of its own for each run, with the English texts unless told otherwise.
class WizardRun {
 public:
  WizardRun(TestPlatform& Platform, clsAppModel& Model, int nFormats, bool bTexts = true);
  ~WizardRun();

  /// A control on show, by its name; one that isn't there fails the test and gives nullptr.
  template <class TWidget = QWidget>
  TWidget* Find(const QString& sName) const {
    for (auto* pWidget : Window->findChildren<TWidget*>(sName)) {
      if (pWidget->isVisible()) return pWidget;
    }
    ADD_FAILURE() << "no " << sName.toStdString() << " on show";
    return nullptr;
  }
  bool IsOnShow(const QString& sName) const;
  void Click(const QString& sName) const;
  void Next(int nTimes = 1) const {
    for (int n = 0; n < nTimes; ++n) Click("cmdNext");
  }
  /// From the first page to the Files page of a job.
  void OpenFiles(int nJob) const {
    Click("optDesign" + QString::number(nJob));
    Next();
  }
  void Key(Qt::Key eKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier) const;
  /// Characters of any script, one key each, into a box that is clicked first.
  void Type(const QString& sName, const QString& sText) const;
  /// Gives whether the drop was taken.
  static bool Drop(QWidget* pTarget, const QStringList& aFiles);
  void Shoot(const QString& sFile) const;

  qt::QtEvents Events;
  frmWizard Wizard;
  std::unique_ptr<qt::WizardWindow> Window;

 private:
  TestPlatform& m_Platform;
};

}  // namespace vrek::test
