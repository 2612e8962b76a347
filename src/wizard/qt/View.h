// What all views share: UTF-8 to the toolkit's text and back, and the rendering of a part's state.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QString>
#include <string>

#include "wizard/Parts.h"

namespace vrek::qt {

inline QString Text(const std::string& sText) {
  return QString::fromStdString(sText);
}
inline std::string Text(const QString& sText) {
  return sText.toStdString();
}

/// A text that only the window shows, from the language file; the given English one where the file has none.
QString Word(const char* sToken, const char* sEnglish);

/// The caption of a button, or of a label that names a box. An "&" in it is shown; the letter that reaches
/// the control with Alt is chosen by AssignMnemonics.
void SetCaption(QAbstractButton& Widget, const QString& sCaption);
void SetCaption(QLabel& Widget, const QString& sCaption);

/// Visible, enabled and, where the part has one, the tool tip.
void RenderState(QWidget& Widget, const TPart& Part);

/// State and caption.
void Render(QAbstractButton& Widget, const TPart& Part);
void Render(QLabel& Widget, const TPart& Part);
void Render(QGroupBox& Widget, const TPart& Part);

/// Sets a check mark without telling that it changed.
void Render(QAbstractButton& Widget, const TCheckBox& Part);

/// Fills a list of choices, without telling that it changed.
void Render(QComboBox& Widget, const TListBox& List);

/// Gives each visible control below Root that has a caption a letter of its own, those of First before all
/// others, so that a language file needs no marks in its texts.
void AssignMnemonics(QWidget& Root, const QList<QWidget*>& First);

}  // namespace vrek::qt
