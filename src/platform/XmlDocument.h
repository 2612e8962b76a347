// The little that the side files ask of an XML parser: top-level nodes, names, attributes, elements by name.
//
// A file is read in pieces and only what is asked for is kept, so a file of any size needs little memory.
// Nothing but the file itself is ever opened: no external entity, no DTD, no network. Entities that the file
// declares itself are expanded within bounds. Any encoding that the parser knows.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vrek {

/// An element and its attributes. All texts UTF-8.
struct TXmlElement {
  std::string sName;                                             ///< as written, prefix included
  std::vector<std::pair<std::string, std::string>> aAttributes;  ///< names as written, and values

  /// Value of an attribute. Missing: failure 91.
  const std::string& Attribute(std::string_view sAttribute) const;
  bool HasAttribute(std::string_view sAttribute) const;
};

enum class EXmlNode { eDeclaration, eComment, eInstruction, eDocumentType, eElement };

/// A node of the document's top level. The XML declaration is the first of them where there is one.
struct TXmlTopNode {
  EXmlNode eKind = EXmlNode::eElement;
  std::string sText;  ///< a comment's text
};

/// What was read of a file.
struct TXmlDocument {
  std::vector<TXmlTopNode> aTopNodes;
  std::string sRootLocalName;  ///< without a prefix
  TXmlElement Root;
  std::vector<TXmlElement> aElements;  ///< the elements asked for, below the root, in document order
};

/// Deepest nesting of elements; the root is level 1.
inline constexpr int nXmlLevels = 256;

/// Reads a file and collects all descendants of the root that bear a name (as written; namespaces play no
/// part). A file that can't be opened or parsed: failure nNumber with the reason as description, the parser's
/// with line and column. A prefix that isn't declared and nesting beyond nXmlLevels are parse errors too.
TXmlDocument ReadXmlFile(const std::string& sPath, std::string_view sElementName, int nNumber);

/// Whether bytes can stand inside an element of a UTF-8 document: text and elements, all of them closed,
/// within the bounds of ReadXmlFile.
bool IsXmlContent(std::string_view sBytes);

}  // namespace vrek
