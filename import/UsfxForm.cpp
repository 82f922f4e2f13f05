#include "UsfxForm.h"

#include "Text.h"

namespace folionet {

XmlForm::Part UsfxForm::Begin(const XmlElement& element) {
  const std::string_view name = element.Name();
  if (name == "v") {
    Builder().BeginVerse(element.Get("id"));
    return Part::kPass;
  }
  if (name == "ve") {
    Builder().EndVerse();
    return Part::kPass;
  }
  if (name == "c") {
    Builder().BeginChapter(element.Get("id"));
    return Part::kPass;
  }
  if (name == "book") {
    Builder().BeginBook(element.Get("id"));
    return Part::kPass;
  }
  if (name == "generated") return Part::kLeftOut;
  if (name == "languageCode") return Capture(Told::kLanguage);
  if (name == "toc") return PartOfMarker(KindOfMarker("toc" + std::string(element.Get("level"))));
  MarkerKind kind = KindOfMarker(element.Get("sfm"));
  if (kind == MarkerKind::kUnknown) kind = KindOfMarker(name);
  const bool isBlock = kind == MarkerKind::kUnknown && IsOneOf(name, {"table", "optionalLineBreak"});
  return isBlock ? Part::kBlock : PartOfMarker(kind);
}

}  // namespace folionet
