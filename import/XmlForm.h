#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "TextForm.h"
#include "UsfmMarkers.h"
#include "XmlReader.h"

namespace folionet {

// What the forms that are XML have in common: what becomes of the text of each element.
class XmlForm : public TextForm, protected XmlHandler {
 public:
  explicit XmlForm(BibleBuilder& builder) : m_builder(builder), m_reader(*this) {}

  void Read(std::string_view piece) override { m_reader.Read(piece); }
  void Finish() override { m_reader.Finish(); }

 protected:
  enum class Part {
    kPass,            // its text belongs to what it stands in
    kLeftOut,         // with all that is in it
    kHeading,         // as kLeftOut, up to a verse; what stands around it is parted
    kBlock,           // as kPass, between blanks
    kVerse,           // a verse, which ends with it; in a file where those that came so far hold nothing, with the next
    kCanonicalTitle,  // ends with it
    kCaptured,        // no text of a verse; what Capture says
  };

  // An element begins that stands in nothing left out.
  virtual Part Begin(const XmlElement& element) = 0;

  // What the whole text of an element tells that is no text of a verse.
  enum class Told { kName, kLanguage, kShortTitle, kMiddleTitle, kLongTitle };
  Part Capture(Told told);

  // The part of an element that stands for a marker of USFM.
  Part PartOfMarker(MarkerKind kind);

  // Notes an end that does not fit, and puts up with it.
  bool NoteEnd(std::string_view name);

  BibleBuilder& Builder() { return m_builder; }

  // Whether an element that is kCaptured is open.
  bool IsCapturing() const { return m_capturing != 0; }

 private:
  void Start(const XmlElement& element) override;
  void End(std::string_view name) override;
  void Text(std::string_view text) override;
  void AddBreak();
  void EndCaptured();
  void BeginLeftOut(Part part, const XmlElement& element);
  void EndLeftOutBefore(const XmlElement& verse);

  BibleBuilder& m_builder;
  XmlReader m_reader;
  std::vector<Part> m_parts;  // of the elements that are open
  int m_leftOut = 0;          // how many open elements are left out
  Part m_leftOutPart = Part::kLeftOut;
  std::string m_leftOutName;  // the outermost of them
  std::size_t m_leftOutLine = 0;
  bool m_isJustBegun = false;       // an element, and nothing of it has come yet
  bool m_doVersesHoldText = false;  // those that are kVerse
  int m_capturing = 0;
  Told m_told = Told::kName;
  std::string m_captured;
};

}  // namespace folionet
