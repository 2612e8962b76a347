// A box for a number: filters keys, brings the last valid text back.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "wizard/ctlNumericText.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class NumericBox final : public PageView {
  Q_OBJECT
 public:
  NumericBox(ctlNumericText& Control, const QString& sObjectName, QWidget* pParent = nullptr);
  void Render() override;
  QLineEdit* Box() const { return m_pBox; }

 protected:
  bool eventFilter(QObject* pObject, QEvent* pEvent) override;

 private:
  void Changed(const QString& sText);

  ctlNumericText& m_Control;
  QLineEdit* m_pBox;
  QLabel* m_pUnit;
};

}  // namespace vrek::qt
