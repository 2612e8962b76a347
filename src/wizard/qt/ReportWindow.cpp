#include "wizard/qt/ReportWindow.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "wizard/qt/Marks.h"
#include "wizard/qt/SaveBytes.h"
#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

// The report's columns depend on a font whose characters are all of one width.
QFont FixedPitchFont() {
  auto Font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  Font.setFamilies({"Courier New", Font.family()});
  Font.setStyleHint(QFont::Monospace);
  Font.setFixedPitch(true);
  return Font;
}

}  // namespace

ReportWindow::ReportWindow(frmReport& Report, QWidget* pParent)
    : QDialog(pParent), m_Report(Report), m_pText(new QPlainTextEdit(this)) {
  setObjectName("frmReport");
  setWindowIcon(MarkIcon(EImage::eFailure));
  m_pText->setObjectName("txtReport");
  m_pText->setReadOnly(true);
  m_pText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_pText->setTabChangesFocus(true);
  m_pText->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_pText->setFont(FixedPitchFont());
  m_pText->setAccessibleName(Word("WIN_REPORT", "Report"));
  auto* pButtons = new QDialogButtonBox(this);
  const auto AddButton = [&](const char* sToken, const char* sEnglish, const char* sName, auto Handler) {
    auto* pButton = pButtons->addButton(QString(), QDialogButtonBox::ActionRole);
    SetCaption(*pButton, Word(sToken, sEnglish));
    pButton->setObjectName(sName);
    connect(pButton, &QPushButton::clicked, this, Handler);
  };
  AddButton("WIN_COPY", "Copy", "cmdCopy", [this] { Copy(); });
  AddButton("WIN_SAVE", "Save...", "cmdSave", [this] { Save(); });
  AddButton("WIN_CLOSE", "Close", "cmdClose", [this] { close(); });
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addWidget(m_pText);
  pLayout->addWidget(pButtons);
  resize(m_pText->fontMetrics().averageCharWidth() * 115, m_pText->fontMetrics().lineSpacing() * 24);
}

void ReportWindow::Render() {
  if (!m_Report.Visible) return hide();
  const auto sText = Text(m_Report.txtReport).remove('\r');
  const bool bNew = !isVisible() || sText != m_pText->toPlainText() || windowTitle() != Text(m_Report.Title);
  if (!bNew) return;
  setWindowTitle(Text(m_Report.Title));
  m_pText->setPlainText(sText);
  AssignMnemonics(*this, {});
  show();
  raise();
  activateWindow();
  m_pText->setFocus();
}

void ReportWindow::hideEvent(QHideEvent* pEvent) {
  m_Report.Visible = false;
  QDialog::hideEvent(pEvent);
}

void ReportWindow::Copy() {
  QGuiApplication::clipboard()->setText(m_pText->toPlainText());
}

void ReportWindow::Save() {
  const auto sPath = AppModel().Platform().pDialogs->SaveFile("(*.txt)|*.txt", m_Report.Title + ".txt");
  if (!sPath.empty()) TopLevel([&] { SaveBytes(sPath, m_Report.txtReport); });
}

}  // namespace vrek::qt
