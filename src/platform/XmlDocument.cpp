#include "platform/XmlDocument.h"

#include <fcntl.h>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>

#include "base/Failure.h"
#include "platform/Descriptor.h"

namespace vrek {
namespace {

// Bounds that no side file comes near, but files made to exhaust the parser do.
constexpr std::size_t nExpansionFactor = 4;  // text and values may outgrow the bytes read: encodings,
constexpr std::size_t nExpansionAllowance = 1 << 20;  // entities, default attributes
constexpr std::size_t nMarkupLimit = 1 << 20;         // bytes of a tag, comment, document type and so on
constexpr int nAttributeLimit = 1000;                 // of an element

// One file, or texts in memory as one, on their way through the parser.
struct TReading {
  std::string_view sElementName;
  int nNumber = 0;
  int nFile = -1;                              // none: the texts
  std::array<std::string_view, 3> aTextsLeft;  // what the parser hasn't got yet
  xmlParserCtxtPtr pParser = nullptr;
  TXmlDocument Document;
  int nLevel = 0;             // of the element in hand, the root is 1
  bool bInDtd = false;        // between "<!DOCTYPE" and its end
  std::size_t nRead = 0;      // bytes
  std::size_t nReadThen = 0;  // nRead as the last piece of the document came out
  std::size_t nGiven = 0;     // bytes of text, names and values that came out
  std::string sReason;        // the parser's first error
  std::exception_ptr Thrown;  // what a handler threw

