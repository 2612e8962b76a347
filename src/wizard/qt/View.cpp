#include "wizard/qt/View.h"

#include <QSignalBlocker>
#include <QVariant>

#include "shell/Phrase.h"

namespace vrek::qt {
namespace {

constexpr const char* sCaptionProperty = "vrekCaption";

// An "&" of the text itself is doubled, so that it shows.
QString Escaped(QString sCaption) {
  return sCaption.replace("&", "&&");
}

template <class TWidget>
void KeepCaption(TWidget& Widget, const QString& sCaption) {
  if (Widget.property(sCaptionProperty) == QVariant(sCaption)) return;
  Widget.setProperty(sCaptionProperty, sCaption);
  Widget.setText(Escaped(sCaption));
}

// The place of the first letter that nothing else on show uses, of the beginnings of words first; -1 for
// none.
qsizetype FreeLetter(const QString& sCaption, const QString& sUsed) {
  for (const bool bBeginningsOnly : {true, false}) {
    for (qsizetype n = 0; n < sCaption.size(); ++n) {
      const bool bBeginning = n == 0 || !sCaption[n - 1].isLetterOrNumber();
      if (bBeginningsOnly && !bBeginning) continue;
      if (sCaption[n].isLetter() && !sUsed.contains(sCaption[n].toLower())) return n;
    }
  }
  return -1;
}

void AssignMnemonic(QWidget& Widget, QString& sUsed) {
  const auto sCaption = Widget.property(sCaptionProperty).toString();
  const auto nLetter = FreeLetter(sCaption, sUsed);
  auto sText = Escaped(sCaption);
  if (nLetter >= 0) {
    sUsed += sCaption[nLetter].toLower();
    sText = Escaped(sCaption.left(nLetter)) + "&" + Escaped(sCaption.mid(nLetter));
  }
  if (auto* pButton = qobject_cast<QAbstractButton*>(&Widget); pButton && pButton->text() != sText) {
    pButton->setText(sText);
  }
  if (auto* pLabel = qobject_cast<QLabel*>(&Widget); pLabel && pLabel->text() != sText)
    pLabel->setText(sText);
}

bool TakesMnemonic(const QWidget& Widget, const QWidget& Root) {
  if (Widget.property(sCaptionProperty).toString().isEmpty() || !Widget.isVisibleTo(&Root)) return false;
  const auto* pLabel = qobject_cast<const QLabel*>(&Widget);
  return !pLabel || pLabel->buddy();
}

}  // namespace

QString Word(const char* sToken, const char* sEnglish) {
  return Text(Phrase(sToken, sEnglish));
}

void SetCaption(QAbstractButton& Widget, const QString& sCaption) {
  KeepCaption(Widget, sCaption);
}

void SetCaption(QLabel& Widget, const QString& sCaption) {
  if (Widget.buddy()) {
    // The underlined letter is drawn apart from its neighbours, which makes the text a little wider.
    const auto Metrics = Widget.fontMetrics();
    Widget.setMinimumWidth(Metrics.horizontalAdvance(sCaption) + Metrics.averageCharWidth());
    return KeepCaption(Widget, sCaption);
  }
  Widget.setText(sCaption);
}

void RenderState(QWidget& Widget, const TPart& Part) {
  Widget.setVisible(Part.Visible);
  Widget.setEnabled(Part.Enabled);
  if (!Part.ToolTip.empty()) Widget.setToolTip(Text(Part.ToolTip));
}

void Render(QAbstractButton& Widget, const TPart& Part) {
  SetCaption(Widget, Text(Part.Caption));
  RenderState(Widget, Part);
}

void Render(QLabel& Widget, const TPart& Part) {
  SetCaption(Widget, Text(Part.Caption));
  RenderState(Widget, Part);
}

void Render(QGroupBox& Widget, const TPart& Part) {
  Widget.setTitle(Escaped(Text(Part.Caption).trimmed()));
  RenderState(Widget, Part);
}

void Render(QAbstractButton& Widget, const TCheckBox& Part) {
  const QSignalBlocker Quiet(&Widget);
  Render(Widget, static_cast<const TPart&>(Part));
  Widget.setChecked(Part.Value);
}

void Render(QComboBox& Widget, const TListBox& List) {
  const QSignalBlocker Quiet(&Widget);
  Widget.clear();
  for (const auto& Item : List.Items) Widget.addItem(Text(Item.Text));
  Widget.setCurrentIndex(List.Selected);
  Widget.setVisible(List.Visible);
}

void AssignMnemonics(QWidget& Root, const QList<QWidget*>& First) {
  QString sUsed;
  for (auto* pWidget : First) {
    if (TakesMnemonic(*pWidget, Root)) AssignMnemonic(*pWidget, sUsed);
  }
  for (auto* pWidget : Root.findChildren<QWidget*>()) {
    if (!First.contains(pWidget) && TakesMnemonic(*pWidget, Root)) AssignMnemonic(*pWidget, sUsed);
  }
}

}  // namespace vrek::qt
