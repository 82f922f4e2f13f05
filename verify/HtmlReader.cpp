#include "HtmlReader.h"

#include <libxml/HTMLparser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <array>
#include <climits>
#include <exception>
#include <memory>
#include <utility>

#include "CharacterReferences.h"
#include "LateLibrary.h"
#include "Text.h"

namespace folionet {
namespace {

// The routines of libxml2 that are used here.
struct Library {
  Library() : library(FOLIONET_LIBXML2, "HTML pages") {
    library.Find(newParser, "htmlNewParserCtxt");
    library.Find(freeParser, "htmlFreeParserCtxt");
    library.Find(read, "htmlCtxtReadMemory");
    library.Find(popElement, "namePop");
    library.Find(stop, "xmlStopParser");
  }

  static const Library& Loaded() {
    static const Library loaded;
    return loaded;
  }

  LateLibrary library;
  decltype(&htmlNewParserCtxt) newParser = nullptr;
  decltype(&htmlFreeParserCtxt) freeParser = nullptr;
  decltype(&htmlCtxtReadMemory) read = nullptr;
  decltype(&namePop) popElement = nullptr;
  decltype(&xmlStopParser) stop = nullptr;
};

// Elements whose content is no markup.
constexpr std::array<std::string_view, 8> kRawElements{"script", "style",   "title",    "textarea",
                                                       "iframe", "noembed", "noframes", "xmp"};

bool SameLower(char a, char lower) { return AsciiLower(a) == lower; }

std::string_view Text(const xmlChar* text) {
  return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

// The first place from `at` on where a page has this lower-case text in any letter case; its end when there is none.
std::size_t FindLower(std::string_view page, std::string_view lower, std::size_t at) {
  const auto* const found =
      std::search(page.begin() + static_cast<std::ptrdiff_t>(at), page.end(), lower.begin(), lower.end(), SameLower);
  return static_cast<std::size_t>(found - page.begin());
}

// Sees when a tag has more attributes than any page's: the library compares each with all before it.
class AttributeCounter {
 public:
  // Takes the next byte of a page; true when the tag had better end before it.
  bool IsTooMany(char c) {
    const char previous = std::exchange(m_previous, c);
    const bool isBlank = kBlanks.find(c) != std::string_view::npos;
    const bool isTooMany = m_isTag && m_count > kMost;
    if (isTooMany) m_isTag = false;
    const char last = isBlank ? m_last : std::exchange(m_last, c);
    if (!m_isTag) {
      m_isTag = previous == '<' && ((c | 0x20) >= 'a' && (c | 0x20) <= 'z');
      m_count = 0;
    } else if (m_quote != '\0') {
      if (c == m_quote) {
        m_quote = '\0';
        ++m_count;
      }
    } else if ((c == '"' || c == '\'') && last == '=') {
      m_quote = c;
    } else if (c == '>') {
      m_isTag = false;
    } else if (isBlank && kBlanks.find(previous) == std::string_view::npos) {
      ++m_count;
    }
    return isTooMany;
  }

 private:
  static constexpr int kMost = 500;
  static constexpr std::string_view kBlanks = " \t\r\n\f";

  bool m_isTag = false;
  char m_quote = '\0';     // that the value at hand stands in
  char m_previous = '\0';  // the byte before
  char m_last = '\0';      // the last one that is no blank
  int m_count = 0;
};

constexpr std::string_view kEscapedAmpersand = "&amp;";

// The page as the library must have it to read it as browsers do, and in good time: to them "<!-->" is a whole comment,
// and a zero byte is no end. Character references are left to us, for the library knows those of HTML 4.
std::string Prepared(std::string_view page) {
  std::string prepared;
  prepared.reserve(page.size());
  AttributeCounter attributes;
  for (const char c : page) {
    if (attributes.IsTooMany(c)) prepared += '>';
    if (c == '>') prepared += prepared.ends_with("<!--") ? "--" : prepared.ends_with("<!---") ? "-" : "";
    if (c == '\0') {
      prepared += "\uFFFD";
    } else if (c == '&') {
      prepared += kEscapedAmpersand;
    } else {
      prepared += c;
    }
  }
  return prepared;
}

// What Prepared made a text of before.
std::string AsItWas(std::string_view prepared) {
  std::string text;
  for (std::size_t at = prepared.find(kEscapedAmpersand); at != std::string_view::npos;
       at = prepared.find(kEscapedAmpersand)) {
    text += prepared.substr(0, at + 1);
    prepared.remove_prefix(at + kEscapedAmpersand.size());
  }
  return text.append(prepared);
}

class TagReader {
 public:
  TagReader(std::string_view page, const std::function<bool(const HtmlTag&)>& take)
      : m_text(Prepared(page)), m_page(m_text), m_take(take), m_parser(m_library.newParser(), m_library.freeParser) {}

  void Read() {
    if (m_parser == nullptr) throw RunTimeError(kOutOfMemory, "HTML");
    if (m_page.size() > INT_MAX) throw RunTimeError(kOverflow, "HTML", "The page is larger than 2 GiB");
    *m_parser->sax = {};
    m_parser->sax->startElement = TakeTag;
    m_parser->_private = this;
    constexpr int kOptions = HTML_PARSE_RECOVER | HTML_PARSE_NOIMPLIED | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING |
                             HTML_PARSE_NONET | HTML_PARSE_IGNORE_ENC;
    m_library.read(m_parser.get(), m_page.data(), static_cast<int>(m_page.size()), nullptr, "UTF-8", kOptions);
    if (m_failure) std::rethrow_exception(m_failure);
  }

 private:
  static void TakeTag(void* context, const xmlChar* name, const xmlChar** attributes) {
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    auto* const self = static_cast<TagReader*>(parser->_private);
    try {
      if (!self->Take(Text(name), attributes)) self->m_library.stop(parser);
    } catch (...) {
      self->m_failure = std::current_exception();
      self->m_library.stop(parser);
    }
  }

  bool Take(std::string_view element, const xmlChar** attributes) {
    // Elements are not nested here: an end tag would be looked for in all that are open, and a second <body>, whose
    // background browsers show, would be dropped.
    m_library.popElement(m_parser.get());
    const xmlParserInput& input = *m_parser->input;
    const std::size_t end = input.consumed + static_cast<std::size_t>(input.cur - input.base);
    const std::size_t start = std::exchange(m_lastEnd, std::clamp(end, m_lastEnd, m_page.size()));
    HtmlTag tag{std::string(element), {}, 0, m_lastEnd, {}};
    AddAttributes(tag, attributes, m_page.substr(start, m_lastEnd - start));
    tag.line = LineAt(m_lastEnd);
    if (std::find(kRawElements.begin(), kRawElements.end(), element) != kRawElements.end()) {
      std::size_t content = std::min(m_lastEnd + 1, m_page.size());
      // A tag without its end may be cut within a character.
      while (content < m_page.size() && (static_cast<unsigned char>(m_page[content]) & 0xC0U) == 0x80U) ++content;
      const std::string_view passed = m_page.substr(content, EndTag(tag.element, content) - content);
      if (element == "style") tag.style = AsItWas(passed);
      Skip(content + passed.size() - m_lastEnd);
    }
    return m_take(tag);
  }

  // Where the end tag of an element begins; the page's end when there is none.
  std::size_t EndTag(const std::string& element, std::size_t from) const {
    constexpr std::string_view kBehindName = "> /\t\r\n\f";
    const std::string tag = "</" + element;
    std::size_t at = FindLower(m_page, tag, from);
    while (at + tag.size() < m_page.size() && kBehindName.find(m_page[at + tag.size()]) == std::string_view::npos) {
      at = FindLower(m_page, tag, at + tag.size());
    }
    return at;
  }

  // Lets the library go on so many bytes further.
  void Skip(std::size_t bytes) {
    xmlParserInput& input = *m_parser->input;
    input.cur += std::min(static_cast<std::ptrdiff_t>(bytes), input.end - input.cur);
  }

  // `text` is the page from the end of the last tag to that of this one.
  void AddAttributes(HtmlTag& tag, const xmlChar** attributes, std::string_view text) {
    if (attributes == nullptr) return;
    const std::string opening = "<" + tag.element;
    const auto* const start = std::find_end(text.begin(), text.end(), opening.begin(), opening.end(), SameLower);
    text.remove_prefix(start == text.end() ? 0 : static_cast<std::size_t>(start - text.begin()));
    for (; *attributes != nullptr; attributes += 2) {
      tag.attributes.push_back({std::string(Text(attributes[0])), WithoutCharacterReferences(Text(attributes[1])), 0});
    }
    SetLines(tag, text);
  }

  // The library tells where a tag ends, and not where its attributes stand.
  void SetLines(HtmlTag& tag, std::string_view text) {
    std::size_t at = 0;
    for (HtmlAttribute& attribute : tag.attributes) {
      const std::size_t found = FindLower(text, attribute.name, at);
      if (found < text.size()) at = found;
      attribute.line = LineAt(m_lastEnd - text.size() + at);
    }
  }

  // The line of a place, which must not be before that of the last call.
  std::size_t LineAt(std::size_t place) {
    const auto from = static_cast<std::ptrdiff_t>(std::min(m_counted, place));
    m_line += static_cast<std::size_t>(
        std::count(m_page.begin() + from, m_page.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
    m_counted = std::max(m_counted, place);
    return m_line;
  }

  const Library& m_library = Library::Loaded();
  const std::string m_text;
  std::string_view m_page;
  const std::function<bool(const HtmlTag&)>& m_take;
  std::unique_ptr<xmlParserCtxt, decltype(&htmlFreeParserCtxt)> m_parser;
  std::exception_ptr m_failure;
  std::size_t m_lastEnd = 0;  // of the last tag
  std::size_t m_line = 1;
  std::size_t m_counted = 0;  // the lines up to here are in m_line
};

}  // namespace

const std::string* HtmlTag::Find(std::string_view name) const {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const HtmlAttribute& attribute) { return attribute.name == name; });
  return found == attributes.end() ? nullptr : &found->value;
}

void ReadHtml(std::string_view page, const std::function<bool(const HtmlTag&)>& take) { TagReader(page, take).Read(); }

}  // namespace folionet
