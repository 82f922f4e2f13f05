#include "TextDecoder.h"

#include <unicode/ucnv.h>

#include <algorithm>

#include "CharsetLabels.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFault.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;
constexpr std::size_t kPivot = std::size_t{16} << 10;

// By find(), which looks at many bytes at a time: all of a text passes here.
std::size_t LinesIn(std::string_view text) {
  std::size_t lines = 0;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) ++lines;
  return lines;
}

// How many bytes at the end of a text begin a character of UTF-8 that goes on behind it.
std::size_t UnfinishedLength(std::string_view text) {
  constexpr std::size_t kMost = 3;
  for (std::size_t length = 1; length <= std::min(kMost, text.size()); ++length) {
    const auto byte = static_cast<unsigned char>(text[text.size() - length]);
    if (byte < 0x80) return 0;
    if (byte >= 0xC0) {
      const std::size_t whole = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
      return length < whole ? length : 0;
    }
  }
  return 0;
}

// What stands between quotes behind "encoding=" in an XML declaration.
std::string EncodingOfXml(std::string_view head) {
  if (!head.starts_with("<?xml")) return {};
  const std::string_view declaration = head.substr(0, head.find("?>"));
  std::size_t at = declaration.find("encoding");
  if (at == std::string_view::npos) return {};
  at = declaration.find_first_of("\"'", at);
  if (at == std::string_view::npos) return {};
  const std::size_t end = declaration.find(declaration[at], at + 1);
  return end == std::string_view::npos ? std::string() : std::string(declaration.substr(at + 1, end - at - 1));
}

// The charset that a line \ide names: "1252 - Western", "CP-1252", "windows-1251", "UTF-8", "65001 - Unicode".
std::string EncodingOfUsfm(std::string_view head) {
  constexpr std::size_t kSearched = 4096;
  const std::string_view searched = head.substr(0, kSearched);
  const std::size_t at = searched.find("\\ide ");
  if (at == std::string_view::npos) return {};
  std::string_view line = searched.substr(at + 5);
  line = line.substr(0, line.find_first_of("\r\n\\"));
  for (const std::string_view number :
       {"1250", "1251", "1252", "1253", "1254", "1255", "1256", "1257", "1258", "874"}) {
    if (line.find(number) != std::string_view::npos) return "windows-" + std::string(number);
  }
  return {};
}

// An encoding of two bytes, by its byte-order mark or by the zeros of ASCII characters in it.
std::string WideEncoding(std::string_view head) {
  if (head.starts_with("\xFF\xFE")) return "UTF-16LE";
  if (head.starts_with("\xFE\xFF")) return "UTF-16BE";
  if (head.size() < 4) return {};
  if (head[1] == '\0' && head[3] == '\0' && head[0] != '\0') return "UTF-16LE";
  if (head[0] == '\0' && head[2] == '\0' && head[1] != '\0') return "UTF-16BE";
  return {};
}

// What ICU calls the charset that a text says it is in, as browsers read it: windows-1252 is iso-8859-1 to them.
std::string IcuNameOf(const std::string& charset) {
  const std::string_view encoding = BrowserEncoding(charset);
  const bool isOwn = encoding.empty() || encoding == "replacement" || encoding.starts_with("utf-16");
  return isOwn ? charset : IcuName(encoding);
}

}  // namespace

bool IsCharset(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_close(ucnv_open(IcuNameOf(name).c_str(), &status));
  return U_SUCCESS(status);
}

void TextDecoder::CloseConverter::operator()(UConverter* converter) const { ucnv_close(converter); }

TextDecoder::TextDecoder(ByteSource& bytes, const std::string& charset) : m_bytes(bytes) {
  FillRaw();
  ChooseEncoding(charset);
  Decode();
}

TextDecoder::~TextDecoder() = default;

void TextDecoder::FillRaw() {
  m_raw.resize(kPiece);
  m_end = m_raw.copy(m_raw.data(), m_end - m_start, m_start);
  m_start = 0;
  while (m_end < m_raw.size() && !m_isAtEnd) {
    const std::size_t count = m_bytes.Read(m_raw.data() + m_end, m_raw.size() - m_end);
    if (count == 0) m_isAtEnd = true;
    m_end += count;
  }
}

void TextDecoder::ChooseEncoding(const std::string& charset) {
  const std::string_view raw = Raw();
  if (raw.starts_with(kByteOrderMark)) {
    m_start = kByteOrderMark.size();
  } else if (const std::string wide = WideEncoding(raw); !wide.empty()) {
    OpenConverter(wide);
    if (raw.starts_with("\xFF\xFE") || raw.starts_with("\xFE\xFF")) m_start = 2;
  } else if (!charset.empty()) {
    OpenConverter(charset);
  } else if (const std::string named = EncodingOfXml(raw); !named.empty()) {
    OpenNamed(named);
  } else if (const std::string page = EncodingOfUsfm(raw); !page.empty()) {
    // Many a text that was turned into UTF-8 still names the code page that it was in before.
    const std::size_t unfinished = m_isAtEnd ? 0 : UnfinishedLength(raw);
    if (!IsUtf8(raw.substr(0, raw.size() - unfinished))) OpenConverter(page);
  }
}

