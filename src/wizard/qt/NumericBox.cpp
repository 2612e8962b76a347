#include "wizard/qt/NumericBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalBlocker>

#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

// A separator beyond ASCII can't be typed into the box.
char Separator(const QString& sSeparator) {
  return sSeparator.size() == 1 ? sSeparator[0].toLatin1() : '\0';
}

}  // namespace

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
  connect(m_pBox, &QLineEdit::textEdited, this, &NumericBox::Changed);
}

void NumericBox::Render() {
  const QSignalBlocker Quiet(m_pBox);
  const auto sText = Text(m_Control.txtNumber.Text);
  if (m_pBox->text() != sText) m_pBox->setText(sText);
  qt::Render(*m_pUnit, m_Control.lblUnit);
}

// A typed character goes through the control's filter. Pasting by key is swallowed, as the filter has it.
bool NumericBox::eventFilter(QObject* pObject, QEvent* pEvent) {
  if (pEvent->type() != QEvent::KeyPress) return PageView::eventFilter(pObject, pEvent);
  const auto* pKey = static_cast<QKeyEvent*>(pEvent);
  constexpr int nControlV = 22;
  if (pKey->matches(QKeySequence::Paste)) return ctlNumericText::FilterKey(nControlV) == 0;
  const bool bPlain = !(pKey->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  const auto sKey = pKey->text();
  if (!bPlain || sKey.size() != 1 || !sKey[0].isPrint()) return PageView::eventFilter(pObject, pEvent);
  if (const int nAccepted = ctlNumericText::FilterKey(sKey[0].unicode()); nAccepted != 0) {
    m_pBox->insert(QChar(nAccepted));
    Changed(m_pBox->text());
  }
  return true;
}

void NumericBox::Changed(const QString& sText) {
  const auto Machine = QLocale::system();
  const bool bKept = m_Control.txtNumber_Change(Text(sText), Separator(Machine.decimalPoint()),
                                                Separator(Machine.groupSeparator()));
  const int nCaret = m_pBox->cursorPosition();
  Render();
  m_pBox->setCursorPosition(bKept ? nCaret : static_cast<int>(m_pBox->text().size()));
  emit Used();
}

}  // namespace vrek::qt
