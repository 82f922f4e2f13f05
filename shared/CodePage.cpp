#include "CodePage.h"

#include <unicode/uchar.h>
#include <unicode/ucnv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "CharsetLabels.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Utf8.h"

namespace folionet {
namespace {

constexpr char kDefaultName[] = "windows-1252";

void AppendUtf8(std::string& text, UChar32 character) { folionet::AppendUtf8(text, static_cast<char32_t>(character)); }

// iso-8859-16 from 0xA0 on, which ICU lacks and browsers know. The bytes before stand for themselves.
constexpr std::array<char16_t, 96> kIso8859_16{
    0xA0,  0x104, 0x105, 0x141, 0x20AC, 0x201E, 0x160, 0xA7,  0x161, 0xA9,  0x218, 0xAB, 0x179, 0xAD,  0x17A, 0x17B,
    0xB0,  0xB1,  0x10C, 0x142, 0x17D,  0x201D, 0xB6,  0xB7,  0x17E, 0x10D, 0x219, 0xBB, 0x152, 0x153, 0x178, 0x17C,
    0xC0,  0xC1,  0xC2,  0x102, 0xC4,   0x106,  0xC6,  0xC7,  0xC8,  0xC9,  0xCA,  0xCB, 0xCC,  0xCD,  0xCE,  0xCF,
    0x110, 0x143, 0xD2,  0xD3,  0xD4,   0x150,  0xD6,  0x15A, 0x170, 0xD9,  0xDA,  0xDB, 0xDC,  0x118, 0x21A, 0xDF,
    0xE0,  0xE1,  0xE2,  0x103, 0xE4,   0x107,  0xE6,  0xE7,  0xE8,  0xE9,  0xEA,  0xEB, 0xEC,  0xED,  0xEE,  0xEF,
    0x111, 0x144, 0xF2,  0xF3,  0xF4,   0x151,  0xF6,  0x15B, 0x171, 0xF9,  0xFA,  0xFB, 0xFC,  0x119, 0x21B, 0xFF};
constexpr unsigned char kFirstOfTable = 0xA0;

// A letter that browsers read otherwise than ICU.
struct Difference {
  std::string_view encoding;
  std::string_view bytes;
  UChar32 character;
};
constexpr std::array<Difference, 4> kDifferences{{{"gbk", "\xA2\xE3", 0x20AC},
                                                  {"koi8-u", "\xAE", 0x45E},
                                                  {"koi8-u", "\xBE", 0x40E},
                                                  {"windows-1255", "\xCA", 0x5BA}}};

bool IsStatelessType(UConverterType type) {
  return type == UCNV_SBCS || type == UCNV_MBCS || type == UCNV_DBCS || type == UCNV_UTF8 || type == UCNV_LATIN_1 ||
         type == UCNV_US_ASCII;
}

}  // namespace

// Opens ICU's converter at the first text that is not plain ASCII: most runs over English text never need it.
class CodePage::Converter {
 public:
  explicit Converter(std::string name)
      : m_name(std::move(name)),
        m_icuName(IcuName(m_name)),
        m_isUtf8(m_name == "utf-8"),
        m_hasTable(m_name == "iso-8859-16"),
        m_differs(std::any_of(kDifferences.begin(), kDifferences.end(),
                              [&](const Difference& row) { return row.encoding == m_name; })) {}

  const std::string& Name() const { return m_name; }
  bool IsUtf8() const { return m_isUtf8; }

  // Whether there is such a converter at all, whatever its texts look like.
  bool IsKnown() const {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, Close> converter(ucnv_open(m_icuName.c_str(), &error));
    return m_name == "replacement" || (U_SUCCESS(error) && !m_name.empty());
  }

  // Whether pages can be in it. Opens the converter.
  bool IsUsable() const {
    if (m_name.empty()) return false;
    if (m_hasTable) return true;
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, Close> converter(ucnv_open(m_icuName.c_str(), &error));
    return U_SUCCESS(error) && IsStatelessType(ucnv_getType(converter.get())) && HoldsAscii(converter.get());
  }

