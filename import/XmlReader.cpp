#include "XmlReader.h"

#include <algorithm>
#include <new>
#include <string>

#include "LateLibrary.h"
#include "Text.h"
#include "TextFault.h"

namespace folionet {
namespace {

// The routines of libxml2 that are used.
struct XmlLibrary {
  XmlLibrary() {
    const LateLibrary library(FOLIONET_LIBXML2, "XML files");
    library.Find(createPushParser, "xmlCreatePushParserCtxt");
    library.Find(useOptions, "xmlCtxtUseOptions");
    library.Find(parseChunk, "xmlParseChunk");
    library.Find(stopParser, "xmlStopParser");
    library.Find(lineNumber, "xmlSAX2GetLineNumber");
    library.Find(freeParser, "xmlFreeParserCtxt");
    library.Find(freeDocument, "xmlFreeDoc");
  }

  decltype(xmlCreatePushParserCtxt)* createPushParser = nullptr;
  decltype(xmlCtxtUseOptions)* useOptions = nullptr;
  decltype(xmlParseChunk)* parseChunk = nullptr;
  decltype(xmlStopParser)* stopParser = nullptr;
  decltype(xmlSAX2GetLineNumber)* lineNumber = nullptr;
  decltype(xmlFreeParserCtxt)* freeParser = nullptr;
  decltype(xmlFreeDoc)* freeDocument = nullptr;
};

const XmlLibrary& Library() {
  static const XmlLibrary library;
  return library;
}

std::string_view View(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

const xmlChar* BytesOf(const char* text) { return reinterpret_cast<const xmlChar*>(text != nullptr ? text : ""); }

}  // namespace

std::string_view XmlElement::Get(std::string_view attribute) const {
  constexpr int kFields = 5;  // name, prefix, URI, begin and end of the value
  for (int i = 0; i < m_count; ++i) {
    const xmlChar** const fields = m_attributes + static_cast<std::ptrdiff_t>(i) * kFields;
    if (View(fields[0]) == attribute) {
      return {reinterpret_cast<const char*>(fields[3]), static_cast<std::size_t>(fields[4] - fields[3])};
    }
  }
  return {};
}

XmlReader::XmlReader(XmlHandler& handler) : m_handler(handler) {
  xmlSAXHandler sax{};
  sax.initialized = XML_SAX2_MAGIC;
  sax.startElementNs = OnStart;
  sax.endElementNs = OnEnd;
  sax.characters = OnText;
  sax.cdataBlock = OnText;
  sax.ignorableWhitespace = OnText;
  sax.entityDecl = OnEntity;
  sax.serror = [](void* self, auto* error) { static_cast<XmlReader*>(self)->TakeError(*error); };
  m_context = Library().createPushParser(&sax, this, nullptr, 0, nullptr);
  if (m_context == nullptr) throw std::bad_alloc();
  Library().useOptions(m_context, XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC | XML_PARSE_RECOVER |
                                      XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
}

XmlReader::~XmlReader() {
  // Of the entities that a file declares the library makes a document, and leaves it behind.
  if (m_context->myDoc != nullptr) Library().freeDocument(m_context->myDoc);
  Library().freeParser(m_context);
}

std::size_t XmlReader::Line() const { return static_cast<std::size_t>(std::max(0, Library().lineNumber(m_context))); }

template <typename Call>
void XmlReader::Guarded(Call call) {
  if (m_thrown) return;
  try {
    call();
  } catch (...) {
    m_thrown = std::current_exception();
    Library().stopParser(m_context);
  }
}

// libxml2 calls it with all of these.
// NOLINTNEXTLINE(readability-function-size)
void XmlReader::OnStart(void* self, const xmlChar* name, const xmlChar* /*prefix*/, const xmlChar* /*uri*/,
                        int /*namespaceCount*/, const xmlChar** /*namespaces*/, int count, int /*defaulted*/,
                        const xmlChar** attributes) {
  XmlReader& reader = *static_cast<XmlReader*>(self);
  reader.Guarded([&] {
    if (reader.m_depth >= kDeepest) {
      throw TextFault({Words("Import", "elements at most %1 deep were expected"), {std::to_string(kDeepest)}},
                      reader.Line());
    }
    if (reader.m_opened.size() == reader.m_depth) reader.m_opened.emplace_back();
    Opened& opened = reader.m_opened[reader.m_depth++];
    opened.name = View(name);
    opened.line = reader.Line();
    reader.m_handler.Start(XmlElement(View(name), attributes, count));
  });
}

// The library ends the innermost element, whatever the name of the end.
void XmlReader::OnEnd(void* self, const xmlChar* name, const xmlChar* /*prefix*/, const xmlChar* /*uri*/) {
  XmlReader& reader = *static_cast<XmlReader*>(self);
  reader.Guarded([&] {
    reader.EndElement(reader.m_misfit.empty() ? View(name) : reader.m_misfit);
    reader.m_misfit.clear();
  });
}

void XmlReader::EndElement(std::string_view name) {
  if (m_depth != 0 && m_opened[m_depth - 1].name == name) {
    --m_depth;
    m_handler.End(name);
    return;
  }
  if (!m_handler.PutsUpWithEnd(name)) {
    throw TextFault({Words("Import", "well-formed XML was expected: the end of %1, not of %2"),
                     {m_opened[m_depth - 1].name, std::string(name)}},
                    Line());
  }
  m_hasMisfits = true;
  const auto end = m_opened.begin() + static_cast<std::ptrdiff_t>(m_depth);
  if (std::none_of(m_opened.begin(), end, [&](const Opened& opened) { return opened.name == name; })) return;
  for (bool isIt = false; !isIt;) {
    --m_depth;
    isIt = m_opened[m_depth].name == name;
    m_handler.End(m_opened[m_depth].name);
  }
}

void XmlReader::FailAtEnd() const {
  const Opened& last = m_opened[m_depth - 1];
  throw TextFault({Words("Import", "well-formed XML was expected: the end of %1 (line %2), not of the file"),
                   {last.name, std::to_string(last.line)}},
                  Line());
}

void XmlReader::TakeError(const xmlError& error) {
  // One that a file elsewhere would declare: its character would be lost.
  if (error.code == XML_WAR_UNDECLARED_ENTITY) return OnEntity(this, BytesOf(error.str1), 0, nullptr, nullptr, nullptr);
  if (error.level != XML_ERR_FATAL) return;
  if (error.code == XML_ERR_TAG_NAME_MISMATCH && error.str2 != nullptr) {
    m_misfit = error.str2;
    m_misfit.erase(0, m_misfit.find(':') + 1);
    return;
  }
  const bool isCut = m_isFinishing && (error.code == XML_ERR_TAG_NOT_FINISHED || error.code == XML_ERR_DOCUMENT_END);
  // What is open to the library at the end of the file may have been ended by a misfit.
  if (isCut && m_depth == 0 && m_hasMisfits) return;
  Guarded([&] {
    if (isCut && m_depth != 0) FailAtEnd();
    std::string why = error.message != nullptr ? error.message : "it cannot be read";
    while (why.ends_with('\n') || why.ends_with(' ')) why.pop_back();
    throw TextFault({Words("Import", "well-formed XML was expected: %1"), {why}},
                    error.line > 0 ? static_cast<std::size_t>(error.line) : Line());
  });
}

void XmlReader::OnText(void* self, const xmlChar* text, int length) {
  XmlReader& reader = *static_cast<XmlReader*>(self);
  reader.Guarded([&] {
    reader.m_handler.Text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
  });
}

void XmlReader::OnEntity(void* self, const xmlChar* name, int /*type*/, const xmlChar* /*publicId*/,
                         const xmlChar* /*systemId*/, xmlChar* /*content*/) {
  XmlReader& reader = *static_cast<XmlReader*>(self);
  reader.Guarded([&] {
    throw TextFault({Words("Import", "a text without entities of its own was expected: %1"), {Quoted(View(name))}},
                    reader.Line());
  });
}

void XmlReader::Parse(const char* text, int length, bool isLast) {
  Library().parseChunk(m_context, text, length, isLast ? 1 : 0);
  if (m_thrown) std::rethrow_exception(m_thrown);
}

void XmlReader::Read(std::string_view piece) {
  // A piece is short enough for the library's numbers, and for its memory.
  constexpr std::size_t kMost = std::size_t{1} << 20;
  for (; !piece.empty(); piece.remove_prefix(std::min(kMost, piece.size()))) {
    Parse(piece.data(), static_cast<int>(std::min(kMost, piece.size())), false);
  }
}

void XmlReader::Finish() {
  m_isFinishing = true;
  Parse(nullptr, 0, true);
  if (m_depth != 0) FailAtEnd();
}

}  // namespace folionet
