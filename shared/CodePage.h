#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace folionet {

// Whether the bytes of a site are in the charset that its pages declare.
enum class CharsetUse {
  kAsDeclared,  // they are, as browsers understand the charset
  kNotKnown,    // no browser knows the charset; the bytes are in it where ICU does, else in windows-1252
  kNotFit,      // the charset keeps states or holds ASCII otherwise; the bytes are in windows-1252
};

// The character set that a site's bytes are in. Texts of Versalia's files and of pages are bytes in it; texts that a
// person types or sees are UTF-8. Copies share one converter; use one CodePage from one thread only.
class CodePage {
 public:
  // The code page in which browsers read pages of this charset ("iso-8859-7", "utf-8"; windows-1252 for "iso-8859-1"),
  // or else that which ICU knows under this name, when it is stateless and holds ASCII as ASCII; windows-1252
  // otherwise.
  explicit CodePage(std::string_view charset = "windows-1252");

  // The name of the code page, in small letters.
  const std::string& Name() const;

  // How the code page fits the charset that it was made for.
  CharsetUse Use() const { return m_use; }

  // UTF-8 to bytes. A character that the code page lacks becomes a decimal character reference ("&#8212;"); bytes that
  // are not UTF-8 are kept as they are.
  std::string Encode(std::string_view utf8) const;

  // Whether the code page has all characters of a UTF-8 text, so that Encode writes none of them as a reference.
  bool Holds(std::string_view utf8) const;

  // Bytes to UTF-8. Bytes that do not decode are kept as they are, so that Encode gives them back.
  std::string Decode(std::string_view bytes) const;

  // Bytes to UTF-8 for showing: bytes that do not decode become U+FFFD.
  std::string DecodeForDisplay(std::string_view bytes) const;

  // The place of the first byte that stands for no character of a text, npos when all do: one that does not decode, or
  // one of the control characters U+0080 to U+009F that ICU gives for bytes without a meaning.
  std::size_t FindUndecodable(std::string_view bytes) const;

  // Simple case mapping of each character, in no language's manner. A character whose other case the code page lacks,
  // and bytes that do not decode, stay as they are.
  std::string ToLower(std::string_view bytes) const;
  std::string ToUpper(std::string_view bytes) const;

 private:
  class Converter;
  std::shared_ptr<const Converter> m_converter;
  CharsetUse m_use = CharsetUse::kAsDeclared;
};

}  // namespace folionet
