#include "wizard/qt/NumericBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "wizard/qt/View.h"

namespace vrek::qt {

NumericBox::NumericBox(ctlNumericText& Control, const QString& sObjectName, QWidget* pParent)
    : PageView(pParent), m_Control(Control), m_pBox(new QLineEdit(this)), m_pUnit(new QLabel(this)) {
  m_pBox->setObjectName(sObjectName);
  m_pBox->setAlignment(Qt::AlignRight);
  m_pBox->installEventFilter(this);
  auto* pLayout = new QHBoxLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  pLayout->addWidget(m_pBox, 1);
  pLayout->addWidget(m_pUnit);
  setFocusProxy(m_pBox);
  connect(m_pBox, &QLineEdit::textEdited, this, [this](const QString& sText) {
    const bool bKept = m_Control.txtNumber_Change(Text(sText));
    const int nCaret = m_pBox->cursorPosition();
    Render();
    m_pBox->setCursorPosition(bKept ? nCaret : static_cast<int>(m_pBox->text().size()));
    emit Used();
  });
}

void NumericBox::Render() {
  const QSignalBlocker Quiet(m_pBox);
  const auto sText = Text(m_Control.txtNumber.Text);
  if (m_pBox->text() != sText) m_pBox->setText(sText);
  qt::Render(*m_pUnit, m_Control.lblUnit);
}

bool NumericBox::eventFilter(QObject* pObject, QEvent* pEvent) {
  if (pEvent->type() == QEvent::KeyPress) {
    const auto* pKey = static_cast<QKeyEvent*>(pEvent);
    const auto sKey = pKey->text();
    const bool bPlain = !(pKey->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (bPlain && sKey.size() == 1 && sKey[0].isPrint()) {
      const int nAccepted = ctlNumericText::FilterKey(sKey[0].unicode());
      if (nAccepted != 0) m_pBox->insert(QChar(nAccepted));
      if (nAccepted != 0) emit m_pBox->textEdited(m_pBox->text());
      return true;
    }
  }
  return PageView::eventFilter(pObject, pEvent);
}

}  // namespace vrek::qt
