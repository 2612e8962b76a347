// What all views share: UTF-8 to the toolkit's text and back, and the rendering of a part's state.
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QString>
#include <string>

#include "wizard/Parts.h"

namespace vrek::qt {

inline QString Text(const std::string& sText) { return QString::fromStdString(sText); }
inline std::string Text(const QString& sText) { return sText.toStdString(); }

/// A text that only the window shows, from the language file; the given English one where the file has none.
QString Word(const char* sToken, const char* sEnglish);

/// A button's text keeps an "&" of the language file as a mnemonic; a label shows it.
void Render(QAbstractButton& Widget, const TPart& Part);
void Render(QLabel& Widget, const TPart& Part);
void Render(QGroupBox& Widget, const TPart& Part);

/// Sets a check mark without telling that it changed.
void Render(QAbstractButton& Widget, const TCheckBox& Part);

}  // namespace vrek::qt
