#include "UsfxForm.h"

#include "UsfmMarkers.h"

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
  if (name == "languageCode") {
    m_captured = Captured::kLanguage;
    return Part::kCaptured;
  }
  if (name == "toc") return PartOfMarker("toc" + std::string(element.Get("level")));
  const std::string_view sfm = element.Get("sfm");
  return PartOfMarker(KindOfMarker(sfm) == MarkerKind::kUnknown ? name : sfm);
}

XmlForm::Part UsfxForm::PartOfMarker(std::string_view marker) {
  switch (KindOfMarker(marker)) {
    case MarkerKind::kHeader:
      m_captured = Captured::kShort;
      return Part::kCaptured;
    case MarkerKind::kToc2:
      m_captured = Captured::kMiddle;
      return Part::kCaptured;
    case MarkerKind::kToc1:
      m_captured = Captured::kLong;
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
      return marker == "table" || marker == "optionalLineBreak" ? Part::kBlock : Part::kPass;
    case MarkerKind::kLeftOutParagraph:
      return Part::kHeading;
    default:
      return Part::kLeftOut;
  }
}

void UsfxForm::EndCaptured(const std::string& text) {
  switch (m_captured) {
    case Captured::kLanguage:
      return Builder().SetLanguage(text);
    case Captured::kShort:
      return Builder().AddTitle(TitleKind::kShort, text);
    case Captured::kMiddle:
      return Builder().AddTitle(TitleKind::kMiddle, text);
    case Captured::kLong:
      return Builder().AddTitle(TitleKind::kLong, text);
  }
}

}  // namespace folionet
