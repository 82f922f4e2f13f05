#include "UsxForm.h"

#include "Text.h"

namespace folionet {

XmlForm::Part UsxForm::Begin(const XmlElement& element) {
  const std::string_view name = element.Name();
  if (name == "verse") {
    if (const std::string_view number = element.Get("number"); !number.empty()) {
      Builder().BeginVerse(number);
    } else {
      Builder().EndVerse();
    }
    return Part::kPass;
  }
  if (name == "para" || name == "char") return PartOfStyle(element.Get("style"));
  if (name == "chapter") {
    if (const std::string_view number = element.Get("number"); !number.empty()) Builder().BeginChapter(number);
    return Part::kPass;
  }
  if (name == "book") {
    Builder().BeginBook(element.Get("code"));
    return Part::kLeftOut;
  }
  if (IsOneOf(name, {"note", "figure", "sidebar", "periph"})) return Part::kLeftOut;
  return IsOneOf(name, {"row", "cell", "optbreak"}) ? Part::kBlock : Part::kPass;
}

XmlForm::Part UsxForm::PartOfStyle(std::string_view style) {
  const MarkerKind kind = KindOfMarker(style);
  if (kind == MarkerKind::kUnknown && Builder().IsInVerse()) {
    Builder().Note("unknown-mark", Words("Import", "Text in the unknown style %1 is kept."), std::string(style));
  }
  return PartOfMarker(kind);
}

}  // namespace folionet