  bool Failed() const { return Thrown || !sReason.empty(); }
};

std::string View(const xmlChar* pText) {
  return pText ? reinterpret_cast<const char*>(pText) : "";
}

std::string QualifiedName(const xmlChar* pPrefix, const xmlChar* pLocal) {
  return pPrefix ? View(pPrefix) + ":" + View(pLocal) : View(pLocal);
}

std::string WithPlace(std::string sReason, int nLine, int nColumn) {
  while (!sReason.empty() && sReason.back() == '\n') sReason.pop_back();
  if (nLine <= 0) return sReason;
  return sReason + " (line " + std::to_string(nLine) + ", column " + std::to_string(nColumn) + ")";
}

TReading& ReadingOf(void* pContext) {
  return *static_cast<TReading*>(static_cast<xmlParserCtxtPtr>(pContext)->_private);
}

// Runs the body of a handler: no exception may pass through the parser, and after a failure nothing counts.
template <class TBody>
void Handle(void* pContext, TBody&& Body) {
  TReading& Reading = ReadingOf(pContext);
  if (Reading.Failed()) return;
  Reading.nReadThen = Reading.nRead;
  try {
    Body(Reading);
  } catch (...) {
    Reading.Thrown = std::current_exception();
    // The text of an entity may have a context of its own.
    xmlStopParser(static_cast<xmlParserCtxtPtr>(pContext));
    xmlStopParser(Reading.pParser);
  }
}

std::string Here(const TReading& Reading, std::string sReason) {
  const auto* pInput = Reading.pParser->input;
  return WithPlace(std::move(sReason), pInput ? pInput->line : 0, pInput ? pInput->col : 0);
}

// Counts what comes out of the document against what went in.
void Count(TReading& Reading, std::size_t nBytes) {
  Reading.nGiven += nBytes;
  if (Reading.nGiven > nExpansionFactor * Reading.nRead + nExpansionAllowance)
    Raise(Reading.nNumber, Here(Reading, "Entities or default attributes expand beyond bounds"));
}

void OnStartDocument(void* pContext) {
  xmlSAX2StartDocument(pContext);
  Handle(pContext, [&](TReading& Reading) {
    // -1 stands for a document without a declaration; one that doesn't say "standalone" has -2.
    if (static_cast<xmlParserCtxtPtr>(pContext)->standalone != -1)
      Reading.Document.aTopNodes.push_back({EXmlNode::eDeclaration, {}});
  });
}

// The declarations that follow go to the parser's own handlers, which keep the entities.
void OnDocumentType(void* pContext, const xmlChar* pName, const xmlChar* pPublic, const xmlChar* pSystem) {
  xmlSAX2InternalSubset(pContext, pName, pPublic, pSystem);
  Handle(pContext, [](TReading& Reading) {
    Reading.bInDtd = true;
    Reading.Document.aTopNodes.push_back({EXmlNode::eDocumentType, {}});
  });
}

// Called at the end of the internal subset, where the external one would be loaded.
void OnDocumentTypeEnd(void* pContext, const xmlChar*, const xmlChar*, const xmlChar*) {
  Handle(pContext, [](TReading& Reading) { Reading.bInDtd = false; });
}

void OnText(void* pContext, const xmlChar*, int nLength) {
  Handle(pContext, [&](TReading& Reading) { Count(Reading, static_cast<std::size_t>(nLength)); });
}

void OnTopNode(void* pContext, EXmlNode eKind, const xmlChar* pText) {
  Handle(pContext, [&](TReading& Reading) {
    if (Reading.nLevel == 0 && !Reading.bInDtd) Reading.Document.aTopNodes.push_back({eKind, View(pText)});
  });
}

void OnComment(void* pContext, const xmlChar* pText) {
  OnTopNode(pContext, EXmlNode::eComment, pText);
}

void OnInstruction(void* pContext, const xmlChar*, const xmlChar*) {
  OnTopNode(pContext, EXmlNode::eInstruction, nullptr);
}

// pAttributes: for each one its local name, prefix, namespace, and where its value begins and ends.
TXmlElement MakeElement(std::string sName, int nAttributes, const xmlChar** pAttributes) {
  TXmlElement Element;
  Element.sName = std::move(sName);
  Element.aAttributes.reserve(static_cast<std::size_t>(nAttributes));
  for (int n = 0; n < nAttributes; ++n, pAttributes += 5) {
    const auto* pBegin = reinterpret_cast<const char*>(pAttributes[3]);
    const auto* pEnd = reinterpret_cast<const char*>(pAttributes[4]);
    Element.aAttributes.emplace_back(QualifiedName(pAttributes[1], pAttributes[0]),
                                     std::string(pBegin, pEnd));
  }
  return Element;
}

void CountElement(TReading& Reading, std::string_view sName, int nAttributes, const xmlChar** pAttributes) {
  if (++Reading.nLevel > nXmlLevels)
    Raise(Reading.nNumber,
          Here(Reading, "Elements nested deeper than " + std::to_string(nXmlLevels) + " levels"));
  if (nAttributes > nAttributeLimit) Raise(Reading.nNumber, Here(Reading, "Too many attributes"));
  Count(Reading, sName.size() + 2);
  for (int n = 0; n < nAttributes; ++n, pAttributes += 5)
    Count(Reading, static_cast<std::size_t>(pAttributes[4] - pAttributes[3]) + 2);
}

void OnStartElement(void* pContext, const xmlChar* pLocal, const xmlChar* pPrefix, const xmlChar*, int,
                    const xmlChar**, int nAttributes, int, const xmlChar** pAttributes) {
  Handle(pContext, [&](TReading& Reading) {
    std::string sName = QualifiedName(pPrefix, pLocal);
    CountElement(Reading, sName, nAttributes, pAttributes);
    if (Reading.nLevel == 1) {
      Reading.Document.aTopNodes.push_back({EXmlNode::eElement, {}});
      Reading.Document.sRootLocalName = View(pLocal);
      Reading.Document.Root = MakeElement(std::move(sName), nAttributes, pAttributes);
    } else if (sName == Reading.sElementName) {
      Reading.Document.aElements.push_back(MakeElement(std::move(sName), nAttributes, pAttributes));
    }
  });
}

void OnEndElement(void* pContext, const xmlChar*, const xmlChar*, const xmlChar*) {
  Handle(pContext, [](TReading& Reading) { --Reading.nLevel; });
}

// Everything that the parser has to say, also what it would otherwise print. Warnings don't count, nor does a
// namespace that is no address: only its declaration matters here.
template <class TError>
void OnError(void* pContext, TError* pError) {
  auto& Reading = *static_cast<TReading*>(pContext);
  if (pError->level < XML_ERR_ERROR || pError->code == XML_WAR_NS_URI || Reading.Failed()) return;
  Reading.sReason =
      WithPlace(pError->message ? pError->message : "Not well formed", pError->line, pError->int2);
}

xmlParserInputPtr LoadNothing(const char*, const char*, xmlParserCtxtPtr) {
  return nullptr;
}

// The parser's settings for the length of one parse. They belong to the process (loader) and the thread
// (errors).
class ParserSettings {
 public:
  explicit ParserSettings(TReading& Reading)
      : m_pLoader(xmlGetExternalEntityLoader()),
        m_pHandler(xmlStructuredError),
        m_pContext(xmlStructuredErrorContext) {
    xmlSetExternalEntityLoader(LoadNothing);
    xmlSetStructuredErrorFunc(&Reading, OnError);
  }
  ParserSettings(const ParserSettings&) = delete;
  ParserSettings& operator=(const ParserSettings&) = delete;
  ~ParserSettings() {
    xmlSetStructuredErrorFunc(m_pContext, m_pHandler);
    xmlSetExternalEntityLoader(m_pLoader);
  }