// A declaration of UTF-16 is of no account here: it was made for the text before that was written as UTF-8.
void TextDecoder::OpenNamed(const std::string& charset) {
  if (AsciiLower(charset).starts_with("utf-16")) return;
  if (!IsCharset(charset)) {
    throw TextFault(
        {Words("Import", "the name of a charset, such as windows-1251, was expected: %1"), {Quoted(charset)}}, 1);
  }
  OpenConverter(charset);
}

void TextDecoder::OpenConverter(const std::string& charset) {
  const std::string name = IcuNameOf(charset);
  if (name == "utf-8") return;
  UErrorCode status = U_ZERO_ERROR;
  m_from.reset(ucnv_open(name.c_str(), &status));
  if (U_FAILURE(status)) {
    throw RunTimeError(kInvalidProcedureCall, "Charset " + Quoted(charset),
                       "The name of a charset, such as windows-1251, was expected.");
  }
  m_encoding = charset;
  m_to.reset(ucnv_open("UTF-8", &status));
  ucnv_setToUCallBack(m_from.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  if (U_FAILURE(status)) throw RunTimeError(kOutOfMemory, "Charset " + Quoted(charset));
  m_pivot.resize(kPivot * sizeof(UChar));
}

bool TextDecoder::Next(std::string_view& piece) {
  if (m_isGiven) {
    m_lines += LinesIn(m_text);
    m_text = {};
    while (m_text.empty() && m_faultLine == 0 && !(m_isAtEnd && Raw().empty())) {
      FillRaw();
      Decode();
    }
  }
  m_isGiven = true;
  if (m_text.empty() && m_faultLine != 0) {
    throw TextFault(
        {Words("Import",
               "text in %1 was expected; \"folionet-cli import --charset NAME\" reads one in another charset"),
         {m_encoding}},
        m_faultLine);
  }
  piece = m_text;
  return !m_text.empty();
}

void TextDecoder::NoteFault(std::size_t textBefore) {
  m_text = m_text.substr(0, textBefore);
  m_faultLine = m_lines + LinesIn(m_text) + 1;
}

void TextDecoder::Decode() {
  if (!m_from) return DecodeUtf8();
  constexpr std::size_t kMostPerByte = 4;
  m_decoded.resize(kPiece * kMostPerByte + kMostPerByte);
  auto* const pivot = reinterpret_cast<UChar*>(m_pivot.data());
  UChar* pivotSource = pivot;
  UChar* pivotTarget = pivot;
  char* target = m_decoded.data();
  const char* const targetEnd = target + m_decoded.size();
  const char* source = Raw().data();
  UErrorCode status = U_ZERO_ERROR;
  ucnv_convertEx(m_to.get(), m_from.get(), &target, targetEnd, &source, m_raw.data() + m_end, pivot, &pivotSource,
                 &pivotTarget, pivot + kPivot, false, m_isAtEnd ? 1 : 0, &status);
  const bool isFault = U_FAILURE(status);
  if (isFault) {
    // What is good stands still between the two converters.
    const UChar* good = pivotSource;
    status = U_ZERO_ERROR;
    ucnv_fromUnicode(m_to.get(), &target, targetEnd, &good, pivotTarget, nullptr, 1, &status);
  }
  m_text = std::string_view(m_decoded).substr(0, static_cast<std::size_t>(target - m_decoded.data()));
  m_start = m_end;
  EndLinesWithLf(m_decoded.data(), m_text.size());
  if (isFault) NoteFault(m_text.size());
}

// Lines that end in CR alone, as the beginning of the text tells, end in LF from here on.
void TextDecoder::EndLinesWithLf(char* text, std::size_t size) {
  if (m_isBeginning) {
    const std::string_view beginning(text, size);
    const std::size_t end = beginning.find('\r');
    m_hasCrAlone = end < size - 1 && beginning.find('\n') == std::string_view::npos;
    m_isBeginning = false;
  }
  if (m_hasCrAlone) std::replace(text, text + size, '\r', '\n');
}

void TextDecoder::DecodeUtf8() {
  const std::size_t unfinished = m_isAtEnd ? 0 : UnfinishedLength(Raw());
  m_text = Raw().substr(0, m_end - m_start - unfinished);
  EndLinesWithLf(m_raw.data() + m_start, m_text.size());
  m_start += m_text.size();
  const std::size_t good = Utf8Length(m_text);
  if (good == m_text.size()) return;
  m_start = m_end;
  NoteFault(good);
}

}  // namespace folionet
