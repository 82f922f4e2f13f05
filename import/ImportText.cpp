#include "ImportText.h"

#include "BibleBuilder.h"
#include "InputFiles.h"
#include "RunTimeError.h"
#include "TextDecoder.h"
#include "TextFault.h"
#include "TextForm.h"

namespace folionet {
namespace {

constexpr char kForms[] = "A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line.";

// Reads the files of one text, which all have the same form.
class BibleReader {
 public:
  explicit BibleReader(const std::string& charset) : m_charset(charset) {}

  void Take(const InputFile& file) {
    TextDecoder text(*file.bytes, m_charset);
    const FormKind kind = FormOf(text.Head());
    if (kind == FormKind::kNone) {
      if (file.isGiven) throw RunTimeError(kInvalidProcedureCall, file.name, kForms);
      return;
    }
    if (m_kind == FormKind::kNone) {
      m_kind = kind;
      m_first = file.name;
    }
    if (kind != m_kind) {
      throw RunTimeError(kInvalidProcedureCall, file.name,
                         "Files of one form were expected: this one is " + std::string(NameOf(kind)) + ", " + m_first +
                             " is " + std::string(NameOf(m_kind)) + ".");
    }
    m_builder.SetFile(file.name);
    ReadFile(kind, text);
    m_builder.EndFile();
  }

  ImportedBible Finish(const std::string& path) {
    if (m_kind == FormKind::kNone) throw RunTimeError(kInvalidProcedureCall, path, kForms);
    return m_builder.Finish();
  }

 private:
  void ReadFile(FormKind kind, TextDecoder& text) {
    try {
      const auto form = MakeForm(kind, m_builder);
      std::string_view piece;
      while (text.Next(piece)) form->Read(piece);
      form->Finish();
    } catch (const TextFault& fault) {
      m_builder.SetLine(fault.Line());
      m_builder.Fail(fault.what());
    }
  }

  const std::string& m_charset;
  BibleBuilder m_builder;
  FormKind m_kind = FormKind::kNone;
  std::string m_first;  // the file that told the form
};

}  // namespace

ImportedBible ReadBible(const ImportSource& source) {
  BibleReader reader(source.charset);
  ForEachInput(source.paths, [&](const InputFile& file) { reader.Take(file); });
  return reader.Finish(source.paths.empty() ? std::string() : source.paths.front());
}

}  // namespace folionet
