// One file slot: check box, path, browse button, option, Edit button.
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>

#include "wizard/ctlSelectFilename.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class SlotView final : public PageView {
  Q_OBJECT
 public:
  SlotView(ctlSelectFilename& Control, int nSlot, QWidget* pParent = nullptr);
  void Render() override;
  void FocusPath();

 protected:
  bool eventFilter(QObject* pObject, QEvent* pEvent) override;

 private:
  void LayOut();
  void Connect();
  void FocusMoved(const QWidget* pOld, const QWidget* pNow);
  bool Holds(const QWidget* pWidget) const;
  void Drop(const QList<QUrl>& aUrls);

  ctlSelectFilename& m_Control;
  QCheckBox* m_pCheck;
  QLineEdit* m_pPath;
  QPushButton* m_pBrowse;
  QPushButton* m_pEdit;
  QCheckBox* m_pOption;
};

}  // namespace vrek::qt