  template <typename Take>
  void ForEach(std::string_view bytes, Take take) const {
    if (m_isUtf8) {
      ForEachUtf8(bytes, take);
      return;
    }
    if (m_hasTable) {
      for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        take(Piece{byte < kFirstOfTable ? byte : kIso8859_16[byte - kFirstOfTable], bytes.substr(i, 1)});
      }
      return;
    }
    UConverter* converter = Handle();
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at < end) {
      // ASCII is ASCII in every code page that is let in, though ICU may exchange some control characters.
      if (const auto byte = static_cast<unsigned char>(*at); byte < 0x80) {
        take(Piece{byte, {at, 1}});
        ++at;
        continue;
      }
      UErrorCode error = U_ZERO_ERROR;
      const char* next = at;
      ucnv_resetToUnicode(converter);
      UChar32 character = ucnv_getNextUChar(converter, &next, end, &error);
      if (U_FAILURE(error)) {
        character = kUndecodable;
        next = at + 1;
      }
      const std::string_view read(at, static_cast<std::size_t>(next - at));
      const Difference* const other = m_differs ? FindDifference(read) : nullptr;
      take(Piece{other != nullptr ? other->character : character, read});
      at = next;
    }
  }

  // Appends the bytes of a character; false when the code page lacks it.
  bool Append(std::string& bytes, UChar32 character) const {
    if (m_isUtf8 || character < 0x80) {
      AppendUtf8(bytes, character);
      return true;
    }
    if (m_hasTable) return AppendOfTable(bytes, character);
    if (m_differs) {
      const auto* const row = std::find_if(kDifferences.begin(), kDifferences.end(), [&](const Difference& difference) {
        return difference.encoding == m_name && difference.character == character;
      });
      if (row != kDifferences.end()) {
        bytes += row->bytes;
        return true;
      }
    }
    std::array<UChar, 2> units{};
    int32_t length = 0;
    U16_APPEND_UNSAFE(units.data(), length, character);
    std::array<char, 16> buffer{};
    UErrorCode error = U_ZERO_ERROR;
    UConverter* converter = Handle();
    const int32_t written =
        ucnv_fromUChars(converter, buffer.data(), static_cast<int32_t>(buffer.size()), units.data(), length, &error);
    // ICU passes over a character without a shape of its own that the code page lacks, as if that were a success.
    if (U_FAILURE(error) || written == 0) return false;
    const std::string_view made(buffer.data(), static_cast<std::size_t>(written));
    if (m_differs && FindDifference(made) != nullptr) return false;
    bytes += made;
    return true;
  }

 private:
  struct Close {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
  };

  const Difference* FindDifference(std::string_view bytes) const {
    const auto* const row = std::find_if(kDifferences.begin(), kDifferences.end(), [&](const Difference& difference) {
      return difference.encoding == m_name && difference.bytes == bytes;
    });
    return row == kDifferences.end() ? nullptr : row;
  }

  static bool AppendOfTable(std::string& bytes, UChar32 character) {
    const auto* const found = std::find(kIso8859_16.begin(), kIso8859_16.end(), character);
    const bool isBelow = character < kFirstOfTable;
    if (found == kIso8859_16.end() && !isBelow) return false;
    bytes += static_cast<char>(isBelow ? character : kFirstOfTable + (found - kIso8859_16.begin()));
    return true;
  }

  // Looks at the characters that texts are made of, and passes over the control characters: ICU's shift_jis and ibm866
  // exchange 0x1A, 0x1C and 0x7F.
  static bool HoldsAscii(UConverter* converter) {
    for (int c = ' '; c < 0x7F; ++c) {
      const char byte = static_cast<char>(c);
      const char* at = &byte;
      UErrorCode error = U_ZERO_ERROR;
      ucnv_resetToUnicode(converter);
      if (ucnv_getNextUChar(converter, &at, &byte + 1, &error) != c || U_FAILURE(error)) return false;
    }
    return true;
  }

  UConverter* Handle() const {
    if (m_handle == nullptr) {
      UErrorCode error = U_ZERO_ERROR;
      m_handle.reset(ucnv_open(m_icuName.c_str(), &error));
      if (U_FAILURE(error)) throw RunTimeError(kOutOfMemory, m_name, u_errorName(error));
      ucnv_setToUCallBack(m_handle.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
      ucnv_setFromUCallBack(m_handle.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
      ucnv_setFallback(m_handle.get(), false);
    }
    return m_handle.get();
  }

  std::string m_name;
  std::string m_icuName;
  bool m_isUtf8;
  bool m_hasTable;  // kIso8859_16
  bool m_differs;   // in one of kDifferences
  mutable std::unique_ptr<UConverter, Close> m_handle;
};

CodePage::CodePage(std::string_view charset) {
  std::string name(BrowserEncoding(charset));
  if (name.empty()) {
    m_use = CharsetUse::kNotKnown;
    name = AsciiLower(charset);
  }
  m_converter = std::make_shared<Converter>(name);
  // The two names that nearly every site uses need no asking.
  if (name == kDefaultName || name == "utf-8" || m_converter->IsUsable()) return;
  // What browsers take for another thing than a charset of pages is not known to them as one either.
  m_use = m_converter->IsKnown() ? CharsetUse::kNotFit : CharsetUse::kNotKnown;
  m_converter = std::make_shared<Converter>(kDefaultName);
}

const std::string& CodePage::Name() const { return m_converter->Name(); }

std::string CodePage::Encode(std::string_view utf8) const {
  if (m_converter->IsUtf8() || IsAscii(utf8)) return std::string(utf8);
  std::string bytes;
  bytes.reserve(utf8.size());
  ForEachUtf8(utf8, [&](const Piece& piece) {
    if (piece.character == kUndecodable) {
      bytes += piece.bytes;
    } else if (!m_converter->Append(bytes, piece.character)) {
      bytes += "&#" + std::to_string(piece.character) + ";";
    }
  });
  return bytes;
}

bool CodePage::Holds(std::string_view utf8) const {
  std::string bytes;
  while (!m_converter->IsUtf8()) {
    utf8.remove_prefix(AsciiLength(utf8));
    if (utf8.empty()) break;
    int32_t length = 0;
    const UChar32 character = FirstUtf8(utf8.substr(0, U8_MAX_LENGTH), length);
    bytes.clear();
    if (character >= 0 && !m_converter->Append(bytes, character)) return false;
    utf8.remove_prefix(character < 0 ? 1 : static_cast<std::size_t>(length));
  }
  return true;
}

std::string CodePage::Decode(std::string_view bytes) const {
  if (m_converter->IsUtf8() || IsAscii(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() * 2);
  m_converter->ForEach(bytes, [&](const Piece& piece) {
    if (piece.character == kUndecodable) {
      text += piece.bytes;
    } else {
      AppendUtf8(text, piece.character);
    }
  });
  return text;
}

std::string CodePage::DecodeForDisplay(std::string_view bytes) const {
  if (IsAscii(bytes)) return std::string(bytes);
  std::string text;
  m_converter->ForEach(
      bytes, [&](const Piece& piece) { AppendUtf8(text, piece.character == kUndecodable ? 0xFFFD : piece.character); });
  return text;
}

std::size_t CodePage::FindUndecodable(std::string_view bytes) const {
  if (IsAscii(bytes)) return std::string_view::npos;
  std::size_t found = std::string_view::npos;
  m_converter->ForEach(bytes, [&](const Piece& piece) {
    const bool isControl = piece.character >= 0x80 && piece.character < 0xA0;
    if ((piece.character == kUndecodable || isControl) && found == std::string_view::npos) {
      found = static_cast<std::size_t>(piece.bytes.data() - bytes.data());
    }
  });
  return found;
}

namespace {

// `ascii` maps a character of ASCII, `any` one of any kind.
template <typename Converter>
std::string MapCase(const Converter& converter, std::string_view bytes, char (*ascii)(char), UChar32 (*any)(UChar32)) {
  std::string mapped;
  mapped.reserve(bytes.size());
  if (IsAscii(bytes)) {
    for (const char c : bytes) mapped += ascii(c);
    return mapped;
  }
  converter.ForEach(bytes, [&](const Piece& piece) {
    const UChar32 other = piece.character == kUndecodable ? kUndecodable : any(piece.character);
    if (other == piece.character || !converter.Append(mapped, other)) mapped += piece.bytes;
  });
  return mapped;
}

}  // namespace

std::string CodePage::ToLower(std::string_view bytes) const {
  return MapCase(*m_converter, bytes, AsciiLower, u_tolower);
}

std::string CodePage::ToUpper(std::string_view bytes) const {
  return MapCase(*m_converter, bytes, AsciiUpper, u_toupper);
}

}  // namespace folionet
