#pragma once

#include <libxml/parser.h>

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace folionet {

// The start of an element as libxml2 gives it: names without their prefix, values with their references replaced.
class XmlElement {
 public:
  XmlElement(std::string_view name, const xmlChar** attributes, int count)
      : m_name(name), m_attributes(attributes), m_count(count) {}

  std::string_view Name() const { return m_name; }

  // The value of an attribute, empty when there is none.
  std::string_view Get(std::string_view attribute) const;

 private:
  std::string_view m_name;
  const xmlChar** m_attributes;
  int m_count;
};

// What reads a kind of XML.
class XmlHandler {
 public:
  virtual ~XmlHandler() = default;
  virtual void Start(const XmlElement& element) = 0;
  virtual void End(std::string_view name) = 0;
  virtual void Text(std::string_view text) = 0;

  // Whether an end that does not fit is put up with: elements within the one that ends end too, and the end of one that
  // is not open is passed over. Called for each such end.
  virtual bool PutsUpWithEnd(std::string_view /*name*/) { return false; }
};

// Reads an XML file through libxml2, piece by piece, in little memory. The text is UTF-8, whatever its declaration
// says. Files that declare entities are refused, as are elements that are nested too deep; nothing is ever fetched.
class XmlReader {
 public:
  // An element is at most so deep.
  static constexpr std::size_t kDeepest = 200;

  explicit XmlReader(XmlHandler& handler);
  XmlReader(const XmlReader&) = delete;
  XmlReader& operator=(const XmlReader&) = delete;
  ~XmlReader();

  // Reads on, up to the end of what is known of the file. Throws what the handler throws, and TextFault where
  // the file is no well-formed XML.
  void Read(std::string_view piece);
  void Finish();

  // The line at hand, from 1.
  std::size_t Line() const;

 private:
  static void OnStart(void* self, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                      const xmlChar** namespaces, int count, int defaulted, const xmlChar** attributes);
  static void OnEnd(void* self, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri);
  static void OnText(void* self, const xmlChar* text, int length);
  static void OnEntity(void* self, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                       xmlChar* content);
  [[noreturn]] void FailAtEnd() const;
  void TakeError(const xmlError& error);
  void EndElement(std::string_view name);

  template <typename Call>
  void Guarded(Call call);
  void Parse(const char* text, int length, bool isLast);

  XmlHandler& m_handler;
  xmlParserCtxtPtr m_context = nullptr;
  struct Opened {
    std::string name;
    std::size_t line = 0;
  };
  std::vector<Opened> m_opened;  // the elements that are open, and some that were
  std::size_t m_depth = 0;       // how many are open
  std::string m_misfit;          // the name of an end that does not fit, while it is being told
  bool m_hasMisfits = false;
  bool m_isFinishing = false;
  std::exception_ptr m_thrown;  // no exception may pass through the library
};

}  // namespace folionet
