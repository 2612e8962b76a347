// The two marks of the Importing page. Told apart by shape as well as by colour.
#pragma once

#include <QIcon>

#include "wizard/ctlImporting.h"

namespace vrek::qt {

/// An empty icon for a node that wasn't handled.
QIcon MarkIcon(EImage eImage);

}  // namespace vrek::qt
