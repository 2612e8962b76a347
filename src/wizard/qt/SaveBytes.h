// Files that the user saves from the window: whole under their name, or not at all.
#pragma once

#include <QImage>
#include <string>

namespace vrek::qt {

/// A file that can't be written whole is a failure 75 that names it.
void SaveBytes(const std::string& sPath, const std::string& sBytes);

/// An image in a format such as "PNG".
std::string ImageBytes(const QImage& Image, const char* sFormat);

}  // namespace vrek::qt
