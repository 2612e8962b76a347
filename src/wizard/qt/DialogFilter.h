// The filters of the file dialogs in the toolkit's form.
#pragma once

#include <QString>
#include <string_view>

namespace vrek::qt {

/// "(*.PLT;*.RTF)|*.plt;*.rtf|(*.*)|*.*" to "(*.plt *.PLT *.rtf *.RTF);;All files (*)": a pair for each two
/// texts between bars, each pattern in both cases. A trailing bar, or a description without patterns, adds
/// nothing.
QString DialogFilter(std::string_view sFilter);

}  // namespace vrek::qt
