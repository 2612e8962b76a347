#include "wizard/qt/View.h"

#include <QSignalBlocker>

#include "shell/AppModel.h"

namespace vrek::qt {
namespace {

void RenderState(QWidget& Widget, const TPart& Part) {
  Widget.setVisible(Part.Visible);
  Widget.setEnabled(Part.Enabled);
  Widget.setToolTip(Text(Part.ToolTip));
}

}  // namespace

QString Word(const char* sToken, const char* sEnglish) {
  const auto sText = AppModel().GetToken(sToken);
  return sText == sToken ? QString::fromUtf8(sEnglish) : Text(sText);
}

void Render(QAbstractButton& Widget, const TPart& Part) {
  Widget.setText(Text(Part.Caption));
  RenderState(Widget, Part);
}

void Render(QLabel& Widget, const TPart& Part) {
  Widget.setText(Text(Part.Caption));
  RenderState(Widget, Part);
}

void Render(QGroupBox& Widget, const TPart& Part) {
  Widget.setTitle(Text(Part.Caption).trimmed());
  RenderState(Widget, Part);
}

void Render(QAbstractButton& Widget, const TCheckBox& Part) {
  const QSignalBlocker Quiet(&Widget);
  Render(Widget, static_cast<const TPart&>(Part));
  Widget.setChecked(Part.Value);
}

}  // namespace vrek::qt
