#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "InputFiles.h"

struct UConverter;

namespace folionet {

// Whether `name` is that of a charset that a text can be in.
bool IsCharset(const std::string& name);

// The text of a file in UTF-8, piece by piece. Lines that end in CR alone end in LF. Its encoding is, in this order:
// what its byte-order mark tells; UTF-16 when it looks like that; the charset that was given; the one that it names
// itself (in an XML declaration or behind \ide); UTF-8.
class TextDecoder {
 public:
  // Reads the beginning. `charset` is empty when none was given. Throws RunTimeError for a charset that is not known,
  // TextFault where the file names it.
  TextDecoder(ByteSource& bytes, const std::string& charset);
  TextDecoder(const TextDecoder&) = delete;
  TextDecoder& operator=(const TextDecoder&) = delete;
  ~TextDecoder();

  // The beginning, as far as it can be decoded.
  std::string_view Head() const { return m_text; }

  // Gives the next piece, the beginning first; false at the end. It is valid until the next call. Throws TextFault for
  // bytes that are no text of the encoding.
  bool Next(std::string_view& piece);

 private:
  struct CloseConverter {
    void operator()(UConverter* converter) const;
  };
  using Converter = std::unique_ptr<UConverter, CloseConverter>;

  void ChooseEncoding(const std::string& charset);
  void OpenNamed(const std::string& charset);
  void OpenConverter(const std::string& charset);
  std::string_view Raw() const { return std::string_view(m_raw).substr(m_start, m_end - m_start); }
  void FillRaw();
  void Decode();
  void DecodeUtf8();
  void EndLinesWithLf(char* text, std::size_t size);
  void NoteFault(std::size_t textBefore);

  ByteSource& m_bytes;
  std::string m_encoding = "UTF-8";
  Converter m_from;  // none for UTF-8
  Converter m_to;
  std::string m_pivot;
  std::string m_raw;        // room for what is read; never shorter, so that it is not filled twice
  std::size_t m_start = 0;  // where in it the bytes begin that are not decoded yet
  std::size_t m_end = 0;
  std::string m_decoded;    // of bytes that are not UTF-8
  std::string_view m_text;  // what Next gives next, in one of the two
  bool m_isBeginning = true;
  bool m_hasCrAlone = false;  // at the ends of its lines
  bool m_isAtEnd = false;
  bool m_isGiven = false;
  std::size_t m_lines = 0;      // before m_text
  std::size_t m_faultLine = 0;  // of bytes that cannot be decoded, behind m_text; 0 for none
};

}  // namespace folionet
