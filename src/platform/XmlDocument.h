// The little that the side files ask of an XML parser: top-level nodes, names, attributes, elements by name.
// External entities and DTDs are never loaded, the network is never touched, entity expansion is bounded.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vrek {

/// An element and its attributes. All texts UTF-8.
struct TXmlElement {
  std::string sName;  ///< as written, prefix included
  std::vector<std::pair<std::string, std::string>> aAttributes;

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
  std::string sRootLocalName;          ///< without a prefix
  TXmlElement Root;
  std::vector<TXmlElement> aElements;  ///< the elements asked for, below the root, in document order
};

/// Reads a file and collects all descendants of the root that bear a name (as written; namespaces play no part).
/// A file that can't be opened or parsed: failure nNumber with the parser's reason, line and column as description.
TXmlDocument ReadXmlFile(const std::string& sPath, std::string_view sElementName, int nNumber);

}  // namespace vrek
