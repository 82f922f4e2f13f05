#include "ImportText.h"

#include <filesystem>
#include <optional>

#include "BibleBuilder.h"
#include "ImportError.h"
#include "InputFiles.h"
#include "TextDecoder.h"
#include "TextFault.h"
#include "TextForm.h"

namespace folionet {
namespace {

constexpr const char* kForms =
    Words("Import", "A Bible text was expected: USFM, USX, USFX, OSIS, Zefania XML, or one verse a line.");

constexpr const char* kEmpty = Words("Import", "A Bible text was expected; the file is empty.");

// Reads the files of one text, which all have the same form. A file of a folder or an archive that looks like one verse
// a line beside files of another form is none of the text: a licence, a list of verse counts.
class BibleReader {
 public:
  explicit BibleReader(const ImportSource& source) : m_source(source) {}

  void Take(const InputFile& file) {
    GoOn(file.name);
    try {
      TextDecoder text(*file.bytes, m_source.charset);
      TakeText(file, text);
    } catch (const TextFault& fault) {
      m_builder.SetFile(file.name);
      m_builder.SetLine(fault.Line());
      m_builder.Fail(fault.What());
    }
  }

  ImportedBible Finish(const std::string& path) {
    if (m_lineFault) throw ImportError(*m_lineFault);
    if (m_kind == FormKind::kNone) throw ImportError(kInvalidProcedureCall, path, {kForms});
    return m_builder.Finish();
  }

 private:
  void TakeText(const InputFile& file, TextDecoder& text) {
    const FormKind kind = FormOf(text.Head());
    if (kind == FormKind::kNone) {
      if (file.isGiven) {
        throw ImportError(kInvalidProcedureCall, file.name, {text.Head().empty() ? kEmpty : kForms});
      }
      return;
    }
    if (kind != m_kind && !BelongsHere(kind, file)) return;
    m_isFormSure = m_isFormSure || file.isGiven;
    m_builder.SetFile(file.name);
    if (kind == FormKind::kLines && !file.isGiven) {
      TakeLines(file.name, text);
    } else {
      ReadFile(kind, file.name, text);
      m_builder.EndFile();
    }
  }

  // Whether a file is of the text, though it has not the form of those before it.
  bool BelongsHere(FormKind kind, const InputFile& file) {
    if (kind == FormKind::kLines && m_kind != FormKind::kNone && !file.isGiven) {
      NoteLeftOut(file.name);
      return false;
    }
    if (m_kind == FormKind::kLines && !m_isFormSure) {
      m_builder = BibleBuilder();
      m_lineFault.reset();
      for (const std::string& name : m_lineFiles) NoteLeftOut(name);
    } else if (m_kind != FormKind::kNone) {
      throw ImportError(kInvalidProcedureCall, file.name,
                        {Words("Import", "Files of one form were expected: this one is %1, %2 is %3."),
                         {std::string(NameOf(kind)), m_first, std::string(NameOf(m_kind))}});
    }
    m_kind = kind;
    m_first = file.name;
    return true;
  }

  void NoteLeftOut(const std::string& file) { m_builder.NoteLeftOutFile(file, std::string(NameOf(FormKind::kLines))); }

  // A fault counts when no file of another form comes.
  void TakeLines(const std::string& name, TextDecoder& text) {
    m_lineFiles.push_back(name);
    if (m_lineFault) return;
    try {
      ReadFile(FormKind::kLines, name, text);
      m_builder.EndFile();
    } catch (const ImportError& fault) {
      m_lineFault = fault;
    } catch (const RunTimeError& fault) {
      m_lineFault = ImportError(fault);
    }
  }

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
      m_builder.Fail(fault.What());
    }
  }

  const ImportSource& m_source;
  BibleBuilder m_builder;
  FormKind m_kind = FormKind::kNone;
  std::string m_first;                   // the file that told the form
  bool m_isFormSure = false;             // one of one verse a line was named itself: files of another form are a fault
  std::vector<std::string> m_lineFiles;  // those of one verse a line that were not named themselves
  std::optional<ImportError> m_lineFault;
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
