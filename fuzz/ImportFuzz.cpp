// Reads any bytes as a Bible text. The first byte tells the form, and how long the pieces are in which it is read: the
// Bible that comes of it is the same as of the text in one piece.

#include <algorithm>

#include "BibleBuilder.h"
#include "FuzzFiles.h"
#include "ImportText.h"
#include "LibraryWriter.h"
#include "RunTimeError.h"
#include "TextDecoder.h"
#include "TextFault.h"
#include "TextForm.h"
#include "Utf8.h"
#include "VerseFileReader.h"

namespace folionet::fuzz {
namespace {

class MemoryBytes : public ByteSource {
 public:
  explicit MemoryBytes(std::string_view bytes) : m_bytes(bytes) {}

  std::size_t Read(char* bytes, std::size_t size) override {
    const std::size_t count = m_bytes.copy(bytes, size);
    m_bytes.remove_prefix(count);
    return count;
  }

 private:
  std::string_view m_bytes;
};

void CheckText(std::string_view text) {
  const auto isOdd = [](unsigned char c) { return c < ' ' || c == 0x7F || c == '<' || c == '>'; };
  if (!IsUtf8(text) || std::any_of(text.begin(), text.end(), isOdd)) std::abort();
}

// All that was read, one behind the other; everything in it may stand in a line of the library and in a page.
std::string Told(const ImportedBible& bible) {
  std::string all = bible.name + "\n" + bible.language + "\n";
  for (const std::string& title : bible.titles) all += title + "\n";
  for (const LeftOutBook& book : bible.leftOut) all += book.name + "\n";
  for (const Finding& finding : bible.findings.Kept()) all += finding.what.InEnglish() + "\n";
  std::pair<int, int> last;
  for (std::size_t i = 0; i < bible.VerseCount(); ++i) {
    const ImportedBible::Verse verse = bible.VerseAt(i);
    const std::pair<int, int> place(verse.book, verse.chapter);
    if (place < last || place < std::pair(1, 1) || place > std::pair<int, int>(kBooks, 255)) std::abort();
    last = place;
    CheckText(verse.field);
    CheckText(verse.text);
    all.append(verse.field).append("\t").append(verse.text).append("\n");
  }
  return all;
}

// At least so many bytes, that end behind a character.
std::size_t LengthOfCharacters(std::string_view text, std::size_t least) {
  std::size_t length = std::min(least, text.size());
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) ++length;
  return length;
}

std::string Read(FormKind kind, std::string_view input, std::size_t longest) {
  try {
    MemoryBytes bytes(input);
    TextDecoder text(bytes, {});
    BibleBuilder builder;
    builder.SetFile("text");
    const auto form = MakeForm(kind, builder);
    std::string_view piece;
    while (text.Next(piece)) {
      while (!piece.empty()) {
        const std::size_t length = LengthOfCharacters(piece, longest);
        form->Read(piece.substr(0, length));
        piece.remove_prefix(length);
      }
    }
    form->Finish();
    builder.EndFile();
    return Told(builder.Finish());
  } catch (const RunTimeError&) {
    return "refused";  // why may differ, where a text has several faults
  } catch (const TextFault&) {
    return "refused";
  }
}

// What becomes of it is a library of as many verses.
void Import(const Folder& folder, std::string_view input) {
  try {
    const ImportedBible bible = ReadBible({{folder.Write("text", input)}, {}});
    Told(bible);
    LibraryRequest request;
    request.folder = folder.Path();
    const LibraryPlan plan = PlanLibrary(bible, request);
    std::string content;
    WriteVerses(bible, plan, [&](std::string_view piece) { content += piece; });
    VerseFileReader verses(folder.Write("verses", content));
    std::size_t count = 0;
    while (verses.Next()) ++count;
    if (count != bible.VerseCount()) std::abort();
  } catch (const RunTimeError&) {
  }
}

}  // namespace
}  // namespace folionet::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace folionet;
  using namespace folionet::fuzz;
  static const Folder folder;
  if (size == 0) return 0;
  constexpr unsigned kForms = 7;
  const auto kind = static_cast<FormKind>(data[0] % kForms);
  const std::string_view input = Text(data + 1, size - 1);
  if (kind == FormKind::kNone) {
    Import(folder, input);
  } else if (Read(kind, input, input.size() + 1) != Read(kind, input, 1 + data[0] / kForms)) {
    std::abort();
  }
  return 0;
}
