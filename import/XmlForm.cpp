#include "XmlForm.h"

#include <utility>

#include "Text.h"

namespace folionet {
namespace {

bool BeginsVerse(const XmlElement& element) {
  if (AsciiLower(element.Name().front()) != 'v') return false;
  const std::string name = AsciiLower(element.Name());
  return (name == "verse" || name == "vers" || name == "v") && element.Get("eID").empty() && element.Get("eid").empty();
}

}  // namespace

void XmlForm::Start(const XmlElement& element) {
  if (m_leftOut > 0 && BeginsVerse(element)) EndLeftOutBefore(element);
  if (m_leftOut > 0) {
    ++m_leftOut;
    return;
  }
  m_builder.SetLine(m_reader.Line());
  m_isJustBegun = true;
  const Part part = Begin(element);
  switch (part) {
    case Part::kHeading:
      AddBreak();
      BeginLeftOut(part, element);
      return;
    case Part::kLeftOut:
      BeginLeftOut(part, element);
      return;
    case Part::kBlock:
      AddBreak();
      break;
    case Part::kCanonicalTitle:
      m_builder.BeginCanonicalTitle();
      break;
    case Part::kCaptured:
      if (m_capturing++ == 0) m_captured.clear();
      break;
    case Part::kPass:
    case Part::kVerse:
      break;
  }
  m_parts.push_back(part);
}

void XmlForm::BeginLeftOut(Part part, const XmlElement& element) {
  m_leftOut = 1;
  m_leftOutPart = part;
  m_leftOutName = element.Name();
  m_leftOutLine = m_reader.Line();
}

// A heading may hold the start of a verse, and a sidebar verses of its own. A note does not: it has not ended, and
// would take the verses with it.
void XmlForm::EndLeftOutBefore(const XmlElement& verse) {
  if (m_leftOutPart != Part::kHeading) {
    if (m_leftOutName != "note") return;
    m_builder.SetLine(m_reader.Line());
    m_builder.Fail({Words("Import", "the end of %1 (line %2) was expected before %3"),
                    {m_leftOutName, std::to_string(m_leftOutLine), std::string(verse.Name())}});
  }
  m_parts.insert(m_parts.end(), static_cast<std::size_t>(std::exchange(m_leftOut, 0)), Part::kBlock);
}

void XmlForm::End(std::string_view /*name*/) {
  if (m_leftOut > 0) {
    --m_leftOut;
    return;
  }
  const Part part = m_parts.back();
  m_parts.pop_back();
  const bool isEmpty = std::exchange(m_isJustBegun, false);
  switch (part) {
    case Part::kBlock:
      AddBreak();
      break;
    case Part::kVerse:
      if (isEmpty && !m_doVersesHoldText) break;  // it marks where the verse begins
      m_doVersesHoldText = true;
      m_builder.EndVerse();
      break;
    case Part::kCanonicalTitle:
      m_builder.EndCanonicalTitle();
      break;
    case Part::kCaptured:
      if (--m_capturing == 0) EndCaptured();
      break;
    case Part::kPass:
    case Part::kLeftOut:
    case Part::kHeading:
      break;
  }
}

XmlForm::Part XmlForm::Capture(Told told) {
  m_told = told;
  return Part::kCaptured;
}

void XmlForm::EndCaptured() {
  switch (m_told) {
    case Told::kName:
      return m_builder.SetName(m_captured);
    case Told::kLanguage:
      return m_builder.SetLanguage(m_captured);
    case Told::kShortTitle:
      return m_builder.AddTitle(TitleKind::kShort, m_captured);
    case Told::kMiddleTitle:
      return m_builder.AddTitle(TitleKind::kMiddle, m_captured);
    case Told::kLongTitle:
      return m_builder.AddTitle(TitleKind::kLong, m_captured);
  }
}

XmlForm::Part XmlForm::PartOfMarker(MarkerKind kind) {
  switch (kind) {
    case MarkerKind::kHeader:
      return Capture(Told::kShortTitle);
    case MarkerKind::kToc2:
      return Capture(Told::kMiddleTitle);
    case MarkerKind::kToc1:
      return Capture(Told::kLongTitle);
    case MarkerKind::kCanonicalTitle:
      return Part::kCanonicalTitle;
    case MarkerKind::kParagraph:
    case MarkerKind::kCell:
      return Part::kBlock;
    case MarkerKind::kCharacter:
    case MarkerKind::kMilestone:
    case MarkerKind::kUnknown:
      return Part::kPass;
    case MarkerKind::kLeftOutParagraph:
      return Part::kHeading;
    default:
      return Part::kLeftOut;
  }
}

void XmlForm::AddBreak() {
  if (m_capturing == 0) return m_builder.AddBreak();
  m_captured += ' ';
}

bool XmlForm::NoteEnd(std::string_view name) {
  m_builder.SetLine(m_reader.Line());
  constexpr BibleBuilder::Misfit kEnd{
      .kind = "xml-end",
      .one = Words("Import", "An element ends in the wrong place: %1."),
      .many = Words("Import", "An element ends in the wrong place: %1; more of them in the file: %2.")};
  m_builder.NoteMisfit(kEnd, std::string(name));
  return true;
}

void XmlForm::Text(std::string_view text) {
  constexpr std::size_t kLongestCaptured = 10000;
  m_isJustBegun = false;
  if (m_leftOut > 0) return;
  if (m_capturing == 0) {
    m_builder.AddText(text);
  } else if (m_captured.size() < kLongestCaptured) {
    m_captured += text;
  }
}

}  // namespace folionet
