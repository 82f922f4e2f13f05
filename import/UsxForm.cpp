#include "UsxForm.h"

#include "UsfmMarkers.h"

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
  if (name == "note" || name == "figure" || name == "sidebar" || name == "periph") return Part::kLeftOut;
  if (name == "row" || name == "cell" || name == "optbreak") return Part::kBlock;
  return Part::kPass;
}

XmlForm::Part UsxForm::PartOfStyle(std::string_view style) {
  switch (KindOfMarker(style)) {
    case MarkerKind::kHeader:
      m_title = TitleKind::kShort;
      return Part::kCaptured;
    case MarkerKind::kToc2:
      m_title = TitleKind::kMiddle;
      return Part::kCaptured;
    case MarkerKind::kToc1:
      m_title = TitleKind::kLong;
      return Part::kCaptured;
    case MarkerKind::kCanonicalTitle:
      return Part::kCanonicalTitle;
    case MarkerKind::kParagraph:
    case MarkerKind::kCell:
      return Part::kBlock;
    case MarkerKind::kCharacter:
    case MarkerKind::kMilestone:
      return Part::kPass;
    case MarkerKind::kUnknown:
      if (Builder().IsInVerse()) {
        Builder().Note("unknown-mark", Words("Import", "Text in the unknown style %1 is kept."), std::string(style));
      }
      return Part::kPass;
    case MarkerKind::kLeftOutParagraph:
      return Part::kHeading;
    default:
      return Part::kLeftOut;
  }
}

}  // namespace folionet
