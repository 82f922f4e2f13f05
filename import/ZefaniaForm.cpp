#include "ZefaniaForm.h"

#include "BookTable.h"
#include "LineReader.h"
#include "Numbers.h"
#include "Text.h"

namespace folionet {
namespace {

// The verse number of "vnumber", the last one of several in "enumber", and a part of a verse in "aix": "2-4", "3a".
std::string FieldOf(const XmlElement& element) {
  std::string field(element.Get("vnumber"));
  const std::string_view part = element.Get("aix");
  if (part.size() == 1 && part[0] >= 'a' && part[0] <= 'z') field += part;
  const std::string_view end = element.Get("enumber");
  if (!end.empty() && end != element.Get("vnumber")) field.append("-").append(end);
  return field;
}

}  // namespace

XmlForm::Part ZefaniaForm::Begin(const XmlElement& element) {
  const std::string name = AsciiLower(element.Name());
  if (name == "vers" || name == "verse") {
    Builder().BeginVerse(FieldOf(element));
    return Part::kVerse;
  }
  if (name == "chapter") {
    Builder().BeginChapter(element.Get("cnumber"));
    return Part::kPass;
  }
  if (name == "biblebook") {
    const std::string_view title = element.Get("bname");
    const IntegerReading number = ReadInteger(element.Get("bnumber"), 1, kInt16Max);
    if (number.error == 0) {
      Builder().BeginBookNumber(static_cast<int>(number.value), title);
    } else {
      const std::string_view code = element.Get("bsname");
      Builder().BeginBook(FindBook(title) != 0 || code.empty() ? title : code);
    }
    Builder().AddTitle(TitleKind::kShort, title);
    return Part::kPass;
  }
  if (name == "xmlbible") Builder().SetName(element.Get("biblename"));
  if (name == "title") return Capture(Told::kName);
  if (name == "language") return Capture(Told::kLanguage);
  if (IsOneOf(name, {"note", "remark", "xref", "media"})) return Part::kLeftOut;
  if (IsOneOf(name, {"caption", "prolog"})) return Part::kHeading;
  return name == "br" ? Part::kBlock : Part::kPass;
}

}  // namespace folionet
