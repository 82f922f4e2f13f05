#include "ImportText.h"

#include <filesystem>

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
  explicit BibleReader(const ImportSource& source) : m_source(source) {}

  void Take(const InputFile& file) {
    GoOn(file.name);
    TextDecoder text(*file.bytes, m_source.charset);
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
    ReadFile(kind, file.name, text);
    m_builder.EndFile();
  }

  ImportedBible Finish(const std::string& path) {
    if (m_kind == FormKind::kNone) throw RunTimeError(kInvalidProcedureCall, path, kForms);
    return m_builder.Finish();
  }

 private:
  void GoOn(const std::string& file) const {
    if (m_source.goOn && !m_source.goOn(file)) throw ReadingStopped();
  }

  void ReadFile(FormKind kind, const std::string& name, TextDecoder& text) {
    try {
      const auto form = MakeForm(kind, m_builder);
      std::string_view piece;
      while (text.Next(piece)) {
        GoOn(name);
        form->Read(piece);
      }
      form->Finish();
    } catch (const TextFault& fault) {
      m_builder.SetLine(fault.Line());
      m_builder.Fail(fault.what());
    }
  }

  const ImportSource& m_source;
  BibleBuilder m_builder;
  FormKind m_kind = FormKind::kNone;
  std::string m_first;  // the file that told the form
};

}  // namespace

ImportedBible ReadBible(const ImportSource& source) {
  BibleReader reader(source);
  ForEachInput(source.paths, [&](const InputFile& file) { reader.Take(file); });
  return reader.Finish(source.paths.empty() ? std::string() : source.paths.front());
}

std::string NameOfPath(const std::string& path) {
  if (path == "-") return {};
  std::filesystem::path whole = std::filesystem::path(path).lexically_normal();
  if (!whole.has_filename()) whole = whole.parent_path();  // a folder, with its separator
  const std::string name = whole.filename().string();
  return name.substr(0, name.find('.'));
}

}  // namespace folionet