 private:
  xmlExternalEntityLoader m_pLoader;
  xmlStructuredErrorFunc m_pHandler;
  void* m_pContext;
};

// A context whose handlers keep entities and collect what is asked for; text goes by.
xmlParserCtxtPtr MakeContext(TReading& Reading) {
  const xmlParserCtxtPtr pContext = xmlNewParserCtxt();
  if (!pContext) Raise(Error::nOutOfMemory);
  pContext->_private = &Reading;
  Reading.pParser = pContext;
  xmlSAXHandler& Sax = *pContext->sax;
  Sax.startDocument = OnStartDocument;
  Sax.internalSubset = OnDocumentType;
  Sax.externalSubset = OnDocumentTypeEnd;
  Sax.comment = OnComment;
  Sax.processingInstruction = OnInstruction;
  Sax.startElementNs = OnStartElement;
  Sax.endElementNs = OnEndElement;
  Sax.characters = Sax.ignorableWhitespace = Sax.cdataBlock = OnText;
  Sax.reference = nullptr;
  return pContext;
}

int ReadText(TReading& Reading, char* pBuffer, int nLength) {
  for (auto& sText : Reading.aTextsLeft) {
    const auto n = sText.copy(pBuffer, static_cast<std::size_t>(nLength));
    sText.remove_prefix(n);
    Reading.nRead += n;
    if (n > 0) return static_cast<int>(n);
  }
  return 0;
}

int ReadPiece(void* pContext, char* pBuffer, int nLength) {
  auto& Reading = *static_cast<TReading*>(pContext);
  if (Reading.Failed()) return -1;
  if (Reading.nRead - Reading.nReadThen > nMarkupLimit) {
    Reading.sReason =
        Here(Reading, "A piece of markup longer than " + std::to_string(nMarkupLimit) + " bytes");
    return -1;
  }
  if (Reading.nFile < 0) return ReadText(Reading, pBuffer, nLength);
  for (;;) {
    const auto n = ::read(Reading.nFile, pBuffer, static_cast<std::size_t>(nLength));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) Reading.sReason = StandardDescription(FailureNumber(errno));
    if (n > 0) Reading.nRead += static_cast<std::size_t>(n);
    return static_cast<int>(n);
  }
}

void Parse(TReading& Reading) {
  const ParserSettings Settings(Reading);
  const xmlParserCtxtPtr pContext = MakeContext(Reading);
  // NOENT has entities replaced by their text. What lies outside the file can't come in: see LoadNothing.
  const int nOptions = XML_PARSE_NOENT | XML_PARSE_NONET;
  const xmlDocPtr pDocument =
      xmlCtxtReadIO(pContext, ReadPiece, nullptr, &Reading, nullptr, nullptr, nOptions);
  if (!pDocument && !Reading.Failed()) Reading.sReason = "The document is not well formed";
  xmlFreeDoc(pDocument);
  xmlFreeParserCtxt(pContext);
}

std::string_view OpenReason(int nErrno) {
  return StandardDescription(nErrno == ENOENT ? Error::nFileNotFound : FailureNumber(nErrno));
}

}  // namespace

bool TXmlElement::HasAttribute(std::string_view sAttribute) const {
  return std::any_of(aAttributes.begin(), aAttributes.end(),
                     [&](const auto& a) { return a.first == sAttribute; });
}

const std::string& TXmlElement::Attribute(std::string_view sAttribute) const {
  for (const auto& [sItem, sValue] : aAttributes) {
    if (sItem == sAttribute) return sValue;
  }
  Raise(Error::nObjectNotSet);
}

TXmlDocument ReadXmlFile(const std::string& sPath, std::string_view sElementName, int nNumber) {
  if (sPath.find('\0') != sPath.npos) Raise(nNumber, StandardDescription(Error::nPathFileAccess));
  const Descriptor File(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
  if (File.Get() < 0) Raise(nNumber, OpenReason(errno));
  TReading Reading;
  Reading.sElementName = sElementName;
  Reading.nNumber = nNumber;
  Reading.nFile = File.Get();
  Parse(Reading);
  if (Reading.Thrown) std::rethrow_exception(Reading.Thrown);
  if (!Reading.sReason.empty()) Raise(nNumber, Reading.sReason);
  return std::move(Reading.Document);
}

bool IsXmlContent(std::string_view sBytes) {
  TReading Reading;
  Reading.aTextsLeft = {"<a>", sBytes, "</a>"};
  Parse(Reading);
  return !Reading.Failed();
}

}  // namespace vrek
